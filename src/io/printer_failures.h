#ifndef ZQ7STANDARD_SRC_IO_PRINTER_FAILURES_H_
#define ZQ7STANDARD_SRC_IO_PRINTER_FAILURES_H_

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/printers.h>

#include <stdexcept>
#include <string_view>

namespace ZQ7Standard {

/// Does `steps`, of which those behind one that fails are left out.
template <typename Steps>
void Trapped(Steps steps) {
  try {
    steps();
  } catch (const std::runtime_error&) {
    return;
  }
}

/// Does `steps`; what a printer fails to do becomes a run-time error of `operation`.
template <typename Steps>
void Reported(std::string_view operation, Steps steps) {
  try {
    steps();
  } catch (const PrinterFailure& failure) {
    throw RunTimeError::PrinterError(operation, failure.what());
  }
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_IO_PRINTER_FAILURES_H_
