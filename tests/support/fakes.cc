#include "tests/support/fakes.h"

#include <ZQ7Standard/RunTimeError.h>

#include <cstdio>

namespace ZQ7Standard {

OleDate TestNow() {
  return OleDate::FromParts(2024, 1, 15, 9, 30);
}

StandardObject ObjectWith(DateConvention convention, OleDate now) {
  return StandardObject(
      {.clock = FixedClock(now), .date_convention = FixedDateConvention(convention)});
}

int ErrorOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const RunTimeError& error) {
    return error.Number();
  }
  return 0;
}

std::string IsoText(OleDate date) {
  char text[80];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", date.Year(), date.Month(),
                date.Day(), date.Hour(), date.Minute(), date.Second());
  return {text, date.TimeOfDay() == 0 ? 10U : 19U};
}

void PrintTo(OleDate date, std::ostream* stream) {
  *stream << IsoText(date);
}

void PrintTo(Currency amount, std::ostream* stream) {
  *stream << Utf8(amount.ToText());
}

}  // namespace ZQ7Standard
