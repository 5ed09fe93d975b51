#include "platform/windows/system_text.h"

#include <array>

#include "base/fields.h"
#include "platform/windows/wide_text.h"

namespace ZQ7Standard {

std::string SystemText(DWORD error) {
  constexpr DWORD kFlags = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS |
                           FORMAT_MESSAGE_MAX_WIDTH_MASK;  // no line ends
  std::array<wchar_t, 512> buffer;
  const DWORD size = FormatMessageW(kFlags, nullptr, error, 0, buffer.data(),
                                    static_cast<DWORD>(buffer.size()), nullptr);
  if (size == 0) return "error " + std::to_string(error);
  return Utf8(TrimBack(FromWide({buffer.data(), size}), u" ."));
}

}  // namespace ZQ7Standard
