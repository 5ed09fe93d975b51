#ifndef ZQ7STANDARD_SRC_AUTOMATION_ENUMERATIONS_H_
#define ZQ7STANDARD_SRC_AUTOMATION_ENUMERATIONS_H_

#include <ZQ7Standard/CImageInfo.h>
#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/automation/catalogue.h>
#include <ZQ7Standard/platform/registry.h>

#include <algorithm>
#include <array>

namespace ZQ7Standard::Automation {

/// The members of an enumeration that operations take, in the order of their values.
template <typename Enumeration>
struct EnumeratorsOf;

template <>
struct EnumeratorsOf<CTDateType> {
  static constexpr std::string_view kName = "CTDateType";
  static constexpr auto kMembers = std::to_array<EnumeratorInfo>({
      {"ZQ7Detect", ZQ7Detect},
      {"ZQ7MDYYYY", ZQ7MDYYYY},
      {"ZQ7DMYYYY", ZQ7DMYYYY},
      {"ZQ7MDBBBB", ZQ7MDBBBB},
      {"ZQ7DMBBBB", ZQ7DMBBBB},
      {"ZQ7YYYYMD", ZQ7YYYYMD},
      {"ZQ7BBBBMD", ZQ7BBBBMD},
      {"ZQ7DMMBBBB", ZQ7DMMBBBB},
      {"ZQ7DMMMBBBB", ZQ7DMMMBBBB},
      {"ZQ7DMMYYYY", ZQ7DMMYYYY},
      {"ZQ7DMMMYYYY", ZQ7DMMMYYYY},
      {"ZQ7YYYY_MM_DD", ZQ7YYYY_MM_DD},
      {"ZQ7MMMD_YYYY", ZQ7MMMD_YYYY},
      {"ZQ7MMMYYYY", ZQ7MMMYYYY},
      {"ZQ7D_D_M_M_Y_Y_Y_Y", ZQ7D_D_M_M_Y_Y_Y_Y},
      {"ZQ7D_D_M_M_B_B_B_B", ZQ7D_D_M_M_B_B_B_B},
  });
};

template <>
struct EnumeratorsOf<eImageType> {
  static constexpr std::string_view kName = "eImageType";
  static constexpr auto kMembers = std::to_array<EnumeratorInfo>({
      {"itUNKNOWN", itUNKNOWN},
      {"itGIF", itGIF},
      {"itJPEG", itJPEG},
      {"itPNG", itPNG},
      {"itBMP", itBMP},
  });
};

template <>
struct EnumeratorsOf<KetRootType> {
  static constexpr std::string_view kName = "KetRootType";
  static constexpr auto kMembers = std::to_array<EnumeratorInfo>({
      {"HKEY_CLASSES_ROOT", HKEY_CLASSES_ROOT},
      {"HKEY_CURRENT_USER", HKEY_CURRENT_USER},
      {"HKEY_LOCAL_MACHINE", HKEY_LOCAL_MACHINE},
      {"HKEY_USERS", HKEY_USERS},
      {"HKEY_PERFORMANCE_DATA", HKEY_PERFORMANCE_DATA},
  });
};

template <>
struct EnumeratorsOf<ZQ7ConditionType> {
  static constexpr std::string_view kName = "ZQ7ConditionType";
  static constexpr auto kMembers = std::to_array<EnumeratorInfo>({
      {"ZQ7AfterInvoiceDate", ZQ7AfterInvoiceDate},
      {"ZQ7AfterDeliveryDate", ZQ7AfterDeliveryDate},
      {"ZQ7AfterBLDate", ZQ7AfterBLDate},
      {"ZQ7AfterReceiveOSDOC", ZQ7AfterReceiveOSDOC},
      {"ZQ7AfterEndOfInvoiceMonth", ZQ7AfterEndOfInvoiceMonth},
      {"ZQ7AfterEndOfDeliveryMonth", ZQ7AfterEndOfDeliveryMonth},
      {"ZQ7AfterEndOfBLMonth", ZQ7AfterEndOfBLMonth},
      {"ZQ7AfterEndOfReceiveOSDOCMonth", ZQ7AfterEndOfReceiveOSDOCMonth},
      {"ZQ7AfterEndOfSPTMonth", ZQ7AfterEndOfSPTMonth},
  });
};

template <>
struct EnumeratorsOf<ZQ7ConditionOutputType> {
  static constexpr std::string_view kName = "ZQ7ConditionOutputType";
  static constexpr auto kMembers = std::to_array<EnumeratorInfo>({
      {"ZQ7ConditionOutputTypeShort", ZQ7ConditionOutputTypeShort},
      {"ZQ7ConditionOutputTypeFull", ZQ7ConditionOutputTypeFull},
  });
};

template <>
struct EnumeratorsOf<ZQ7FixUnit> {
  static constexpr std::string_view kName = "ZQ7FixUnit";
  static constexpr auto kMembers = std::to_array<EnumeratorInfo>({
      {"ZQ7FixUnitNone", ZQ7FixUnitNone},
      {"ZQ7FixUnitFiveUp", ZQ7FixUnitFiveUp},
      {"ZQ7FixUnitAllUp", ZQ7FixUnitAllUp},
      {"ZQ7FixUnitAllDown", ZQ7FixUnitAllDown},
  });
};

template <>
struct EnumeratorsOf<ZQ7CompareMethod> {
  static constexpr std::string_view kName = "ZQ7CompareMethod";
  static constexpr auto kMembers = std::to_array<EnumeratorInfo>({
      {"ZQ7CompareBinary", ZQ7CompareBinary},
      {"ZQ7CompareText", ZQ7CompareText},
  });
};

template <typename Enumeration>
inline constexpr EnumerationInfo kInfoOf = {EnumeratorsOf<Enumeration>::kName,
                                            EnumeratorsOf<Enumeration>::kMembers};

inline constexpr std::array kEnumerations = {kInfoOf<CTDateType>,
                                             kInfoOf<eImageType>,
                                             kInfoOf<KetRootType>,
                                             kInfoOf<ZQ7ConditionType>,
                                             kInfoOf<ZQ7ConditionOutputType>,
                                             kInfoOf<ZQ7FixUnit>,
                                             kInfoOf<ZQ7CompareMethod>};

template <typename Enumeration>
const EnumerationInfo* EnumerationOf() {
  return std::ranges::find(kEnumerations, EnumeratorsOf<Enumeration>::kName,
                           &EnumerationInfo::name);
}

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_SRC_AUTOMATION_ENUMERATIONS_H_
