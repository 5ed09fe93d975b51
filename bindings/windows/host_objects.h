#ifndef ZQ7STANDARD_BINDINGS_WINDOWS_HOST_OBJECTS_H_
#define ZQ7STANDARD_BINDINGS_WINDOWS_HOST_OBJECTS_H_

#include <ZQ7Standard/platform/print_picture.h>
#include <ZQ7Standard/platform/serial_port.h>

#include <memory>
#include <optional>
#include <string>

#include "com.h"

/// Objects of hosts that operations use: devices and pictures.
namespace ZQ7Windows {

/// The properties of an object of the host's, by name. Names are asked for by `IDispatchEx` first,
/// as objects of scripts may know theirs there alone. What fails raises the object's own error.
class HostObject {
 public:
  explicit HostObject(IDispatch* object) : object_(ComPtr<IDispatch>::Share(object)) {}

  bool Has(const std::wstring& name) const { return Find(name).has_value(); }
  void Get(const std::wstring& name, VARIANT& value) const;
  void Put(const std::wstring& name, VARIANT value) const;
  /// The default property; false if there is none.
  bool GetDefault(VARIANT& value) const;

 private:
  std::optional<DISPID> Find(const std::wstring& name) const;
  DISPID Need(const std::wstring& name) const;

  ComPtr<IDispatch> object_;
};

/// A host's communications control, which has the properties of `SerialPort`.
std::shared_ptr<ZQ7Standard::SerialPort> HostSerialPort(IDispatch* control);

/// A host's picture: one of the system's (StdPicture), or an object with `Width` and `Height` in
/// millimetres and either `Picture`, one of the system's, or `Handle`, that of a bitmap.
std::shared_ptr<ZQ7Standard::PrintPicture> HostPicture(IDispatch* picture);

}  // namespace ZQ7Windows

#endif  // ZQ7STANDARD_BINDINGS_WINDOWS_HOST_OBJECTS_H_
