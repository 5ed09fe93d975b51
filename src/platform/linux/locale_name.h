#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_LOCALE_NAME_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_LOCALE_NAME_H_

#include <string_view>

namespace ZQ7Standard {

/// The locale that the environment names, and the folder of locales that LOCPATH
/// names, which decides what that locale is.
struct LocaleName {
  std::string_view locale;
  std::string_view folder;
};

/// The first of LC_ALL, LC_TIME and LANG that is not empty, and LOCPATH. The views last
/// until the environment changes.
LocaleName LocaleNameFromEnvironment();

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_LOCALE_NAME_H_
