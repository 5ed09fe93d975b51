#include "dates/date_text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

#include "base/ascii.h"
#include "dates/date_math.h"
#include "dates/eras.h"
#include "dates/name_tables.h"

namespace ZQ7Standard {
namespace {

struct Name {
  TextView text;
  int number;
};

// Correct spellings that the library's own tables lack.
constexpr std::array<Name, 2> kMoreMonths = {{{u"February", 2}, {u"กรกฎาคม", 7}}};
constexpr std::array<Name, 3> kMoreDays = {{{u"Thursday", 5}, {u"พฤหัสบดี", 5}, {u"อา.", 1}}};

template <std::size_t kTables, std::size_t kSize, std::size_t kMore>
constexpr auto NameList(const std::array<std::array<TextView, kSize>, kTables>& tables,
                        const std::array<Name, kMore>& more) {
  std::array<Name, kTables*(kSize - 1) + kMore> names{};
  std::size_t count = 0;
  for (const auto& table : tables) {
    for (std::size_t i = 1; i < kSize; ++i) names[count++] = {table[i], static_cast<int>(i)};
  }
  for (const Name& name : more) names[count++] = name;
  return names;
}

constexpr auto kMonths = NameList<4, 13>(
    {kEnglishMonths, kEnglishShortMonths, kThaiMonths, kThaiShortMonths}, kMoreMonths);
constexpr auto kDays =
    NameList<4, 8>({kEnglishDays, kEnglishShortDays, kThaiDays, kThaiShortDays}, kMoreDays);
constexpr std::array<Name, 2> kMeridiems = {{{u"AM", 0}, {u"PM", 12}}};

/// Reads a text from the front; each Take consumes one item, or leaves the text unchanged.
class Scanner {
 public:
  explicit Scanner(TextView rest) : rest_(rest) {}

  bool AtEnd() const { return rest_.empty(); }

  bool SkipBlanks() {
    const std::size_t blanks = std::min(rest_.find_first_not_of(u' '), rest_.size());
    rest_.remove_prefix(blanks);
    return blanks > 0;
  }

  bool Take(char16_t c) {
    if (!rest_.starts_with(c)) return false;
    rest_.remove_prefix(1);
    return true;
  }

  /// The text up to the first character that is not a digit.
  TextView TakeDigits() {
    const auto end = std::ranges::find_if_not(rest_, IsAsciiDigit);
    const TextView digits(rest_.begin(), end);
    rest_.remove_prefix(digits.size());
    return digits;
  }

  /// The number of the longest name at the front, ignoring case. A letter may not follow an English
  /// name.
  std::optional<int> TakeName(std::span<const Name> names) {
    const Name* longest = nullptr;
    for (const Name& name : names) {
      if (!EqualsIgnoringAsciiCase(rest_.substr(0, name.text.size()), name.text)) continue;
      if (!longest || name.text.size() > longest->text.size()) longest = &name;
    }
    if (!longest) return std::nullopt;
    const TextView after = rest_.substr(longest->text.size());
    if (IsAsciiLetter(longest->text.back()) && !after.empty() && IsAsciiLetter(after.front())) {
      return std::nullopt;
    }
    rest_ = after;
    return longest->number;
  }

