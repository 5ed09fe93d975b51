#include <ZQ7Standard/platform/block_cipher.h>

namespace ZQ7Standard {

BlockCipherFactory BuiltInBlockCipher() {
  return nullptr;
}

}  // namespace ZQ7Standard
