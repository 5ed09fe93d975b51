#ifndef ZQ7STANDARD_PLATFORM_RECORDING_PRINTERS_H_
#define ZQ7STANDARD_PLATFORM_RECORDING_PRINTERS_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>
#include <ZQ7Standard/platform/printers.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ZQ7Standard {

/// What recording printers were asked to do.
struct PrintRecord {
  /// In UTF-8, separated by blanks: "text@x,y[font]", without the font while it is a new
  /// printer's, "picture@x,y:widthxheight", "mm", "end", "abort" and "use name".
  std::string log;
  /// Called with the name of an operation, such as "PrintLine", before it runs; what it
  /// throws stops the operation.
  std::function<void(std::string_view operation)> before = {};
};

/// Printers of these names, the first one current, that print nothing: for tests, and for
/// hosts that should use no paper. They accept every setting, write what they are asked
/// to `record` if it is not null, and start at 2.5, 3.5 mm; lines are 5 mm apart and a
/// code unit is 1.5 mm wide in 10 points.
ZQ7STANDARD_EXPORT std::shared_ptr<PrinterList> RecordingPrinters(
    const std::vector<Text>& names = {u"PDF"}, std::shared_ptr<PrintRecord> record = nullptr);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_RECORDING_PRINTERS_H_
