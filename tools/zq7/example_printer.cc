#include "example_printer.h"

#include <map>
#include <string_view>
#include <vector>

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard;

class ExampleSettings final : public PrinterSettings {
 public:
  std::int16_t Get(PrinterSetting setting) override { return values_[setting]; }
  void Set(PrinterSetting setting, std::int16_t value) override { values_[setting] = value; }

 private:
  std::map<PrinterSetting, std::int16_t> values_ = {{PrinterSetting::kOrientation, 1},
                                                    {PrinterSetting::kPaperSize, 9},
                                                    {PrinterSetting::kPaperBin, 7},
                                                    {PrinterSetting::kPrintQuality, -4}};
};

class ExampleDocument final : public PrintDocument {
 public:
  void UseMillimetres() override {}
  PagePosition Position() override { return position_; }
  void MoveTo(PagePosition position) override { position_ = position; }
  PrintFont Font() override { return font_; }
  void SetFont(const PrintFont& font) override { font_ = font; }
  float TextWidth(TextView text) override { return static_cast<float>(text.size()); }
  void PrintLine(TextView /*text*/) override {}
  void DrawPicture(std::string_view /*picture*/, PagePosition /*position*/,
                   PageSize /*size*/) override {}
  void End() override { position_ = {}; }
  void Abort() override { position_ = {}; }

 private:
  PagePosition position_ = {};
  PrintFont font_;
};

class ExamplePrinterList final : public PrinterList {
 public:
  std::vector<Printer> Installed() override { return {printer_}; }
  Printer Current() override { return printer_; }
  void MakeCurrent(const Printer& /*printer*/) override {}

 private:
  Printer printer_ = {u"PDF", std::make_shared<ExampleSettings>(),
                      std::make_shared<ExampleDocument>()};
};

}  // namespace

std::shared_ptr<PrinterList> ExamplePrinters() {
  return std::make_shared<ExamplePrinterList>();
}

}  // namespace ZQ7Tool
