#ifndef ZQ7STANDARD_SRC_AUTOMATION_ENUMERATIONS_H_
#define ZQ7STANDARD_SRC_AUTOMATION_ENUMERATIONS_H_

#include <ZQ7Standard/Enumerations.h>

#include <string_view>

namespace ZQ7Standard::Automation {

/// The name in the catalogue of an enumeration that operations take or return.
template <typename Enumeration>
inline constexpr std::string_view kEnumerationName = {};
template <>
inline constexpr std::string_view kEnumerationName<CTDateType> = "CTDateType";
template <>
inline constexpr std::string_view kEnumerationName<eImageType> = "eImageType";
template <>
inline constexpr std::string_view kEnumerationName<KetRootType> = "KetRootType";
template <>
inline constexpr std::string_view kEnumerationName<VirtualFolder> = "VirtualFolder";
template <>
inline constexpr std::string_view kEnumerationName<ZQ7ConditionType> = "ZQ7ConditionType";
template <>
inline constexpr std::string_view kEnumerationName<ZQ7ConditionOutputType> =
    "ZQ7ConditionOutputType";
template <>
inline constexpr std::string_view kEnumerationName<ZQ7ConnectionSecurity> = "ZQ7ConnectionSecurity";
template <>
inline constexpr std::string_view kEnumerationName<ZQ7FixUnit> = "ZQ7FixUnit";
template <>
inline constexpr std::string_view kEnumerationName<ZQ7CompareMethod> = "ZQ7CompareMethod";

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_SRC_AUTOMATION_ENUMERATIONS_H_
