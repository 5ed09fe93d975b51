#include "numbers/thai_words.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "base/replace.h"
#include "numbers/number_text.h"
#include "numbers/word_buffer.h"

namespace ZQ7Standard {
namespace {

constexpr std::array<TextView, 10> kDigits = {u"",   u"หนึ่ง", u"สอง", u"สาม", u"สี่",
                                              u"ห้า", u"หก",  u"เจ็ด", u"แปด", u"เก้า"};
constexpr TextView kFinalOne = u"เอ็ด";
constexpr TextView kTwoOfTens = u"ยี่";

// By place modulo 6, place 1 being the units: the words repeat every six places.
constexpr std::array<TextView, 6> kPlaces = {u"แสน", u"ล้าน", u"สิบ", u"ร้อย", u"พัน", u"หมื่น"};
constexpr int kUnits = 1;
constexpr int kTens = 2;

constexpr int kFirstMillionPlace = 7;
constexpr Word kMillion(kPlaces[kUnits]);

// The columns are the digits 0 to 9 and a final 1.
constexpr std::size_t kFinalOneColumn = 10;
using SpokenDigits = std::array<Word, 11>;

constexpr TextView DigitWord(std::size_t digit, std::size_t position) {
  if (digit == kFinalOneColumn) return kFinalOne;
  if (digit == 1 && position == kTens) return {};
  if (digit == 2 && position == kTens) return kTwoOfTens;
  return kDigits[digit];
}

/// The digits with the name of their place; 0 has no words.
constexpr SpokenDigits SpokenAt(std::size_t position, TextView place) {
  SpokenDigits words;
  for (std::size_t digit = 1; digit < words.size(); ++digit) {
    words[digit] = Word(DigitWord(digit, position), place);
  }
  return words;
}

constexpr auto kSpoken = [] {
  std::array<SpokenDigits, kPlaces.size()> table;
  for (std::size_t i = 0; i < table.size(); ++i) table[i] = SpokenAt(i, kPlaces[i]);
  return table;
}();
constexpr SpokenDigits kSpokenUnits = SpokenAt(kUnits, {});

/// Speaks the digits of one amount from the left.
class DigitSpeaker {
 public:
  explicit DigitSpeaker(WordBuffer& words) : words_(words) {}

  /// Appends the digit at a place, 1 for the units, and the place's name.
  void Speak(int digit, int place) {
    if (digit == 0) {
      // The first million is named even when its digit is 0; no later one is.
      if (place == kFirstMillionPlace) words_.Append(kMillion);
      return;
    }
    const int position = place % static_cast<int>(kPlaces.size());
    const auto& spoken = place == 1 ? kSpokenUnits : kSpoken[static_cast<std::size_t>(position)];
    const bool final_one = digit == 1 && position == kUnits && one_is_final_;
    if (position != kUnits) one_is_final_ = true;
    if (final_one) one_is_final_ = false;
    words_.Append(spoken[final_one ? kFinalOneColumn : static_cast<std::size_t>(digit)]);
  }

 private:
  WordBuffer& words_;
  /// Whether a 1 in a units place is read "เอ็ด": set when a digit outside the units places is
  /// spoken, cleared by such a 1. A 1 in the millions does not set it, so 1000001 is
  /// "หนึ่งล้านหนึ่ง" and 10000001 is "สิบล้านเอ็ด".
  bool one_is_final_ = false;
};

constexpr TextView kBaht = u"บาท";

}  // namespace

Text ThaiMoneyWords(double amount, TextView unit, TextView sub_unit) {
  if (amount == 0) return u"ศูนย์บาทถ้วน";
  const auto number = ToDecimal(amount);
  if (!number) return {};
  const DecimalDigits digits(RoundDecimals(*number, 2));
  WordBuffer spoken;
  DigitSpeaker speaker(spoken);
  for (int place = digits.WholeCount(); place >= 1; --place) {
    speaker.Speak(digits.At(place - 1), place);
  }
  const std::size_t whole_size = spoken.View().size();
  const bool has_fraction = std::trunc(amount) < amount;
  if (has_fraction) {
    speaker.Speak(digits.At(-1), 2);
    speaker.Speak(digits.At(-2), 1);
  }
  const TextView end = has_fraction ? sub_unit : u"ถ้วน";
  Text words;
  words.reserve(spoken.View().size() + unit.size() + end.size() + 1);  // a lone satang grows
  words.append(spoken.View(), 0, whole_size);
  if (amount >= 1) words.append(unit);
  words.append(spoken.View(), whole_size).append(end);
  // A lone satang after whole baht is not a final 1. No other amount can have these words, unless
  // they are the host's unit.
  const bool lone_satang = digits.At(-1) == 0 && digits.At(-2) == 1;
  if (lone_satang || unit != kBaht) ReplaceAll(words, u"บาทเอ็ดสตางค์", u"บาทหนึ่งสตางค์");
  return words;
}

}  // namespace ZQ7Standard
