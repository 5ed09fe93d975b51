#include <ZQ7Standard/platform/sodium_block_cipher.h>

#include "services.h"

namespace ZQ7Python {

ZQ7Standard::BlockCipherFactory SodiumCipher() {
  return ZQ7Standard::SodiumBlockCipher();
}

}  // namespace ZQ7Python
