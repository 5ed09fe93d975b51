#include "numbers/english_words.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "base/ascii.h"
#include "numbers/number_text.h"
#include "numbers/word_buffer.h"

namespace ZQ7Standard {
namespace {

// Each word includes the blank before it.
constexpr std::array<TextView, 20> kBelowTwenty = {
    u"",          u" one",     u" two",     u" three",     u" four",     u" five",    u" six",
    u" seven",    u" eight",   u" nine",    u" ten",       u" eleven",   u" twelve",  u" thirteen",
    u" fourteen", u" fifteen", u" sixteen", u" seventeen", u" eighteen", u" nineteen"};
constexpr std::array<TextView, 10> kTens = {u"",        u" ten",   u" twenty", u" thirty",
                                            u" forty",  u" fifty", u" sixty",  u" seventy",
                                            u" eighty", u" ninety"};
// By the number of three-digit groups that follow; "?" beyond the table.
constexpr std::array kScales = {Word(u""),         Word(u" thousand"), Word(u" million"),
                                Word(u" billion"), Word(u" trillion"), Word(u" ?")};

constexpr auto kHundreds = [] {
  std::array<Word, 10> words;
  for (std::size_t i = 1; i < words.size(); ++i) words[i] = Word(kBelowTwenty[i], u" hundred");
  return words;
}();

constexpr auto kBelowHundred = [] {
  std::array<Word, 100> words;
  for (std::size_t i = 0; i < words.size(); ++i) {
    words[i] = i < 20 ? Word(kBelowTwenty[i]) : Word(kTens[i / 10], kBelowTwenty[i % 10]);
  }
  return words;
}();

constexpr Word kNegative(u" negative");
constexpr Word kZero(u" zero");
constexpr Word kBaht(u" baht");
constexpr Word kAnd(u" and");
constexpr Word kSatang(u" satang");

/// Appends a number from 0 to 999; 0 has no words.
void AppendGroup(WordBuffer& words, int group) {
  words.Append(kHundreds[static_cast<std::size_t>(group / 100)]);
  words.Append(kBelowHundred[static_cast<std::size_t>(group % 100)]);
}

void AppendWhole(WordBuffer& words, const DecimalDigits& digits) {
  for (int group = (digits.WholeCount() - 1) / 3; group >= 0; --group) {
    const int value =
        digits.At(group * 3 + 2) * 100 + digits.At(group * 3 + 1) * 10 + digits.At(group * 3);
    if (value == 0) continue;
    AppendGroup(words, value);
    words.Append(kScales[std::min(static_cast<std::size_t>(group), kScales.size() - 1)]);
  }
}

}  // namespace

Text EnglishMoneyWords(double amount) {
  const auto number = ToDecimal(amount);
  if (!number) return {};
  const DecimalDigits digits(RoundDecimals(*number, 2));
  const int satang = digits.At(-1) * 10 + digits.At(-2);
  WordBuffer words;
  if (amount < 0) words.Append(kNegative);
  AppendWhole(words, digits);
  if (words.View().empty() && satang == 0) words.Append(kZero);
  // An amount below 1 keeps the blank before its unit.
  const std::size_t start = words.View().empty() ? 0 : 1;
  words.Append(kBaht);
  if (satang != 0) {
    words.Append(kAnd);
    AppendGroup(words, satang);
    words.Append(kSatang);
  }
  Text text(words.View().substr(start));
  text.front() = AsciiUpper(text.front());
  return text;
}

}  // namespace ZQ7Standard
