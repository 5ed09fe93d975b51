#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/recording_printers.h>

#include <array>
#include <charconv>
#include <map>
#include <utility>

namespace ZQ7Standard {
namespace {

constexpr PagePosition kStart = {.x = 2.5, .y = 3.5};
constexpr float kLineHeight = 5;
constexpr double kUnitWidth = 0.15;  // as a fraction of the font size

std::string Shown(double number) {
  std::array<char, 32> text;
  return {text.data(), std::to_chars(text.begin(), text.end(), number).ptr};
}

std::string Shown(PagePosition position) {
  return Shown(position.x) + "," + Shown(position.y);
}

/// Records the calls to a list of printers and to each of them.
class Recorder {
 public:
  explicit Recorder(std::shared_ptr<PrintRecord> record) : record_(std::move(record)) {}

  void Do(std::string_view operation) const {
    if (record_ && record_->before) record_->before(operation);
  }
  void Add(const std::string& entry) const {
    if (record_) record_->log.append(record_->log.empty() ? "" : " ").append(entry);
  }

 private:
  std::shared_ptr<PrintRecord> record_;
};

class RecordingPrinter final : public PrintDocument, public PrinterSettings {
 public:
  explicit RecordingPrinter(Recorder recorder) : recorder_(std::move(recorder)) {}

  std::int16_t Get(PrinterSetting setting) override {
    recorder_.Do("Get");
    return values_[setting];
  }
  void Set(PrinterSetting setting, std::int16_t value) override {
    recorder_.Do("Set");
    values_[setting] = value;
  }
  void UseMillimetres() override { recorder_.Add("mm"); }
  PagePosition Position() override { return position_; }
  void MoveTo(PagePosition position) override {
    recorder_.Do("MoveTo");
    position_ = position;
  }
  PrintFont Font() override { return font_; }
  void SetFont(const PrintFont& font) override {
    recorder_.Do("SetFont");
    font_ = font;
  }
  float TextWidth(TextView text) override {
    return static_cast<float>(kUnitWidth * font_.size * static_cast<double>(text.size()));
  }
  void PrintLine(TextView text) override {
    recorder_.Do("PrintLine");
    recorder_.Add(Utf8(text) + "@" + Shown(position_) + FontText());
    position_ = {0, position_.y + kLineHeight};
  }
  void DrawPicture(std::string_view picture, PagePosition position, PageSize size) override {
    recorder_.Do("DrawPicture");
    recorder_.Add(std::string(picture) + "@" + Shown(position) + ":" + Shown(size.width) + "x" +
                  Shown(size.height));
  }
  void End() override {
    recorder_.Do("End");
    recorder_.Add("end");
  }
  void Abort() override { recorder_.Add("abort"); }

 private:
  std::string FontText() const {
    if (font_ == PrintFont{}) return {};
    std::string text = "[";
    text.append(Utf8(font_.name)).append(" ").append(Shown(font_.size));
    text.append(" ").append(std::to_string(font_.charset));
    return text.append(font_.bold ? " bold" : "").append(font_.italic ? " italic]" : "]");
  }

  Recorder recorder_;
  std::map<PrinterSetting, std::int16_t> values_ = {{PrinterSetting::kOrientation, 1},
                                                    {PrinterSetting::kPaperSize, 9},
                                                    {PrinterSetting::kPaperBin, 2},
                                                    {PrinterSetting::kPrintQuality, -4}};
  PagePosition position_ = kStart;
  PrintFont font_;
};

class RecordingList final : public PrinterList {
 public:
  RecordingList(const std::vector<Text>& names, std::shared_ptr<PrintRecord> record)
      : recorder_(std::move(record)) {
    for (const Text& name : names) {
      const auto printer = std::make_shared<RecordingPrinter>(recorder_);
      printers_.push_back({name, printer, printer});
    }
    if (!names.empty()) current_ = printers_.front();
  }

  std::vector<Printer> Installed() override { return printers_; }
  Printer Current() override {
    recorder_.Do("Current");
    if (!current_.document) throw RunTimeError(Error::kPrinterError, "no printer is installed");
    return current_;
  }
  void MakeCurrent(const Printer& printer) override {
    recorder_.Add("use " + Utf8(printer.device_name));
    current_ = printer;
  }

 private:
  Recorder recorder_;
  std::vector<Printer> printers_;
  Printer current_;
};

}  // namespace

std::shared_ptr<PrinterList> RecordingPrinters(const std::vector<Text>& names,
                                               std::shared_ptr<PrintRecord> record) {
  return std::make_shared<RecordingList>(names, std::move(record));
}

}  // namespace ZQ7Standard
