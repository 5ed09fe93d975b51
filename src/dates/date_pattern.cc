#include "dates/date_pattern.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

#include "dates/civil.h"
#include "text/ascii.h"

namespace ZQ7Standard {
namespace {

/// What a piece of a pattern begins with. The fields are first.
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
  kMeridiem,
};

constexpr bool IsField(Mark mark) {
  return mark < Mark::kOther;
}

constexpr std::array<Mark, 128> MarkTable() {
  std::array<Mark, 128> table;
  table.fill(Mark::kOther);
  constexpr std::string_view kFields = "dmybhns";
  for (std::size_t i = 0; i < kFields.size(); ++i) {
    const auto letter = static_cast<std::size_t>(kFields[i]);
    table[letter] = table[letter - 'a' + 'A'] = static_cast<Mark>(i);
  }
  table['"'] = Mark::kQuote;
  table['\\'] = Mark::kBackslash;
  table['a'] = table['A'] = Mark::kMeridiem;
  return table;
}

constexpr std::array kMarks = MarkTable();

constexpr TextView kMeridiem = u"AM/PM";

/// What `c` is at the start of a piece.
Mark MarkOf(char16_t c) {
  return c < kMarks.size() ? kMarks[c] : Mark::kOther;
}

std::size_t RunLength(TextView pattern, Mark mark) {
  std::size_t length = 1;
  while (length < pattern.size() && MarkOf(pattern[length]) == mark) ++length;
  return length;
}

/// The length of the first piece of a pattern: a run of one letter, AM/PM, quoted
/// text, an escaped character or any other. 0 if the pattern ends inside it.
std::size_t PieceLength(TextView pattern) {
  const Mark mark = MarkOf(pattern.front());
  if (IsField(mark)) return RunLength(pattern, mark);
  if (mark == Mark::kOther) return 1;
  if (mark == Mark::kBackslash) return pattern.size() > 1 ? 2 : 0;
  if (mark == Mark::kQuote) {
    const std::size_t end = pattern.find(u'"', 1);
    return end == TextView::npos ? 0 : end + 1;
  }
  const TextView front = pattern.substr(0, kMeridiem.size());
  return EqualsIgnoringAsciiCase(front, kMeridiem) ? kMeridiem.size() : 1;
}

/// Takes the first piece off `rest`; it is empty if the pattern ends inside it.
TextView TakePiece(TextView& rest) {
  const TextView piece = rest.substr(0, PieceLength(rest));
  rest.remove_prefix(piece.size());
  return piece;
}

/// The first field in `rest`; `kOther` if there is none.
Mark FirstField(TextView rest) {
  while (!rest.empty()) {
    const TextView piece = TakePiece(rest);
    if (piece.empty()) break;
    if (IsField(MarkOf(piece.front()))) return MarkOf(piece.front());
  }
  return Mark::kOther;
}

bool HasMeridiem(TextView rest) {
  if (rest.find(u'/') == TextView::npos) return false;  // so it is for most times of day
  while (!rest.empty()) {
    const TextView piece = TakePiece(rest);
    if (piece.empty()) break;
    if (EqualsIgnoringAsciiCase(piece, kMeridiem)) return true;
  }
  return false;
}

class PatternWriter {
 public:
  PatternWriter(OleDate date, TextView pattern, const std::function<PatternDay()>& day)
      : date_(date),
        pattern_(pattern),
        day_source_(day),
        text_(pattern.size() * 5 / 2, u'\0'),
        end_(text_.data()) {}

