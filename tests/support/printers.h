#ifndef ZQ7STANDARD_TESTS_SUPPORT_PRINTERS_H_
#define ZQ7STANDARD_TESTS_SUPPORT_PRINTERS_H_

#include <ZQ7Standard/platform/print_picture.h>
#include <ZQ7Standard/platform/printers.h>

#include <functional>
#include <map>
#include <string>

#include "tests/support/rows.h"

namespace ZQ7Standard {

/// What came of recording printers, the one operation that they do not do, and what
/// they throw instead.
struct PrintRecord {
  std::string log;  ///< such as "mm a@1,1 end"
  std::string refused;
  std::function<void()> raise = [this] { throw PrinterFailure("no " + refused); };

  void Add(const std::string& entry) { log += (log.empty() ? "" : " ") + entry; }
  void Do(const std::string& operation) const {
    if (refused == operation) raise();
  }
};

/// Logs text as "text@x,y[font]", less the font while it is the first one, and a
/// picture as "picture@x,y:widthxheight". It starts at 2.5, 3.5 and sets lines 5 mm
/// apart, each code unit 1.5 mm wide in 10 points.
class RecordingPrinter final : public PrintDocument, public PrinterSettings {
 public:
  explicit RecordingPrinter(PrintRecord& record) : record_(record) {}

  std::int16_t Get(PrinterSetting setting) override { return record_.Do("Get"), values_[setting]; }
  void Set(PrinterSetting setting, std::int16_t value) override {
    record_.Do("Set");
    values_[setting] = value;
  }
  void UseMillimetres() override { record_.Add("mm"); }
  PagePosition Position() override { return position_; }
  void MoveTo(PagePosition position) override { record_.Do("MoveTo"), position_ = position; }
  PrintFont Font() override { return font_; }
  void SetFont(const PrintFont& font) override { record_.Do("SetFont"), font_ = font; }
  float TextWidth(TextView text) override {
    return static_cast<float>(0.15 * font_.size * static_cast<double>(text.size()));
  }
  void PrintLine(TextView text) override {
    record_.Do("PrintLine");
    record_.Add(Utf8(text) + "@" + Shown(position_.x) + "," + Shown(position_.y) + FontText());
    position_ = {0, position_.y + 5};
  }
  void DrawPicture(std::string_view picture, PagePosition at, PageSize size) override {
    record_.Add(std::string(picture) + "@" + Shown(at.x) + "," + Shown(at.y) + ":" +
                Shown(size.width) + "x" + Shown(size.height));
  }
  void End() override { record_.Do("End"), record_.Add("end"); }
  void Abort() override { record_.Add("abort"); }

 private:
  std::string FontText() const {
    return font_ == PrintFont{}
               ? ""
               : "[" + Utf8(font_.name) + " " + Shown(font_.size) + " " + Shown(+font_.charset) +
                     (font_.bold ? " bold" : "") + (font_.italic ? " italic" : "") + "]";
  }

  PrintRecord& record_;
  std::map<PrinterSetting, std::int16_t> values_ = {{PrinterSetting::kPaperSize, 9},
                                                    {PrinterSetting::kPaperBin, 2}};
  PagePosition position_{2.5, 3.5};
  PrintFont font_;
};

class RecordingPrinters final : public PrinterList {
 public:
  RecordingPrinters(PrintRecord& record, const std::vector<Text>& names) : record_(record) {
    for (const Text& name : names) {
      const auto printer = std::make_shared<RecordingPrinter>(record);
      printers_.push_back({name, printer, printer});
    }
    if (!names.empty()) current_ = printers_.front();
  }

  std::vector<Printer> Installed() override { return printers_; }
  Printer Current() override {
    record_.Do("Current");
    if (!current_.document) throw PrinterFailure("no printer is installed");
    return current_;
  }
  void MakeCurrent(const Printer& printer) override {
    record_.Add("use " + Utf8(printer.device_name));
    current_ = printer;
  }

 private:
  PrintRecord& record_;
  std::vector<Printer> printers_;
  Printer current_;
};

/// Recording printers of these names, of which the first is current.
inline std::shared_ptr<PrinterList> Recorded(PrintRecord& record,
                                             const std::vector<Text>& names = {u"Laser"}) {
  return std::make_shared<RecordingPrinters>(record, names);
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
