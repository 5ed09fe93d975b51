#ifndef ZQ7STANDARD_TESTS_SUPPORT_PRINTERS_H_
#define ZQ7STANDARD_TESTS_SUPPORT_PRINTERS_H_

#include <ZQ7Standard/platform/print_picture.h>
#include <ZQ7Standard/platform/printers.h>

#include <functional>
#include <map>
#include <string>

namespace ZQ7Standard {

/// What came of recording printers, and what they do not go along with.
struct PrintRecord {
  std::string log;                        ///< such as "mm a@1,1 end"
  std::string refused;                    ///< the operation that fails, such as "End"
  std::function<double(TextView)> width;  ///< in the font of 10 points

  void Add(const std::string& entry) { log += (log.empty() ? "" : " ") + entry; }
  void Do(const std::string& operation) const {
    if (refused == operation) throw PrinterFailure("no " + operation);
  }
};

/// Printers of these names that write what is printed to a record: text as
/// "text@x,y[font]", less the font while it is the first one, a picture as
/// "picture@x,y:widthxheight". They start at 2.5, 3.5 and set lines 5 mm apart; each
/// code unit is 1.5 mm wide. The first is current; one named "!" refuses every value.
std::shared_ptr<PrinterList> RecordingPrinters(PrintRecord& record,
                                               const std::vector<Text>& names = {u"Laser"});

/// A picture of 40 x 20 mm.
std::shared_ptr<PrintPicture> TestPicture();

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_PRINTERS_H_
