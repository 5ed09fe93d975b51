#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_LOCALE_NAME_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_LOCALE_NAME_H_

#include <string_view>

namespace ZQ7Standard {

/// The environment's locale, and the locale folder named by LOCPATH, which decides what that locale
/// is.
struct LocaleName {
  std::string_view locale;
  std::string_view folder;
};

/// The first of LC_ALL, LC_TIME and LANG that is not empty, and LOCPATH. The views last
/// until the environment changes.
LocaleName LocaleNameFromEnvironment();

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_LOCALE_NAME_H_
