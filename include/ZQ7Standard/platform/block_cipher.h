#ifndef ZQ7STANDARD_PLATFORM_BLOCK_CIPHER_H_
#define ZQ7STANDARD_PLATFORM_BLOCK_CIPHER_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/Types.h>

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ZQ7Standard {

/// Bytes that nobody else may read, such as a key: overwritten before their memory is
/// freed. Empty once moved from.
class ZQ7STANDARD_EXPORT SecretBytes {
 public:
  SecretBytes() = default;
  /// `size` bytes of 0.
  explicit SecretBytes(std::size_t size);
  SecretBytes(SecretBytes&& other) noexcept;
  SecretBytes& operator=(SecretBytes&& other) noexcept;
  SecretBytes(const SecretBytes&) = delete;
  SecretBytes& operator=(const SecretBytes&) = delete;
  ~SecretBytes();

  std::span<unsigned char> Bytes() { return bytes_; }
  std::span<const unsigned char> Bytes() const { return bytes_; }

 private:
  std::vector<unsigned char> bytes_;
};

/// The cipher behind `StandardObject::Encrypt` and `Decrypt`, which make one for
/// each call and call it in this order:
///
///     Encrypt   SetUpKey, Initialise, EncryptBlocks, Encode
///     Decrypt   SetUpKey, Decode, Initialise, DecryptBlocks
///
/// If `Decode` or `DecryptBlocks` returns nullopt, the text is left as it is. An
/// exception reaches the host.
class ZQ7STANDARD_EXPORT BlockCipher {
 public:
  virtual ~BlockCipher();

  /// Takes the key material for `EncryptBlocks` and `DecryptBlocks`, once.
  virtual void Initialise(SecretBytes key, SecretBytes vector) = 0;

  /// The ciphertext of `plain`, which may hold any bytes.
  virtual std::string EncryptBlocks(std::string_view plain) = 0;

  /// The bytes that `EncryptBlocks` was given, perhaps padded with zero bytes at their
  /// end; nullopt if the password or the ciphertext is wrong, as far as the cipher can
  /// tell.
  virtual std::optional<std::string> DecryptBlocks(std::string_view cipher) = 0;

  /// Makes key material of `password`, which is not empty, in two parts whose
  /// meaning is the cipher's own.
  virtual void SetUpKey(TextView password, SecretBytes& key, SecretBytes& vector) = 0;

  /// The text that carries `cipher`, a ciphertext and its length.
  virtual Text Encode(std::string_view cipher) = 0;

  /// The ciphertext that `text` carries; nullopt if `Encode` did not write it.
  virtual std::optional<std::string> Decode(TextView text) = 0;
};

/// The cipher that comes with the library, at its usual cost: `SodiumBlockCipher`. Empty in
/// a library built without one.
ZQ7STANDARD_EXPORT BlockCipherFactory BuiltInBlockCipher();

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_BLOCK_CIPHER_H_
