#include <ZQ7Standard/platform/sodium_block_cipher.h>

#include "host.h"

namespace ZQ7Tool {

ZQ7Standard::BlockCipherFactory BuiltInBlockCipher() {
  return ZQ7Standard::SodiumBlockCipher();
}

}  // namespace ZQ7Tool
