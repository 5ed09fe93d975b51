#include "platform/linux/locale_table.h"

#include <algorithm>
#include <array>

namespace ZQ7Standard {
namespace {

constexpr std::array kLocalesOfNoLanguage = std::to_array<std::string_view>({"C", "POSIX"});

// Languages that write Buddhist years, the day first.
constexpr std::array kBuddhistLanguages = std::to_array<std::string_view>({"lo", "th"});

// Territories that write the month first, in any language.
constexpr std::array kMonthFirstTerritories = std::to_array<std::string_view>(
    {"AS", "FM", "GU", "MH", "MP", "PH", "PR", "PW", "UM", "US", "VI"});

// Languages that write the month or the year first, in any territory.
constexpr std::array kMonthFirstLanguages = std::to_array<std::string_view>(
    {"ak", "bem", "bo", "brx", "ce",  "chr", "cmn", "csb", "dz", "eo", "eu",  "fa",  "fil", "hak",
     "hu", "hy",  "iu", "ja",  "ka",  "kl",  "ko",  "ks",  "lt", "lv", "lzh", "mhr", "mn",  "mnw",
     "my", "nan", "ne", "ps",  "sah", "se",  "sgs", "shn", "si", "tl", "wae", "yue", "zh"});

// Languages that do so only in some territories.
constexpr std::array kMonthFirstPairs = std::to_array<std::string_view>(
    {"az_IR", "de_AT", "de_BE", "de_LU", "en_CA", "en_DK", "en_HK", "en_SE", "fr_CA", "sv_SE"});

/// A letter in lower case; "_" for "-", which other systems write.
constexpr char Canonical(char c) {
  if (c == '-') return '_';
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

bool IsSameName(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, Canonical, Canonical);
}

bool Holds(const auto& names, std::string_view name) {
  return std::ranges::any_of(names, [name](std::string_view n) { return IsSameName(n, name); });
}

}  // namespace

DateConvention ConventionByName(std::string_view locale) {
  const std::string_view pair = locale.substr(0, locale.find_first_of(".@"));
  const std::size_t underscore = std::min(pair.find_first_of("_-"), pair.size());
  const std::string_view language = pair.substr(0, underscore);
  const std::string_view territory = pair.substr(std::min(underscore + 1, pair.size()));
  if (language.empty() || Holds(kLocalesOfNoLanguage, language)) return {};
  if (Holds(kBuddhistLanguages, language)) return {FieldOrder::kDayFirst, Era::kBuddhist};
  const bool month_first = Holds(kMonthFirstTerritories, territory) ||
                           Holds(kMonthFirstLanguages, language) || Holds(kMonthFirstPairs, pair);
  return {month_first ? FieldOrder::kMonthFirst : FieldOrder::kDayFirst, Era::kGregorian};
}

}  // namespace ZQ7Standard
