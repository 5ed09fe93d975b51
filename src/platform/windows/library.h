#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_LIBRARY_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_LIBRARY_H_

#include <windows.h>

#include <memory>

namespace ZQ7Standard {

/// A library of the system that few programs need, loaded when it is used.
class SystemLibrary {
 public:
  /// No file of that name beside the program is taken for it.
  explicit SystemLibrary(const wchar_t* name)
      : library_(LoadLibraryExW(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32)) {}

  /// The function of that name; null if the library is not there, or has none.
  template <typename Function>
  Function* Find(const char* name) const {
    if (!library_) return nullptr;
    return reinterpret_cast<Function*>(
        reinterpret_cast<void*>(GetProcAddress(library_.get(), name)));
  }

 private:
  struct Free {
    using pointer = HMODULE;
    void operator()(HMODULE library) const { FreeLibrary(library); }
  };
  std::unique_ptr<HMODULE, Free> library_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_LIBRARY_H_
