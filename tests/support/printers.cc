#include "tests/support/printers.h"

#include "tests/support/rows.h"

namespace ZQ7Standard {
namespace {

std::string Pair(float a, const char* between, float b) {
  return Shown(a) + between + Shown(b);
}

class RecordingPrinter final : public PrintDocument, public PrinterSettings {
 public:
  RecordingPrinter(PrintRecord& record, bool refuses) : record_(record), refuses_(refuses) {}

  std::int16_t Get(PrinterSetting setting) override {
    record_.Do("Get");
    return values_[setting];
  }
  void Set(PrinterSetting setting, std::int16_t value) override {
    if (refuses_) throw PrinterFailure("refused");
    values_[setting] = value;
  }

  void UseMillimetres() override { record_.Add("mm"); }
  PagePosition Position() override { return position_; }
  void MoveTo(PagePosition position) override {
    record_.Do("MoveTo");
    position_ = position;
  }
  PrintFont Font() override { return font_; }
  void SetFont(const PrintFont& font) override {
    record_.Do(font.bold ? "SetFont bold" : "SetFont");
    font_ = font;
  }
  float TextWidth(TextView text) override {
    const double units =
        record_.width ? record_.width(text) : 1.5 * static_cast<double>(text.size());
    return static_cast<float>(units * font_.size / 10);
  }
  void PrintLine(TextView text) override {
    record_.Do("PrintLine");
    record_.Add(Utf8(text) + "@" + Pair(position_.x, ",", position_.y) + FontText());
    position_ = {0, position_.y + 5};
  }
  void DrawPicture(std::string_view picture, PagePosition at, PageSize size) override {
    record_.Add(std::string(picture) + "@" + Pair(at.x, ",", at.y) + ":" +
                Pair(size.width, "x", size.height));
  }
  void End() override {
    record_.Do("End");
    record_.Add("end");
  }
  void Abort() override { record_.Add("abort"); }

 private:
  std::string FontText() const {
    if (font_ == PrintFont{}) return "";
    return "[" + Utf8(font_.name) + " " + Shown(font_.size) + " " + Shown(+font_.charset) +
           (font_.bold ? " bold" : "") + (font_.italic ? " italic" : "") + "]";
  }

  PrintRecord& record_;
  bool refuses_;
  std::map<PrinterSetting, std::int16_t> values_ = {{PrinterSetting::kOrientation, 2},
                                                    {PrinterSetting::kPaperSize, 9},
                                                    {PrinterSetting::kPaperBin, 2},
                                                    {PrinterSetting::kPrintQuality, -4}};
  PagePosition position_{2.5, 3.5};
  PrintFont font_;
};

class RecordingList final : public PrinterList {
 public:
  RecordingList(PrintRecord& record, const std::vector<Text>& names) : record_(record) {
    for (const Text& name : names) {
      const auto printer = std::make_shared<RecordingPrinter>(record, name == u"!");
      printers_.push_back({name, printer, printer});
    }
  }

  std::vector<Printer> Installed() override { return printers_; }
  Printer Current() override {
    if (printers_.empty()) throw PrinterFailure("no printer is installed");
    return printers_[current_];
  }
  void MakeCurrent(const Printer& printer) override {
    record_.Add("use " + Utf8(printer.device_name));
    current_ = 0;
    while (printers_[current_].document != printer.document) ++current_;
  }

 private:
  PrintRecord& record_;
  std::vector<Printer> printers_;
  std::size_t current_ = 0;
};

class PlainPicture final : public PrintPicture {
 public:
  float Width() override { return 40; }
  float Height() override { return 20; }
  std::string_view Picture() override { return "picture"; }
};

}  // namespace

std::shared_ptr<PrinterList> RecordingPrinters(PrintRecord& record,
                                               const std::vector<Text>& names) {
  return std::make_shared<RecordingList>(record, names);
}

std::shared_ptr<PrintPicture> TestPicture() {
  return std::make_shared<PlainPicture>();
}

}  // namespace ZQ7Standard
