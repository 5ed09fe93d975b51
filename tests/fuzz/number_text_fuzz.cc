// Any text reads as a number, and any number survives its shortest text. Any text is a price code
// or is refused, and any price survives its code.

#include <ZQ7Standard/RunTimeError.h>

#include <charconv>
#include <cmath>

#include "numbers/number_text.h"
#include "tests/fuzz/check.h"
#include "tests/support/fakes.h"

using namespace ZQ7Standard;

/// The price of a code; infinity if it is refused.
static double ReadCode(const StandardObject& object, TextView code) {
  try {
    return object.DeFormatCostCode2(code, u"BLACKHORSE", u"X");
  } catch (const RunTimeError& error) {
    Check(error.Number() == 13 || error.Number() == 6);
    return HUGE_VAL;
  }
}

/// Encodes and decodes the price with two words, of which `word` may be invalid.
static void CheckPrice(const StandardObject& object, double price, const Text& word) {
  const double rounded = object.FixNumber(price, 2);
  if (std::abs(rounded) >= 1e15) return;
  Check(ReadCode(object, object.FormatCostCode2(price, u"BLACKHORSE", u"X")) == rounded);
  Check(ReadCode(object, object.FormatCostCode(price, u"BLACKHORSE")) == rounded);
  try {
    const Text code = object.FormatCostCode(price, word);
    Check(object.DeFormatCostCode(code, word) == rounded);
  } catch (const RunTimeError& error) {
    Check(error.Number() == 5);
  }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const StandardObject object = ObjectWith(kMdy);
  const Text text = FuzzText(data, size);
  const double value = object.StrVal(text);
  Check(std::isfinite(value));
  const Decimal decimal = *ToDecimal(value);
  Check(ReadLeadingNumber(ShortestText(decimal)) == ToDouble(decimal));
  const double rounded = object.FixNumber(value, 2);
  Check(object.FixNumber(rounded, 2) == rounded);
  CheckPrice(object, value, text.substr(0, 10));
  const double price = ReadCode(object, text);
  if (std::isfinite(price)) CheckPrice(object, price, text);

  // Plain ASCII digits read as in the standard library.
  const std::string ascii = Utf8(text);
  double expected = 0;
  const auto end = std::from_chars(ascii.data(), ascii.data() + ascii.size(), expected);
  const bool plain = end.ec == std::errc() && std::isfinite(expected) && !ascii.empty() &&
                     ascii.find_first_not_of("-0123456789.e") == std::string::npos;
  if (plain) Check(ReadLeadingNumber(text) == expected);
  return 0;
}
