#include "platform/windows/printer_errors.h"

#include <ZQ7Standard/RunTimeError.h>

#include <string>

#include "platform/windows/system_text.h"
#include "platform/windows/wide_text.h"

namespace ZQ7Standard {
void FailPrinting(std::string_view step, std::wstring_view printer, DWORD number) {
  std::string text = Utf8(FromWide(printer));
  if (!text.empty()) text += ": ";
  text.append(step).append(": ").append(SystemText(number));
  throw RunTimeError(Error::kPrinterError, text);
}

}  // namespace ZQ7Standard
