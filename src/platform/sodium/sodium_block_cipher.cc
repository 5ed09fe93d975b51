#include <ZQ7Standard/platform/sodium_block_cipher.h>
#include <sodium.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "base/raise.h"

namespace ZQ7Standard {
namespace {

constexpr std::string_view kName = "SodiumBlockCipher";

// Prefix of encrypted texts; the digit is the version of the format.
constexpr std::string_view kMark = "ZQ71";
constexpr int kLetters = sodium_base64_VARIANT_URLSAFE_NO_PADDING;

// The parts of a ciphertext: the cost, the salt, the nonce, and the sealed text, which is a tag
// longer than the plain text.
constexpr std::size_t kSaltAt = 1;
constexpr std::size_t kNonceAt = kSaltAt + crypto_pwhash_SALTBYTES;
constexpr std::size_t kSealedAt = kNonceAt + crypto_aead_xchacha20poly1305_ietf_NPUBBYTES;
constexpr std::size_t kTagSize = crypto_aead_xchacha20poly1305_ietf_ABYTES;

struct CostLimits {
  KeyCost cost;
  unsigned long long passes;
  std::size_t memory;  // bytes
};

// Texts store their cost only by number, so these never change.
constexpr std::array<CostLimits, 3> kCosts = {{
    {KeyCost::kLeast, 1, std::size_t{8} << 10},
    {KeyCost::kInteractive, 2, std::size_t{64} << 20},
    {KeyCost::kModerate, 3, std::size_t{256} << 20},
}};

/// The limits of `cost`; null if it is unknown, as in a damaged text.
const CostLimits* FindLimits(KeyCost cost) {
  for (const CostLimits& limits : kCosts) {
    if (limits.cost == cost) return &limits;
  }
  return nullptr;
}

unsigned char* BytesAt(std::string& bytes, std::size_t at) {
  return reinterpret_cast<unsigned char*>(bytes.data()) + at;
}

const unsigned char* BytesAt(std::string_view bytes, std::size_t at) {
  return reinterpret_cast<const unsigned char*>(bytes.data()) + at;
}

constexpr bool IsBlank(char16_t c) {
  return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

class SodiumCipher final : public BlockCipher {
 public:
  explicit SodiumCipher(KeyCost cost) : cost_(cost) {}

  void Initialise(SecretBytes key, SecretBytes vector) override {
    password_ = std::move(key);
    salt_ = std::move(vector);
  }

  std::string EncryptBlocks(std::string_view plain) override {
    std::string cipher(kSealedAt + plain.size() + kTagSize, '\0');
    cipher[0] = static_cast<char>(cost_);
    std::ranges::copy(salt_.Bytes(), BytesAt(cipher, kSaltAt));
    randombytes_buf(BytesAt(cipher, kNonceAt), kSealedAt - kNonceAt);
    const SecretBytes key = DeriveKey(*FindLimits(cost_), BytesAt(cipher, kSaltAt));
    crypto_aead_xchacha20poly1305_ietf_encrypt(
        BytesAt(cipher, kSealedAt), nullptr, BytesAt(plain, 0), plain.size(), BytesAt(cipher, 0),
        kNonceAt, nullptr, BytesAt(cipher, kNonceAt), key.Bytes().data());
    return cipher;
  }

  std::optional<std::string> DecryptBlocks(std::string_view cipher) override {
    if (cipher.size() < kSealedAt + kTagSize) return std::nullopt;
    const CostLimits* const limits = FindLimits(static_cast<KeyCost>(cipher[0]));
    if (limits == nullptr) return std::nullopt;
    const SecretBytes key = DeriveKey(*limits, BytesAt(cipher, kSaltAt));
    std::string plain(cipher.size() - kSealedAt - kTagSize, '\0');
    const int failure = crypto_aead_xchacha20poly1305_ietf_decrypt(
        BytesAt(plain, 0), nullptr, nullptr, BytesAt(cipher, kSealedAt), cipher.size() - kSealedAt,
        BytesAt(cipher, 0), kNonceAt, BytesAt(cipher, kNonceAt), key.Bytes().data());
    if (failure != 0) return std::nullopt;
    return plain;
  }

  /// A text's key depends on its own salt, which is unknown until `Decode` when decrypting. So the
  /// key material is the password, as the bytes of its UTF-16 code units, low byte first, and a
  /// salt for `EncryptBlocks`.
  void SetUpKey(TextView password, SecretBytes& key, SecretBytes& vector) override {
    key = SecretBytes(2 * password.size());
    for (std::size_t i = 0; i < password.size(); ++i) {
      key.Bytes()[2 * i] = static_cast<unsigned char>(password[i] & 0xFF);
      key.Bytes()[2 * i + 1] = static_cast<unsigned char>(password[i] >> 8);
    }
    vector = SecretBytes(crypto_pwhash_SALTBYTES);
    randombytes_buf(vector.Bytes().data(), vector.Bytes().size());
  }

  Text Encode(std::string_view cipher) override {
    std::string letters(sodium_base64_encoded_len(cipher.size(), kLetters), '\0');
    sodium_bin2base64(letters.data(), letters.size(), BytesAt(cipher, 0), cipher.size(), kLetters);
    letters.pop_back();  // the terminating zero
    Text text(kMark.begin(), kMark.end());
    text.append(letters.begin(), letters.end());
    return text;
  }

  std::optional<std::string> Decode(TextView text) override {
    std::string letters;
    for (const char16_t c : text) {
      if (IsBlank(c)) continue;
      if (c >= 0x80) return std::nullopt;
      letters.push_back(static_cast<char>(c));
    }
    if (!letters.starts_with(kMark)) return std::nullopt;
    letters.erase(0, kMark.size());
    std::string cipher(letters.size(), '\0');
    std::size_t size = 0;
    const int failure = sodium_base642bin(BytesAt(cipher, 0), cipher.size(), letters.data(),
                                          letters.size(), nullptr, &size, nullptr, kLetters);
    if (failure != 0) return std::nullopt;
    cipher.resize(size);
    return cipher;
  }

 private:
  SecretBytes DeriveKey(const CostLimits& limits, const unsigned char* salt) const {
    SecretBytes key(crypto_aead_xchacha20poly1305_ietf_KEYBYTES);
    const auto password = password_.Bytes();
    const int failure = crypto_pwhash(
        key.Bytes().data(), key.Bytes().size(), reinterpret_cast<const char*>(password.data()),
        password.size(), salt, limits.passes, limits.memory, crypto_pwhash_ALG_ARGON2ID13);
    if (failure != 0) {
      throw RunTimeError(Error::kOutOfMemory, std::to_string(limits.memory) + " bytes for a key");
    }
    return key;
  }

  KeyCost cost_;
  SecretBytes password_;
  SecretBytes salt_;
};

}  // namespace

BlockCipherFactory SodiumBlockCipher(KeyCost cost) {
  if (FindLimits(cost) == nullptr) {
    Raise(Error::kInvalidArgument, {kName, "cost"}, static_cast<int>(cost));
  }
  return [cost]() -> std::unique_ptr<BlockCipher> {
    if (sodium_init() < 0) return nullptr;
    return std::make_unique<SodiumCipher>(cost);
  };
}

BlockCipherFactory BuiltInBlockCipher() {
  return SodiumBlockCipher();
}

}  // namespace ZQ7Standard
