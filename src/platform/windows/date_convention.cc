#include <ZQ7Standard/platform/date_convention.h>
#include <windows.h>

#include <string_view>

#include "platform/windows/locale_value.h"

namespace ZQ7Standard {
namespace {

/// The order of day and month in a short-date pattern such as "d/M/yyyy"; one that begins with the
/// year counts as month first. Text in apostrophes is not a field.
FieldOrder OrderOf(std::wstring_view pattern) {
  bool is_quoted = false;
  for (const wchar_t c : pattern) {
    if (c == L'\'') is_quoted = !is_quoted;
    if (is_quoted) continue;
    if (c == L'd') return FieldOrder::kDayFirst;
    if (c == L'M' || c == L'y') return FieldOrder::kMonthFirst;
  }
  return FieldOrder::kMonthFirst;
}

class WindowsDateConvention final : public DateConventionSource {
 public:
  // Asked anew each time: it takes less than a microsecond, and the user may change it.
  DateConvention Current() override {
    const LocaleValue calendar(LOCALE_ICALENDARTYPE);
    const bool is_buddhist = calendar.Text() == kBuddhistCalendar;
    return {CurrentOrder(), is_buddhist ? Era::kBuddhist : Era::kGregorian};
  }

 private:
  static constexpr std::wstring_view kBuddhistCalendar = L"7";  // CAL_THAI

  static FieldOrder CurrentOrder() {
    const LocaleValue order(LOCALE_IDATE);
    if (order.Text() == L"0" || order.Text() == L"2") return FieldOrder::kMonthFirst;
    if (order.Text() == L"1") return FieldOrder::kDayFirst;
    return OrderOf(LocaleValue(LOCALE_SSHORTDATE).Text());
  }
};

}  // namespace

std::shared_ptr<DateConventionSource> SystemDateConvention() {
  return std::make_shared<WindowsDateConvention>();
}

}  // namespace ZQ7Standard