 private:
  TextView rest_;
};

/// A typed number. `value` is at most 100000, which is beyond every year.
struct Number {
  int value;
  std::size_t digits;
};

std::optional<Number> TakeNumber(Scanner& scanner) {
  const TextView digits = scanner.TakeDigits();
  if (digits.empty()) return std::nullopt;
  int value = 0;
  for (const char16_t digit : digits) value = std::min(value * 10 + (digit - u'0'), 100000);
  return Number{value, digits.size()};
}

/// Takes "9:30", "9:30:15", either with AM or PM, or "9 PM": a fraction of a day. On failure the
/// scanner's position is unspecified.
std::optional<double> TakeTime(Scanner& scanner) {
  const auto hour = TakeNumber(scanner);
  if (!hour || hour->digits > 2) return std::nullopt;
  std::array<int, 2> minute_second = {0, 0};
  bool colon = false;
  for (int& field : minute_second) {
    scanner.SkipBlanks();
    if (!scanner.Take(u':')) break;
    colon = true;
    scanner.SkipBlanks();
    const auto number = TakeNumber(scanner);
    if (!number || number->digits != 2 || number->value > 59) return std::nullopt;
    field = number->value;
  }
  scanner.SkipBlanks();
  const auto meridiem = scanner.TakeName(kMeridiems);
  if (!colon && !meridiem) return std::nullopt;
  if (hour->value > (meridiem ? 12 : 23)) return std::nullopt;
  const int hours = meridiem ? hour->value % 12 + *meridiem : hour->value;
  return (hours * 3600 + minute_second[0] * 60 + minute_second[1]) / 86400.0;
}

/// Whether a time is at the front, judging by its first number.
bool StartsTime(Scanner scanner) {
  scanner.TakeDigits();
  scanner.SkipBlanks();
  return scanner.Take(u':') || scanner.TakeName(kMeridiems);
}

/// One of up to three fields of a date: a number or a month's name, and the mark between it and the
/// previous field, u' ' for blanks alone, 0 for nothing.
struct Field {
  char16_t mark = 0;
  std::optional<int> month_name;
  Number number = {0, 0};
};

struct Fields {
  std::array<Field, 3> list;
  std::size_t count = 0;
};

char16_t TakeMark(Scanner& scanner) {
  const bool blank = scanner.SkipBlanks();
  for (const char16_t mark : TextView(u"/-.,")) {
    if (!scanner.Take(mark)) continue;
    scanner.SkipBlanks();
    return mark;
  }
  return blank ? u' ' : u'\0';
}

Fields TakeFields(Scanner& scanner) {
  Fields fields;
  for (Field& field : fields.list) {
    Scanner ahead = scanner;
    if (fields.count > 0) field.mark = TakeMark(ahead);
    if (StartsTime(ahead)) break;
    if (const auto number = TakeNumber(ahead)) {
      field.number = *number;
    } else if (!(field.month_name = ahead.TakeName(kMonths))) {
      break;
    }
    scanner = ahead;
    ++fields.count;
  }
  return fields;
}

bool IsYear(Number number) {
  return number.digits >= 3;
}

std::optional<OleDate> EraDate(Number year, int month, Number day, Era era) {
  if (IsYear(day)) return std::nullopt;
  const int full_year = IsYear(year) ? year.value : CompletedYear(year.value, era);
  return DateFromParts(full_year - EraDifference(era), month, day.value);
}

/// Combines fields into a date.
class FieldReader {
 public:
  FieldReader(const Fields& fields, DateConvention convention, int this_year)
      : a_(fields.list[0]),
        b_(fields.list[1]),
        c_(fields.list[2]),
        count_(fields.count),
        convention_(convention),
        this_year_(this_year) {}

  std::optional<OleDate> Read() const {
    if (count_ == 2) return ReadTwo();
    if (count_ < 3 || c_.month_name || (a_.month_name && b_.month_name)) return std::nullopt;
    if (a_.month_name) return ReadMonthFirst();
    if (b_.month_name) return ReadMonthInside();
    return ReadNumeric();
  }

 private:
  static bool IsMark(const Field& field, TextView marks) {
    return marks.find(field.mark) != TextView::npos;
  }

  static constexpr TextView kNumericMarks = u"/-. ";
  static constexpr TextView kNameMarks{u"/- \0", 4};
  static constexpr TextView kYearMarks = u"/- ,";

  std::optional<OleDate> Date(Number year, int month, Number day) const {
    return EraDate(year, month, day, convention_.era);
  }

  /// January 15, 2013
  std::optional<OleDate> ReadMonthFirst() const {
    if (!IsMark(b_, kNameMarks) || !IsMark(c_, kYearMarks)) return std::nullopt;
    return Date(c_.number, *a_.month_name, b_.number);
  }

  /// 15 January 2013, 2013 January 15
  std::optional<OleDate> ReadMonthInside() const {
    if (!IsMark(b_, kNameMarks) || !IsMark(c_, kNameMarks)) return std::nullopt;
    return IsYear(a_.number) ? Date(a_.number, *b_.month_name, c_.number)
                             : Date(c_.number, *b_.month_name, a_.number);
  }

