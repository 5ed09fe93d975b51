// Feeds the block cipher on libsodium with texts that claim to be enciphered. Each
// that decodes has to be the only text of its bytes, and none may be deciphered.
#include <ZQ7Standard/platform/sodium_block_cipher.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace ZQ7Standard {
namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

/// The text of `data`: a byte for each character, or two when the first is odd.
Text TextOf(const std::uint8_t* data, std::size_t size) {
  if (size == 0 || data[0] % 2 == 0) return Text(data, data + size);
  Text text(size / 2, u'\0');
  std::memcpy(text.data(), data, text.size() * sizeof(char16_t));
  return text;
}

void Check(const Text& text) {
  const auto cipher = SodiumBlockCipher(KeyCost::kLeast)();
  SecretBytes key;
  SecretBytes vector;
  cipher->SetUpKey(u"password", key, vector);
  auto bytes = cipher->Decode(text);
  if (!bytes) return;
  Text letters = text;
  std::erase_if(letters, [](char16_t c) { return TextView(u" \t\r\n").find(c) != TextView::npos; });
  Require(cipher->Encode(*bytes) == letters);
  cipher->Initialise(std::move(key), std::move(vector));
  if (!bytes->empty() && bytes->front() < 3) bytes->front() = 0;  // the other costs are slow
  Require(!cipher->DecryptBlocks(*bytes));
}

}  // namespace
}  // namespace ZQ7Standard

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ZQ7Standard::Check(ZQ7Standard::TextOf(data, size));
  return 0;
}