  /// Writes what a piece stands for.
  void Write(Mark mark, TextView piece) {
    const std::size_t length = piece.size();
    switch (mark) {
      case Mark::kDay:
        return length <= 2 ? WriteNumber(DayOfMonth(), length) : WriteText(DayName(length > 3));
      case Mark::kMonth:
        return length <= 2 ? WriteNumber(Month(), length) : WriteText(MonthName(length > 3));
      case Mark::kYear:
        return WriteYear(Day().year, length);
      case Mark::kBuddhistYear:
        return WriteYear(Day().buddhist_year, length);
      case Mark::kHour:
        return WriteNumber(ShownHour(), length);
      case Mark::kMinute:
        return WriteNumber(Milliseconds() / 60000 % 60, length);
      case Mark::kSecond:
        return WriteNumber(Milliseconds() / 1000 % 60, length);
      case Mark::kMeridiem:
        return length > 1 ? WriteMeridiem(piece) : WriteText(piece);
      case Mark::kQuote:
        return WriteText(piece.substr(1, length - 2));
      case Mark::kBackslash:
        return WriteText(piece.substr(1));
      case Mark::kOther:
        *end_++ = piece.front();
    }
  }

  Text Take() {
    text_.resize(static_cast<std::size_t>(end_ - text_.data()));
    return std::move(text_);
  }

 private:
  void WriteText(TextView text) { end_ += text.copy(end_, text.size()); }

  void WriteMeridiem(TextView piece) {
    const bool morning = Hour() < 12;
    if (piece == u"am/pm") return WriteText(morning ? u"am" : u"pm");
    WriteText(morning ? u"AM" : u"PM");
  }

  void WriteDigit(int digit) { *end_++ = static_cast<char16_t>(u'0' + digit); }

  void WriteNumber(int number, std::size_t width) {
    *end_ = static_cast<char16_t>(u'0' + number / 10);
    end_ += (width > 1) | (number > 9) ? 1 : 0;
    *end_++ = static_cast<char16_t>(u'0' + number % 10);
  }

  void WriteYear(int year, std::size_t count) {
    if (count > 2) WriteNumber(year / 100, 2);
    WriteNumber(year % 100, 2);
  }

  const PatternDay& Day() {
    if (!day_) day_ = day_source_();
    return *day_;
  }

  int DayOfMonth() { return static_cast<int>(static_cast<unsigned>(Day().day.day())); }
  int Month() { return static_cast<int>(static_cast<unsigned>(Day().day.month())); }

  TextView MonthName(bool full) {
    return MonthNamesIn(Day().language, full)[static_cast<std::size_t>(Month())];
  }

  TextView DayName(bool full) {
    const std::chrono::weekday day{std::chrono::local_days(MeantDay(date_))};
    return DayNamesIn(Day().language, full)[day.c_encoding() + 1];
  }

  int Milliseconds() {
    if (milliseconds_ < 0) milliseconds_ = MillisecondsOfDay(date_);
    return milliseconds_;
  }

  int Hour() { return Milliseconds() / 3600000; }

  int ShownHour() {
    if (!twelve_hours_) twelve_hours_ = HasMeridiem(pattern_);
    return *twelve_hours_ ? (Hour() + 11) % 12 + 1 : Hour();
  }

  OleDate date_;
  TextView pattern_;
  const std::function<PatternDay()>& day_source_;
  std::optional<PatternDay> day_;
  int milliseconds_ = -1;
  std::optional<bool> twelve_hours_;
  Text text_;
  char16_t* end_;
};

}  // namespace

std::optional<Text> FormatPattern(OleDate date, TextView pattern,
                                  const std::function<PatternDay()>& day) {
  PatternWriter writer(date, pattern, day);
  Mark before = Mark::kOther;  // the last field
  for (TextView rest = pattern; !rest.empty();) {
    const TextView piece = TakePiece(rest);
    if (piece.empty()) return std::nullopt;
    const Mark mark = MarkOf(piece.front());
    const bool minutes = mark == Mark::kMonth && piece.size() <= 2 &&
                         (before == Mark::kHour || FirstField(rest) == Mark::kSecond);
    writer.Write(minutes ? Mark::kMinute : mark, piece);
    if (IsField(mark)) before = mark;
  }
  return writer.Take();
}

}  // namespace ZQ7Standard
