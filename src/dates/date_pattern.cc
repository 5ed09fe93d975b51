#include "dates/date_pattern.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "base/ascii.h"
#include "base/raise.h"
#include "dates/date_math.h"

namespace ZQ7Standard {
namespace {

/// What a piece of a pattern begins with. Fields come first.
enum class Mark : unsigned char {
  kDay,
  kMonth,
  kYear,
  kBuddhistYear,
  kHour,
  kMinute,
  kSecond,
  kOther,
  kQuote,
  kBackslash,
  kLetterA,  // only in AM/PM
};

constexpr bool IsField(Mark mark) {
  return mark < Mark::kOther;
}

constexpr std::array<Mark, 128> MarkTable() {
  std::array<Mark, 128> table;
  table.fill(Mark::kOther);
  constexpr TextView kFields = u"dmybhns";
  for (std::size_t i = 0; i < kFields.size(); ++i) {
    table[kFields[i]] = table[AsciiUpper(kFields[i])] = static_cast<Mark>(i);
  }
  table[u'"'] = Mark::kQuote;
  table[u'\\'] = Mark::kBackslash;
  table[u'a'] = table[u'A'] = Mark::kLetterA;
  return table;
}

constexpr std::array kMarks = MarkTable();

constexpr TextView kMeridiem = u"AM/PM";

/// The mark of a piece that starts with `c`.
Mark MarkOf(char16_t c) {
  return c < kMarks.size() ? kMarks[c] : Mark::kOther;
}

std::size_t RunLength(TextView pattern, Mark mark) {
  std::size_t length = 1;
  while (length < pattern.size() && MarkOf(pattern[length]) == mark) ++length;
  return length;
}

/// The length of the first piece of a pattern that begins with `mark`: a run of one letter, AM/PM,
/// quoted text or an escaped character. 0 if the pattern ends inside it.
std::size_t MarkedLength(TextView pattern, Mark mark) {
  if (IsField(mark)) return RunLength(pattern, mark);
  if (mark == Mark::kBackslash) return pattern.size() > 1 ? 2 : 0;
  if (mark == Mark::kQuote) {
    const std::size_t end = pattern.find(u'"', 1);
    return end == TextView::npos ? 0 : end + 1;
  }
  const TextView front = pattern.substr(0, kMeridiem.size());
  return EqualsIgnoringAsciiCase(front, kMeridiem) ? kMeridiem.size() : 1;
}

/// Removes the first piece from a pattern that begins with `mark`; returns an empty one if the
/// pattern ends inside it.
TextView TakePiece(TextView& rest, Mark mark) {
  const TextView piece(rest.data(), mark == Mark::kOther ? 1 : MarkedLength(rest, mark));
  rest.remove_prefix(piece.size());
  return piece;
}

/// The first field in `rest`; `kOther` if there is none.
Mark FirstField(TextView rest) {
  while (!rest.empty()) {
    const Mark mark = MarkOf(rest.front());
    if (IsField(mark)) return mark;
    if (TakePiece(rest, mark).empty()) break;
  }
  return Mark::kOther;
}

bool HasMeridiem(TextView rest) {
  if (rest.find(u'/') == TextView::npos) return false;  // as in most patterns of a time of day
  while (!rest.empty()) {
    const Mark mark = MarkOf(rest.front());
    const TextView piece = TakePiece(rest, mark);
    if (piece.empty()) break;
    if (mark == Mark::kLetterA && piece.size() > 1) return true;
  }
  return false;
}

constexpr bool FitInto(std::size_t length, const auto&... names) {
  return (std::ranges::all_of(names, [&](TextView name) { return name.size() <= length; }) && ...);
}

// No piece writes more than 5/2 of its length, so the text is never longer.
static_assert(FitInto(4 * 5 / 2, kEnglishMonths, kEnglishDays, kThaiMonths, kThaiDays));
static_assert(FitInto(3 * 5 / 2, kEnglishShortMonths, kEnglishShortDays, kThaiShortMonths,
                      kThaiShortDays));

/// Writes pieces to a buffer that is long enough.
class PatternWriter {
 public:
  PatternWriter(OleDate date, const PatternDay& day, TextView pattern, char16_t* text)
      : date_(date), day_(day), pattern_(pattern), end_(text) {}

