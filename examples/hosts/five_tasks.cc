// The five tasks of docs/hosts.md from C++.
#include <ZQ7Standard/ASCIIObject.h>
#include <ZQ7Standard/BahtStringObject.h>
#include <ZQ7Standard/GridValueObject.h>
#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/platform/date_convention.h>
#include <ZQ7Standard/platform/path_text.h>

#include <filesystem>
#include <iostream>
#include <memory>

namespace {

using namespace ZQ7Standard;

class CellPrinter : public GridValueListener {
 public:
  void CellDataChange(std::int32_t row, std::int32_t column) override {
    std::cout << "row " << row << ", column " << column << '\n';
  }
};

}  // namespace

int main() {
  BahtStringObject baht;
  std::cout << Utf8(baht.BahtString(121.50)) << '\n';

  const auto convention = FixedDateConvention({FieldOrder::kDayFirst, Era::kBuddhist});
  const StandardObject standard({.date_convention = convention});
  const OleDate date = standard.CTDATE(u"31/1/2567");
  std::cout << Utf8(standard.FormatQuery(standard.AddMonth(date, 1))) << '\n';

  const Text file = PathText(std::filesystem::current_path() / "settings.ini");
  const ASCIIObject settings;
  settings.Setvalue(file, u"Port", u"9600");
  std::cout << Utf8(settings.GetValue(file, u"Port")) << '\n';

  GridValueObject grid;
  grid.AddListener(std::make_shared<CellPrinter>());
  grid.SetCols(3);
  grid.Setvalue(7, 2, 12.5);

  try {
    standard.CTDATE(u"31/2/2567");
  } catch (const RunTimeError& error) {
    std::cout << "error " << error.Number() << '\n';
  }
}
