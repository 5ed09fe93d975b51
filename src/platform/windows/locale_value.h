#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_LOCALE_VALUE_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_LOCALE_VALUE_H_

#include <windows.h>

#include <array>
#include <string_view>

namespace ZQ7Standard {

/// A setting of the user's locale, which may change while the program runs.
class LocaleValue {
 public:
  explicit LocaleValue(LCTYPE type) {
    const int size = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, type, text_.data(),
                                     static_cast<int>(text_.size()));
    size_ = size > 0 ? static_cast<std::size_t>(size) - 1 : 0;
  }

  std::wstring_view Text() const { return {text_.data(), size_}; }

 private:
  std::array<wchar_t, 80> text_;  // the longest setting, with its 0
  std::size_t size_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_LOCALE_VALUE_H_
