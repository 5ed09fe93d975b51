#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PRINTER_ERRORS_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PRINTER_ERRORS_H_

#include <ZQ7Standard/Types.h>
#include <windows.h>

#include <string_view>

namespace ZQ7Standard {

/// Raises error 482 with what the print system says of its error `number` in `step`; `printer` is
/// empty if no printer is meant.
[[noreturn]] void FailPrinting(std::string_view step, std::wstring_view printer,
                               DWORD number = GetLastError());

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PRINTER_ERRORS_H_
