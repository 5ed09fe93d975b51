#ifndef ZQ7STANDARD_REGISTRYOBJECT_H_
#define ZQ7STANDARD_REGISTRYOBJECT_H_

#include <ZQ7Standard/Enumerations.h>
#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/Types.h>

#include <cstdint>
#include <memory>

namespace ZQ7Standard {

class ServiceSet;

/// Registry values, and a password cipher for texts kept there.
///
/// The values are numbers and texts. An instance and its copies, which share its
/// registry, belong to one thread at a time; distinct instances are independent.
class ZQ7STANDARD_EXPORT RegistryObject {
 public:
  /// Uses the machine's registry, which is not touched before the first call.
  RegistryObject();
  /// Uses the host's services.
  explicit RegistryObject(Services services);

  // --- Values of the registry: src/io/registry/registry_values.cc; docs/files.md ---

  // `keyroot` is a `KetRootType`, `keyname` the path of a key below it with "\" between
  // the names, `subkeyname` the name of a value in that key. Case does not count in
  // either; characters outside Windows-874 count as "?", and a character 0 ends the name.
  // There is no key with a name of more than 255 characters, nor at more than 512 levels.
  // No failure raises: reads return 0 or no text, updates true.

  /// The number that a value holds; 0 if there is none.
  ///
  /// Also 0 for a value that holds anything but a number, even a text of digits. A key
  /// that the user may read but not write counts as missing.
  std::int32_t GetKeyValueLong(std::int32_t keyroot, TextView keyname, TextView subkeyname) const;

  /// The text that a value holds; empty if there is none.
  ///
  /// One character 0 at its end is left out. Also empty for a text of more than 1,024
  /// bytes, and for a value that holds anything but a plain text. A key that the user may
  /// read but not write counts as missing.
  Text GetKeyValueString(std::int32_t keyroot, TextView keyname, TextView subkeyname) const;

  /// Sets a value to a number; True if that FAILED.
  ///
  /// Creates the key and those above it if they do not exist. False (0) means that it was
  /// done, true (-1) that it FAILED: callers test for 0.
  bool UpdateKeyValueLong(std::int32_t keyroot, TextView keyname, TextView subkeyname,
                          std::int32_t keyval) const;

  /// Sets a value to a text; True if that FAILED.
  ///
  /// Otherwise as `UpdateKeyValueLong`. The text is stored in Windows-874 with one byte
  /// for each character and no final zero. A text of more than 1,024 characters is
  /// stored, but `GetKeyValueString` does not read it.
  bool UpdateKeyValueString(std::int32_t keyroot, TextView keyname, TextView subkeyname,
                            TextView keyval) const;

  // --- Texts under a password: src/text/cipher.cc; docs/security.md ---

  /// Hides a text from a glance, under a password.
  ///
  /// The same as `StandardObject.EncryptBS`, for a text of any length. Raises 11 for an
  /// empty password, unless the text is empty.
  Text Encrypt(TextView StringInput, TextView PassWord) const;

  /// Undoes `Encrypt`.
  ///
  /// The same as `Encrypt`, which undoes itself.
  Text Decrypt(TextView EncryptedTextInput, TextView PassWord) const;

 private:
  std::shared_ptr<ServiceSet> services_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_REGISTRYOBJECT_H_
