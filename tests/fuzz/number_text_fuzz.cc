// Any text reads as a number, and any number survives its shortest text.

#include <charconv>
#include <cmath>

#include "numbers/number_text.h"
#include "tests/fuzz/check.h"
#include "tests/support/fakes.h"

using namespace ZQ7Standard;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const StandardObject object = ObjectWith(kMdy);
  const Text text = FuzzText(data, size);
  const double value = object.StrVal(text);
  Check(std::isfinite(value));
  const Decimal decimal = *ToDecimal(value);
  Check(ReadLeadingNumber(ShortestText(decimal)) == ToDouble(decimal));
  const double rounded = object.FixNumber(value, 2);
  Check(object.FixNumber(rounded, 2) == rounded);

  // Plain ASCII digits read as the standard library reads them.
  const std::string ascii = Utf8(text);
  double expected = 0;
  const auto end = std::from_chars(ascii.data(), ascii.data() + ascii.size(), expected);
  const bool plain = end.ec == std::errc() && std::isfinite(expected) && !ascii.empty() &&
                     ascii.find_first_not_of("-0123456789.e") == std::string::npos;
  if (plain) Check(ReadLeadingNumber(text) == expected);
  return 0;
}