  /// Writes the text of a piece.
  void Write(Mark mark, TextView piece) {
    const std::size_t length = piece.size();
    switch (mark) {
      case Mark::kDay:
        return length <= 2 ? WriteNumber(DayOfMonth(), length) : WriteText(DayName(length > 3));
      case Mark::kMonth:
        return length <= 2 ? WriteNumber(Month(), length) : WriteText(MonthName(length > 3));
      case Mark::kYear:
        return WriteYear(day_.year, length);
      case Mark::kBuddhistYear:
        return WriteYear(day_.buddhist_year, length);
      case Mark::kHour:
        return WriteNumber(ShownHour(), length);
      case Mark::kMinute:
        return WriteNumber(Milliseconds() / 60000 % 60, length);
      case Mark::kSecond:
        return WriteNumber(Milliseconds() / 1000 % 60, length);
      case Mark::kLetterA:
        return length > 1 ? WriteMeridiem(piece) : WriteText(piece);
      case Mark::kQuote:
        return WriteText(piece.substr(1, length - 2));
      case Mark::kBackslash:
        return WriteText(piece.substr(1));
      case Mark::kOther:
        *end_++ = piece.front();
    }
  }

  /// One past the last character written.
  const char16_t* End() const { return end_; }

 private:
  void WriteText(TextView text) { end_ += text.copy(end_, text.size()); }

  void WriteMeridiem(TextView piece) {
    const bool morning = Hour() < 12;
    if (piece == u"am/pm") return WriteText(morning ? u"am" : u"pm");
    WriteText(morning ? u"AM" : u"PM");
  }

  /// An unwanted leading zero is overwritten: a branch on the number would cost more.
  void WriteNumber(int number, std::size_t width) {
    *end_ = static_cast<char16_t>(u'0' + number / 10);
    end_ += static_cast<int>(width > 1 || number > 9);
    *end_++ = static_cast<char16_t>(u'0' + number % 10);
  }

  void WriteYear(int year, std::size_t count) {
    if (count > 2) WriteNumber(year / 100, 2);
    WriteNumber(year % 100, 2);
  }

  int DayOfMonth() const { return static_cast<int>(static_cast<unsigned>(day_.civil.day())); }
  int Month() const { return static_cast<int>(static_cast<unsigned>(day_.civil.month())); }

  TextView MonthName(bool full) const {
    return MonthNamesIn(day_.language, full)[static_cast<std::size_t>(Month())];
  }

  TextView DayName(bool full) const {
    const std::chrono::weekday day{std::chrono::local_days(MeantDay(date_))};
    return DayNamesIn(day_.language, full)[day.c_encoding() + 1];
  }

  int Milliseconds() {
    if (milliseconds_ < 0) milliseconds_ = MillisecondsOfDay(date_);
    return milliseconds_;
  }

  int Hour() { return Milliseconds() / 3600000; }

  int ShownHour() {
    if (shown_hour_ < 0) shown_hour_ = HasMeridiem(pattern_) ? (Hour() + 11) % 12 + 1 : Hour();
    return shown_hour_;
  }

  OleDate date_;
  const PatternDay& day_;
  TextView pattern_;
  int milliseconds_ = -1;  // calculated on first use
  int shown_hour_ = -1;
  char16_t* end_;
};

}  // namespace

bool MayShowDay(TextView pattern) {
  return std::ranges::any_of(pattern, [](char16_t c) { return MarkOf(c) <= Mark::kBuddhistYear; });
}

Text FormatPattern(std::string_view operation, OleDate date, const PatternDay& day,
                   TextView pattern) {
  Text text(pattern.size() * 5 / 2, u'\0');
  PatternWriter writer(date, day, pattern, text.data());
  Mark before = Mark::kOther;  // the last field
  for (TextView rest = pattern; !rest.empty();) {
    const Mark mark = MarkOf(rest.front());
    const TextView piece = TakePiece(rest, mark);
    if (piece.empty()) Raise(Error::kInvalidArgument, {operation, "FormatText"}, pattern);
    const bool minutes = mark == Mark::kMonth && piece.size() <= 2 &&
                         (before == Mark::kHour || FirstField(rest) == Mark::kSecond);
    writer.Write(minutes ? Mark::kMinute : mark, piece);
    if (IsField(mark)) before = mark;
  }
  text.resize(static_cast<std::size_t>(writer.End() - text.data()));
  return text;
}

}  // namespace ZQ7Standard
