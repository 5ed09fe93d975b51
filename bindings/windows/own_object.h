#ifndef ZQ7STANDARD_BINDINGS_WINDOWS_OWN_OBJECT_H_
#define ZQ7STANDARD_BINDINGS_WINDOWS_OWN_OBJECT_H_

#include <ZQ7Standard/automation/value.h>

#include <optional>

#include "com.h"

namespace ZQ7Windows {

/// How the server knows its own objects again when a host passes one to an operation.
struct IOwnObject : IUnknown {
  virtual const ZQ7Standard::Automation::Object& OwnObject() const = 0;
};

inline constexpr IID kOwnObjectId = {
    0xC2A1F3B6, 0x5D0E, 0x4A57, {0x8E, 0x21, 0x6B, 0x3C, 0x90, 0x7F, 0x44, 0x1D}};

/// The object behind one of the server's, made in this process and apartment; nullopt for any
/// other.
inline std::optional<ZQ7Standard::Automation::Object> OwnObject(IDispatch* object) {
  const auto own = Query<IOwnObject>(object, kOwnObjectId);
  if (!own) return std::nullopt;
  return own->OwnObject();
}

}  // namespace ZQ7Windows

#endif  // ZQ7STANDARD_BINDINGS_WINDOWS_OWN_OBJECT_H_
