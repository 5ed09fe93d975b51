#include <ZQ7Standard/platform/time_text.h>
#include <windows.h>

#include <array>

#include "platform/windows/system_time.h"
#include "platform/windows/wide_text.h"

namespace ZQ7Standard {
namespace {

class WindowsTimeText final : public TimeTextSource {
 public:
  Text LongTime(OleDate moment) override {
    const SYSTEMTIME time = SystemTimeOf(moment);
    std::array<wchar_t, 128> text;
    const int size = GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &time, nullptr, text.data(),
                                     static_cast<int>(text.size()));
    return FromWide({text.data(), size > 0 ? static_cast<std::size_t>(size) - 1 : 0});
  }
};

}  // namespace

std::shared_ptr<TimeTextSource> SystemTimeText() {
  return std::make_shared<WindowsTimeText>();
}

}  // namespace ZQ7Standard
