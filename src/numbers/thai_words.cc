#include "numbers/thai_words.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "numbers/number_text.h"
#include "text/replace.h"

namespace ZQ7Standard {
namespace {

constexpr std::array<TextView, 10> kDigits = {u"",   u"หนึ่ง", u"สอง", u"สาม", u"สี่",
                                              u"ห้า", u"หก",  u"เจ็ด", u"แปด", u"เก้า"};
constexpr TextView kFinalOne = u"เอ็ด";
constexpr TextView kTwoOfTens = u"ยี่";

// By place modulo 6, place 1 being the units: the words repeat with each
// million.
constexpr std::array<TextView, 6> kPlaces = {u"แสน", u"ล้าน", u"สิบ", u"ร้อย", u"พัน", u"หมื่น"};

constexpr int kFirstMillionPlace = 7;

/// Speaks the digits of one amount from the left.
class DigitSpeaker {
 public:
  explicit DigitSpeaker(Text& words) : words_(words) {}

  /// Appends the digit at a place, 1 for the units, and the place's name.
  void Speak(int digit, int place) {
    const int position = place % 6;
    if (digit != 0 && position != 1) one_is_final_ = true;
    words_.append(DigitWord(digit, position));
    // The first million is named even when its digit is 0; no later one is.
    const bool named = digit != 0 || place == kFirstMillionPlace;
    if (named && place != 1) words_.append(kPlaces[static_cast<std::size_t>(position)]);
  }

 private:
  TextView DigitWord(int digit, int position) {
    if (digit == 1 && position == 2) return {};
    if (digit == 2 && position == 2) return kTwoOfTens;
    if (digit == 1 && position == 1 && one_is_final_) {
      one_is_final_ = false;
      return kFinalOne;
    }
    return kDigits[static_cast<std::size_t>(digit)];
  }

  Text& words_;
  /// Whether a 1 at a units place is "เอ็ด": since a digit was spoken outside
  /// the units places, until that 1 comes. A 1 of the millions does not count,
  /// so 1000001 is "หนึ่งล้านหนึ่ง" and 10000001 is "สิบล้านเอ็ด".
  bool one_is_final_ = false;
};

}  // namespace

Text ThaiMoneyWords(double amount, TextView unit, TextView sub_unit) {
  if (amount == 0) return u"ศูนย์บาทถ้วน";
  const auto number = ToDecimal(amount);
  if (!number) return {};
  const DecimalDigits digits(RoundDecimals(*number, 2));
  constexpr std::size_t kLongestDigit = 10;
  const int count = digits.WholeCount() + 2;
  Text words;
  words.reserve(static_cast<std::size_t>(count) * kLongestDigit + unit.size() + sub_unit.size());
  DigitSpeaker speaker(words);
  for (int place = digits.WholeCount(); place >= 1; --place) {
    speaker.Speak(digits.At(place - 1), place);
  }
  if (amount >= 1) words.append(unit);
  if (std::trunc(amount) < amount) {
    speaker.Speak(digits.At(-1), 2);
    speaker.Speak(digits.At(-2), 1);
    words.append(sub_unit);
  } else {
    words.append(u"ถ้วน");
  }
  // A lone satang after whole baht is no final one.
  ReplaceAll(words, u"บาทเอ็ดสตางค์", u"บาทหนึ่งสตางค์");
  return words;
}

}  // namespace ZQ7Standard
