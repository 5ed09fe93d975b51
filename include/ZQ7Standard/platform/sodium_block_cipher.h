#ifndef ZQ7STANDARD_PLATFORM_SODIUM_BLOCK_CIPHER_H_
#define ZQ7STANDARD_PLATFORM_SODIUM_BLOCK_CIPHER_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/platform/block_cipher.h>

#include <cstdint>

namespace ZQ7Standard {

/// The work of deriving a key from a password (Argon2id, RFC 9106): once for each
/// `Encrypt` and `Decrypt`, and once for each guess at the password. docs/security.md has
/// the times.
enum class KeyCost : std::uint8_t {
  kLeast = 0,        ///< 8 KiB, 1 pass: for passwords that are random keys, and tests
  kInteractive = 1,  ///< 64 MiB, 2 passes: for passwords that a person chose
  kModerate = 2,     ///< 256 MiB, 3 passes: for secrets that are worth a wait
};

/// Makes the cipher that comes with the library, on libsodium: a key by Argon2id
/// with a random salt for each text, XChaCha20-Poly1305 for the text. Give it to
/// `Services::block_cipher`:
///
///     StandardObject object({.block_cipher = SodiumBlockCipher()});
///
/// An enciphered text is "ZQ71" and then letters, digits, "-" and "_"; it shows the
/// length of the plain text and the cost, nothing else, and no two are alike. Every
/// cipher reads the texts of every cost. Blanks and line breaks that a mail program
/// inserted do not matter; any other change, and the wrong password, are always detected.
///
/// The factory may be used from any thread; a cipher belongs to one. Ciphers raise 7 if
/// there is not enough memory for the cost, `SodiumBlockCipher` 5 for a value that is not
/// a `KeyCost`.
///
/// Only in a library built with ZQ7STANDARD_WITH_SODIUM.
ZQ7STANDARD_EXPORT BlockCipherFactory SodiumBlockCipher(KeyCost cost = KeyCost::kInteractive);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_SODIUM_BLOCK_CIPHER_H_
