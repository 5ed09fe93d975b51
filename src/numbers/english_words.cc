#include "numbers/english_words.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "numbers/number_text.h"
#include "text/ascii.h"
#include "text/replace.h"

namespace ZQ7Standard {
namespace {

constexpr std::array<TextView, 20> kBelowTwenty = {
    u"",         u"One",     u"Two",     u"Three",     u"Four",     u"Five",    u"Six",
    u"Seven",    u"Eight",   u"Nine",    u"Ten",       u"Eleven",   u"Twelve",  u"Thirteen",
    u"Fourteen", u"Fifteen", u"Sixteen", u"Seventeen", u"Eighteen", u"Nineteen"};
// "Fourty" stands in the table and is put right in the finished text.
constexpr std::array<TextView, 10> kTens = {u"",      u"Ten",   u"Twenty",  u"Thirty", u"Fourty",
                                            u"Fifty", u"Sixty", u"Seventy", u"Eighty", u"Ninety"};
// By the number of three-digit groups that follow; "?" beyond the table.
constexpr std::array<TextView, 6> kScales = {u"",         u" Thousand", u" Million",
                                             u" Billion", u" Trillion", u" ?"};

void AppendWord(Text& text, TextView word) {
  if (word.empty()) return;
  if (!text.empty()) text.push_back(u' ');
  text.append(word);
}

/// Appends a number from 0 to 999; 0 has no words.
void AppendGroup(Text& text, int group) {
  const auto word = [](const auto& table, int index) {
    return table[static_cast<std::size_t>(index)];
  };
  if (group >= 100) {
    AppendWord(text, word(kBelowTwenty, group / 100));
    text.append(u" Hundred");
  }
  const int rest = group % 100;
  if (rest < 20) {
    AppendWord(text, word(kBelowTwenty, rest));
  } else {
    AppendWord(text, word(kTens, rest / 10));
    AppendWord(text, word(kBelowTwenty, rest % 10));
  }
}

void AppendWhole(Text& text, const DecimalDigits& digits) {
  for (int group = (digits.WholeCount() - 1) / 3; group >= 0; --group) {
    const int value =
        digits.At(group * 3 + 2) * 100 + digits.At(group * 3 + 1) * 10 + digits.At(group * 3);
    if (value == 0) continue;
    AppendGroup(text, value);
    text.append(kScales[std::min(static_cast<std::size_t>(group), kScales.size() - 1)]);
  }
}

}  // namespace

Text EnglishMoneyWords(double amount) {
  const auto number = ToDecimal(amount);
  if (!number) return {};
  const DecimalDigits digits(RoundDecimals(*number, 2));
  const int satang = digits.At(-1) * 10 + digits.At(-2);
  Text text;
  text.reserve(160);
  if (amount < 0) text.append(u"Negative");
  AppendWhole(text, digits);
  if (text.empty() && satang == 0) text.append(u"Zero");
  text.append(u" baht");
  if (satang != 0) {
    text.append(u" and");
    AppendGroup(text, satang);
    text.append(u" satang");
  }
  ReplaceAll(text, u"Fourty", u"Forty");
  std::ranges::transform(text, text.begin(), AsciiLower);
  text.front() = AsciiUpper(text.front());
  return text;
}

}  // namespace ZQ7Standard
