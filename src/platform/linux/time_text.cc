#include <ZQ7Standard/platform/time_text.h>
#include <locale.h>
#include <time.h>
#include <wchar.h>

#include <array>
#include <string>
#include <string_view>

#include "platform/linux/locale_name.h"

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

/// A locale by name, or "C" if it is not installed or the name is empty.
locale_t NewLocale(const std::string& name) {
  const locale_t locale = newlocale(LC_TIME_MASK, name.empty() ? "C" : name.c_str(), nullptr);
  return locale != nullptr ? locale : newlocale(LC_TIME_MASK, "C", nullptr);
}

class LinuxTimeText final : public TimeTextSource {
 public:
  LinuxTimeText() = default;
  LinuxTimeText(const LinuxTimeText&) = delete;
  LinuxTimeText& operator=(const LinuxTimeText&) = delete;
  ~LinuxTimeText() override { Release(); }

  // In wide characters, which are independent of the locale's encoding.
  Text LongTime(OleDate moment) override {
    const tm parts = PartsOf(moment);
    std::array<wchar_t, 128> text;
    const std::size_t size = wcsftime_l(text.data(), text.size(), L"%X", &parts, Current());
    const std::wstring_view written(text.data(), size);
    return {written.begin(), written.end()};
  }

 private:
  /// The environment's locale, kept as long as its name stays the same.
  locale_t Current() {
    const LocaleName name = LocaleNameFromEnvironment();
    if (locale_ == nullptr || name.locale != name_ || name.folder != folder_) {
      Release();
      name_ = name.locale;
      folder_ = name.folder;
      locale_ = NewLocale(name_);
    }
    return locale_;
  }

  void Release() {
    if (locale_ != nullptr) freelocale(locale_);
  }

  std::string name_;
  std::string folder_;
  locale_t locale_ = nullptr;
};

}  // namespace

std::shared_ptr<TimeTextSource> SystemTimeText() {
  return std::make_shared<LinuxTimeText>();
}

}  // namespace ZQ7Standard
