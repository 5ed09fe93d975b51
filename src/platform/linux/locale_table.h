#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_LOCALE_TABLE_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_LOCALE_TABLE_H_

#include <ZQ7Standard/platform/date_convention.h>

#include <string_view>

namespace ZQ7Standard {

/// The date convention of a locale by its name alone, such as "th_TH.UTF-8" or, as other systems
/// write it, "th-th": for locales that are not installed.
DateConvention ConventionByName(std::string_view locale);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_LOCALE_TABLE_H_