  /// 2013/1/15, or the convention's order, or the other order if only that is a date and the year
  /// has four digits.
  std::optional<OleDate> ReadNumeric() const {
    if (!IsMark(b_, kNumericMarks) || !IsMark(c_, kNumericMarks)) return std::nullopt;
    // "15/3 2560" is a day and month followed by something else, not a date.
    if ((b_.mark == u'/') != (c_.mark == u'/')) return std::nullopt;
    if (IsYear(b_.number)) return std::nullopt;
    if (IsYear(a_.number)) return Date(a_.number, b_.number.value, c_.number);
    const bool day_first = convention_.order == FieldOrder::kDayFirst;
    const Number day = day_first ? a_.number : b_.number;
    const Number month = day_first ? b_.number : a_.number;
    auto date = Date(c_.number, month.value, day);
    if (!date && c_.number.digits == 4) date = Date(c_.number, day.value, month);
    return date;
  }

  /// A month and a year, or a month and a day of this year.
  std::optional<OleDate> ReadTwo() const {
    if (a_.month_name && b_.month_name) return std::nullopt;
    if (a_.month_name || b_.month_name) {
      if (!IsMark(b_, kNameMarks)) return std::nullopt;
      return a_.month_name ? MonthAnd(*a_.month_name, b_.number)
                           : MonthAnd(*b_.month_name, a_.number);
    }
    if (!IsMark(b_, u"/-")) return std::nullopt;
    if (IsYear(a_.number))
      return IsYear(b_.number) ? std::nullopt : MonthAnd(b_.number.value, a_.number);
    if (IsYear(b_.number)) return MonthAnd(a_.number.value, b_.number);
    return convention_.order == FieldOrder::kDayFirst ? MonthAnd(b_.number.value, a_.number)
                                                      : MonthAnd(a_.number.value, b_.number);
  }

  std::optional<OleDate> MonthAnd(int month, Number number) const {
    if (IsYear(number)) return Date(number, month, {1, 1});
    return DateFromParts(this_year_, month, number.value);
  }

  const Field& a_;
  const Field& b_;
  const Field& c_;
  std::size_t count_;
  DateConvention convention_;
  int this_year_;
};

/// Takes a weekday and the comma or blank after it. The weekday is not checked against the date.
bool TakeWeekday(Scanner& scanner) {
  Scanner ahead = scanner;
  if (!ahead.TakeName(kDays)) return false;
  const char16_t mark = TakeMark(ahead);
  if (mark != u' ' && mark != u',') return false;
  scanner = ahead;
  return true;
}

std::optional<OleDate> TakeDate(Scanner& scanner, DateConvention convention, int this_year) {
  const bool weekday = TakeWeekday(scanner);
  const Fields fields = TakeFields(scanner);
  const bool named = fields.list[0].month_name || fields.list[1].month_name;
  if (weekday && !(named && fields.count == 3)) return std::nullopt;
  return FieldReader(fields, convention, this_year).Read();
}

}  // namespace

std::optional<OleDate> ReadDateText(TextView text, DateConvention convention, int this_year) {
  Scanner scanner(text);
  scanner.SkipBlanks();
  std::optional<OleDate> date = OleDate();
  if (!StartsTime(scanner)) {
    date = TakeDate(scanner, convention, this_year);
    const bool blank = scanner.SkipBlanks();
    if (!date || scanner.AtEnd()) return date;
    if (!scanner.Take(u'T') && !scanner.Take(u't') && !blank) return std::nullopt;
    scanner.SkipBlanks();
  }
  const auto time = TakeTime(scanner);
  scanner.SkipBlanks();
  if (!time || !scanner.AtEnd()) return std::nullopt;
  return AtTime(*date, *time);
}

std::optional<OleDate> DateInEra(int month, int day, int year, Era era) {
  if (year < 0) return std::nullopt;
  const std::size_t digits = year < 100 ? 2 : 4;
  return EraDate({year, digits}, month, {day, 2}, era);
}

}  // namespace ZQ7Standard
