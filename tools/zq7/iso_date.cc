#include "iso_date.h"

namespace ZQ7Tool {

using ZQ7Standard::OleDate;

std::string IsoDateTime(OleDate date) {
  return IsoDate(date) + (date.TimeOfDay() == 0 ? " 00:00:00" : "");
}

std::string IsoDate(OleDate date) {
  return ZQ7Standard::Utf8(date.ToText());
}

}  // namespace ZQ7Tool
