#ifndef ZQ7STANDARD_TESTS_SUPPORT_PRINTERS_H_
#define ZQ7STANDARD_TESTS_SUPPORT_PRINTERS_H_

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/print_picture.h>
#include <ZQ7Standard/platform/printers.h>
#include <ZQ7Standard/platform/recording_printers.h>

#include <functional>
#include <string>

#include "tests/support/row_tests.h"

namespace ZQ7Standard {

/// For `PrintRecord::before`: stops the operation `refused`.
inline auto Refusing(std::string refused, std::function<void()> raise = {}) {
  return [refused = std::move(refused), raise = std::move(raise)](std::string_view operation) {
    if (refused != operation) return;
    if (raise) raise();
    throw RunTimeError(Error::kPrinterError, "no " + refused);
  };
}

/// Recording printers with these names; the first is current.
inline std::shared_ptr<PrinterList> Recorded(PrintRecord& record,
                                             const std::vector<Text>& names = {u"Laser"}) {
  return RecordingPrinters(names, {std::shared_ptr<void>(), &record});
}

/// A picture of 40 x 20 mm.
class PlainPicture final : public PrintPicture {
 public:
  float Width() override { return 40; }
  float Height() override { return 20; }
  std::string_view Picture() override { return "picture"; }
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_PRINTERS_H_
