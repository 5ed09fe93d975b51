// Any double and any unit word have words, without double blanks.

#include <ZQ7Standard/BahtStringObject.h>

#include <cmath>

#include "tests/fuzz/check.h"

using namespace ZQ7Standard;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  double amount = 0;
  if (size < sizeof amount) return 0;
  std::memcpy(&amount, data, sizeof amount);
  const Text unit = FuzzText(data + sizeof amount, size - sizeof amount);
  BahtStringObject object;
  const Text thai = object.MoneyText(amount, false, false, unit);
  const bool spoken = std::abs(amount) <= 9999999999999.99;
  Check(thai.empty() == !spoken);
  Check(object.BahtString(amount, false, false, unit) == thai);
  if (spoken && amount != 0)
    Check(object.MoneyText(amount, true, false, unit) == u"=" + thai + u"=");
  Check(object.MoneyTextE(amount).empty() == !std::isfinite(amount));
  Check(object.MoneyTextE(amount).find(u"  ") == Text::npos);
  object.MoneyText(amount, true, true, unit);
  object.MoneyTextT(amount);
  return 0;
}
