#ifndef ZQ7STANDARD_REGISTRYOBJECT_H_
#define ZQ7STANDARD_REGISTRYOBJECT_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>

namespace ZQ7Standard {

/// The password cipher for texts that are kept in the registry. An instance
/// belongs to one thread at a time; distinct instances are independent.
class ZQ7STANDARD_EXPORT RegistryObject {
 public:
  RegistryObject();

  // --- Texts under a password: src/text/cipher.cc; docs/security.md ---

  /// The same as `StandardObject::EncryptBS`, for a text of any length. Raises 11
  /// for an empty password, unless the text is empty.
  Text Encrypt(TextView StringInput, TextView PassWord) const;
  /// The same as `Encrypt`, which undoes itself.
  Text Decrypt(TextView EncryptedTextInput, TextView PassWord) const;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_REGISTRYOBJECT_H_
