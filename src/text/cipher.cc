#include <ZQ7Standard/RegistryObject.h>
#include <ZQ7Standard/StandardObject.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <utility>

#include "base/code_page.h"
#include "base/raise.h"
#include "platform/service_set.h"

namespace ZQ7Standard {
namespace {

constexpr std::size_t kLongestText = std::numeric_limits<std::int16_t>::max();
constexpr std::size_t kKeyRun = 256;  // runs of this length combine at full speed

/// The bytes of `password`, not empty, repeated to `kKeyRun` or beyond.
std::string RepeatedKey(TextView password) {
  std::string key = ToCodePage(password);
  while (key.size() < kKeyRun) key += key;
  return key;
}

/// `text` and the repeated `password` combined byte by byte with exclusive or.
Text Combine(TextView text, TextView password, std::string_view operation) {
  if (text.empty()) return {};
  if (password.empty()) Raise(Error::kDivisionByZero, {operation, "PassWord"}, password);
  const std::string repeated = RepeatedKey(password);
  const std::string_view key = repeated;
  std::string bytes = ToCodePage(text);
  for (std::span<char> rest(bytes); !rest.empty();) {
    const auto run = rest.first(std::min(rest.size(), key.size()));
    for (std::size_t i = 0; i < run.size(); ++i) run[i] ^= key[i];
    rest = rest.subspan(run.size());
  }
  return FromCodePage(bytes);
}

/// `Combine` for operations that count characters in 16 bits.
Text CombineShort(TextView text, TextView password, std::string_view operation) {
  if (text.size() > kLongestText) {
    Raise(Error::kOverflow, {operation}, text, std::to_string(text.size()) + " characters");
  }
  return Combine(text, password, operation);
}

std::unique_ptr<BlockCipher> MakeCipher(const ServiceSet& services) {
  auto cipher = services.NewCipher();
  if (!cipher) Raise(Error::kCannotCreateObject, {}, "the block cipher");
  return cipher;
}

Text Encipher(BlockCipher& cipher, TextView text, TextView password) {
  SecretBytes key;
  SecretBytes vector;
  cipher.SetUpKey(password, key, vector);
  const std::string plain = ToCodePage(text);
  cipher.Initialise(std::move(key), std::move(vector));
  return cipher.Encode(cipher.EncryptBlocks(plain));
}

/// The text that `cipher` encrypted; nullopt if the cipher cannot decrypt it.
std::optional<Text> Decipher(BlockCipher& cipher, TextView text, TextView password) {
  SecretBytes key;
  SecretBytes vector;
  cipher.SetUpKey(password, key, vector);
  const auto encrypted = cipher.Decode(text);
  if (!encrypted) return std::nullopt;
  cipher.Initialise(std::move(key), std::move(vector));
  const auto plain = cipher.DecryptBlocks(*encrypted);
  if (!plain) return std::nullopt;
  return FromCodePage(*plain);
}

}  // namespace

Text StandardObject::EncryptBS(TextView StringInput, TextView PassWord) const {
  return CombineShort(StringInput, PassWord, "EncryptBS");
}

Text StandardObject::DecryptBS(TextView EncryptedTextInput, TextView PassWord) const {
  return CombineShort(EncryptedTextInput, PassWord, "DecryptBS");
}

Text StandardObject::Encrypt(TextView StringInput, TextView PassWord) const {
  if (StringInput.empty() || PassWord.empty()) return Text(StringInput);
  return Named({"Encrypt"}, [&] {
    const auto cipher = MakeCipher(*services_);
    return Encipher(*cipher, StringInput, PassWord);
  });
}

Text StandardObject::Decrypt(TextView EncryptedTextInput, TextView PassWord) const {
  Text text(EncryptedTextInput);
  if (!text.empty() && !PassWord.empty()) {
    const auto plain = Named({"Decrypt"}, [&] {
      const auto cipher = MakeCipher(*services_);
      return Decipher(*cipher, EncryptedTextInput, PassWord);
    });
    if (plain) text = *plain;
  }
  std::erase(text, u'\0');
  return text;
}

Text RegistryObject::Encrypt(TextView StringInput, TextView PassWord) const {
  return Combine(StringInput, PassWord, "Encrypt");
}

Text RegistryObject::Decrypt(TextView EncryptedTextInput, TextView PassWord) const {
  return Combine(EncryptedTextInput, PassWord, "Decrypt");
}

}  // namespace ZQ7Standard
