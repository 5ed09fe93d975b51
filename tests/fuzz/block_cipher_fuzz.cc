// Gives the block cipher on libsodium texts that claim to be encrypted. One that decodes must be
// the only text of its bytes, and none may be decrypted.
#include <ZQ7Standard/platform/sodium_block_cipher.h>

#include <utility>

#include "tests/fuzz/check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ZQ7Standard;
  Text text = FuzzText(data, size);
  const auto cipher = SodiumBlockCipher(KeyCost::kLeast)();
  SecretBytes key;
  SecretBytes vector;
  cipher->SetUpKey(u"password", key, vector);
  auto bytes = cipher->Decode(text);
  if (!bytes) return 0;
  std::erase_if(text, [](char16_t c) { return TextView(u" \t\r\n").find(c) != TextView::npos; });
  Check(cipher->Encode(*bytes) == text);
  cipher->Initialise(std::move(key), std::move(vector));
  if (!bytes->empty() && bytes->front() < 3) bytes->front() = 0;  // the other costs are slow
  Check(!cipher->DecryptBlocks(*bytes));
  return 0;
}
