#ifndef ZQ7STANDARD_SRC_DATES_NAME_TABLES_H_
#define ZQ7STANDARD_SRC_DATES_NAME_TABLES_H_

#include <ZQ7Standard/Types.h>

#include <array>

namespace ZQ7Standard {

/// Names by number; element 0 is empty, so that 1 = January, 1 = Sunday.
using MonthNames = std::array<TextView, 13>;
using DayNames = std::array<TextView, 8>;

enum class Language { kEnglish, kThai };

// These are the texts that hosts print and store; "Febuary", "Thusday", "กรกฏาคม" and the short
// Sunday without a "." are among them and must stay.
inline constexpr MonthNames kThaiMonths = {
    u"",        u"มกราคม", u"กุมภาพันธ์", u"มีนาคม", u"เมษายน",   u"พฤษภาคม", u"มิถุนายน",
    u"กรกฏาคม", u"สิงหาคม", u"กันยายน",  u"ตุลาคม", u"พฤศจิกายน", u"ธันวาคม"};
inline constexpr MonthNames kThaiShortMonths = {u"",     u"ม.ค.", u"ก.พ.", u"มี.ค.", u"เม.ย.",
                                                u"พ.ค.", u"มิ.ย.", u"ก.ค.", u"ส.ค.", u"ก.ย.",
                                                u"ต.ค.", u"พ.ย.", u"ธ.ค."};
inline constexpr MonthNames kEnglishMonths = {
    u"",     u"January", u"Febuary",   u"March",   u"April",    u"May",     u"June",
    u"July", u"August",  u"September", u"October", u"November", u"December"};
inline constexpr MonthNames kEnglishShortMonths = {u"",    u"Jan", u"Feb", u"Mar", u"Apr",
                                                   u"May", u"Jun", u"Jul", u"Aug", u"Sep",
                                                   u"Oct", u"Nov", u"Dec"};

inline constexpr DayNames kThaiDays = {u"",   u"อาทิตย์", u"จันทร์", u"อังคาร",
                                       u"พุธ", u"พฤหัส",  u"ศุกร์",  u"เสาร์"};
inline constexpr DayNames kThaiShortDays = {u"", u"อา", u"จ.", u"อ.", u"พ.", u"พฤ.", u"ศ.", u"ส."};
inline constexpr DayNames kEnglishDays = {u"",          u"Sunday",  u"Monday", u"Tuesday",
                                          u"Wednesday", u"Thusday", u"Friday", u"Saturday"};
inline constexpr DayNames kEnglishShortDays = {u"",    u"Sun", u"Mon", u"Tue",
                                               u"Wed", u"Thu", u"Fri", u"Sat"};

constexpr const MonthNames& MonthNamesIn(Language language, bool full) {
  if (language == Language::kThai) return full ? kThaiMonths : kThaiShortMonths;
  return full ? kEnglishMonths : kEnglishShortMonths;
}

constexpr const DayNames& DayNamesIn(Language language, bool full) {
  if (language == Language::kThai) return full ? kThaiDays : kThaiShortDays;
  return full ? kEnglishDays : kEnglishShortDays;
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_DATES_NAME_TABLES_H_
