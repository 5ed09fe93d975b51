#include "services.h"

namespace ZQ7Python {

ZQ7Standard::BlockCipherFactory SodiumCipher() {
  return nullptr;
}

}  // namespace ZQ7Python
