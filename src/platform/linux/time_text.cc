#include <ZQ7Standard/platform/time_text.h>
#include <locale.h>
#include <time.h>
#include <wchar.h>

#include <array>
#include <string_view>

namespace ZQ7Standard {
namespace {

tm PartsOf(OleDate moment) {
  tm parts{};
  parts.tm_year = moment.Year() - 1900;
  parts.tm_mon = moment.Month() - 1;
  parts.tm_mday = moment.Day();
  parts.tm_wday = moment.Weekday() - 1;
  parts.tm_hour = moment.Hour();
  parts.tm_min = moment.Minute();
  parts.tm_sec = moment.Second();
  return parts;
}

/// The locale of the environment, or "C" where that is not installed.
locale_t NewEnvironmentLocale() {
  const locale_t locale = newlocale(LC_TIME_MASK, "", nullptr);
  return locale != nullptr ? locale : newlocale(LC_TIME_MASK, "C", nullptr);
}

class LinuxTimeText final : public TimeTextSource {
 public:
  // In wide characters, which do not depend on the encoding of the locale.
  Text LongTime(OleDate moment) override {
    const tm parts = PartsOf(moment);
    std::array<wchar_t, 128> text;
    const locale_t locale = NewEnvironmentLocale();
    const std::size_t size = wcsftime_l(text.data(), text.size(), L"%X", &parts, locale);
    freelocale(locale);
    const std::wstring_view written(text.data(), size);
    return {written.begin(), written.end()};
  }
};

}  // namespace

std::shared_ptr<TimeTextSource> SystemTimeText() {
  return std::make_shared<LinuxTimeText>();
}

}  // namespace ZQ7Standard
