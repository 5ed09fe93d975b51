#include "host.h"

namespace ZQ7Tool {

ZQ7Standard::BlockCipherFactory BuiltInBlockCipher() {
  return nullptr;
}

}  // namespace ZQ7Tool
