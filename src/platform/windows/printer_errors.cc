#include "platform/windows/printer_errors.h"

#include <ZQ7Standard/RunTimeError.h>

#include <array>
#include <string>

#include "platform/windows/wide_text.h"

namespace ZQ7Standard {
namespace {

/// The system's text of an error, or its number if it has none.
std::string TextOf(DWORD number) {
  std::array<wchar_t, 500> text;
  DWORD size = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                              number, 0, text.data(), static_cast<DWORD>(text.size()), nullptr);
  while (size > 0 && text[size - 1] <= L' ') --size;  // it ends a line
  if (size == 0) return "error " + std::to_string(number);
  return Utf8(FromWide({text.data(), size}));
}

}  // namespace

void FailPrinting(std::string_view step, std::wstring_view printer, DWORD number) {
  std::string text = Utf8(FromWide(printer));
  if (!text.empty()) text += ": ";
  text.append(step).append(": ").append(TextOf(number));
  throw RunTimeError(Error::kPrinterError, text);
}

}  // namespace ZQ7Standard
