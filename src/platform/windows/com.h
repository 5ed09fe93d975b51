#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_COM_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_COM_H_

#include <objbase.h>

#include <memory>

namespace ZQ7Standard {

/// COM on the calling thread while the object lives, in the apartment that the thread has, if it
/// has one. Interface pointers are released before it.
class ComOnThread {
 public:
  ComOnThread() : result_(CoInitializeEx(nullptr, COINIT_MULTITHREADED)) {}
  ComOnThread(const ComOnThread&) = delete;
  ComOnThread& operator=(const ComOnThread&) = delete;
  ~ComOnThread() {
    // It fails on a thread whose apartment is another one, which can be used as well.
    if (SUCCEEDED(result_)) CoUninitialize();
  }

 private:
  HRESULT result_;
};

struct ReleaseOf {
  void operator()(IUnknown* object) const { object->Release(); }
};

/// A reference to a COM object.
template <typename Interface>
using ComPointer = std::unique_ptr<Interface, ReleaseOf>;

/// Calls `get` with the address of a pointer to an interface, and returns what it put there; null
/// if it failed.
template <typename Interface>
ComPointer<Interface> GetCom(const auto& get) {
  Interface* object = nullptr;
  const HRESULT result = get(&object);
  return ComPointer<Interface>(SUCCEEDED(result) ? object : nullptr);
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_COM_H_
