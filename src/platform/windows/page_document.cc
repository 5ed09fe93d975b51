#include "platform/windows/page_document.h"

#include <ZQ7Standard/RunTimeError.h>

#include <utility>

#include "platform/page_rules.h"
#include "platform/windows/page_canvas.h"
#include "platform/windows/page_output.h"

namespace ZQ7Standard {
namespace {

/// `DecodePicture`, whose errors are the printer's here.
Bitmap PictureToPrint(std::string_view file) {
  try {
    return DecodePicture(file);
  } catch (const RunTimeError& error) {
    throw RunTimeError(Error::kPrinterError, error.Details().text);
  }
}

class PageDocument final : public PrintDocument {
 public:
  PageDocument(std::shared_ptr<PrinterDevice> printer, std::filesystem::path folder)
      : printer_(std::move(printer)), folder_(std::move(folder)) {}

  void UseMillimetres() override {}  // always in use

  PagePosition Position() override { return position_; }
  void MoveTo(PagePosition position) override {
    RequireOnPaper(position);
    position_ = position;
  }

  PrintFont Font() override { return font_; }
  void SetFont(const PrintFont& font) override {
    RequireFontSize(font.size);
    font_ = font;
  }

  float TextWidth(TextView text) override { return Canvas().Measure(AsLine(text), font_).width; }

  void PrintLine(TextView text) override {
    const Text line = AsLine(text);
    const float height = Canvas().Measure(line, font_).height;
    page_.emplace_back(PlacedLine{line, font_, position_});
    MoveTo({0, position_.y + height});
  }

  void DrawPicture(std::string_view picture, PagePosition position, PageSize size) override {
    RequireOnPaper(position);
    RequireOnPaper(size);
    Canvas();
    page_.emplace_back(PlacedPicture{PictureToPrint(picture), position, size});
  }

  void End() override {
    position_ = {};
    const PageContent page = std::exchange(page_, {});
    const auto canvas = std::exchange(canvas_, nullptr);
    if (page.empty()) return;
    PageOutput output(printer_->Name(), folder_);
    canvas->Print(page, output.Name());
    output.Keep();
  }

  void Abort() override {
    position_ = {};
    page_.clear();
    canvas_.reset();
  }

 private:
  /// That of the open document, else one of the printer's settings in force.
  PageCanvas& Canvas() {
    if (page_.empty() && canvas_ && canvas_->Mode() != printer_->Mode()) canvas_.reset();
    if (!canvas_) canvas_ = std::make_unique<PageCanvas>(printer_->Name(), printer_->Mode());
    return *canvas_;
  }

  std::shared_ptr<PrinterDevice> printer_;
  std::filesystem::path folder_;
  std::unique_ptr<PageCanvas> canvas_;
  PageContent page_;  // not empty while a document is open
  PagePosition position_;
  PrintFont font_;
};

}  // namespace

std::shared_ptr<PrintDocument> NewPageDocument(std::shared_ptr<PrinterDevice> printer,
                                               std::filesystem::path folder) {
  return std::make_shared<PageDocument>(std::move(printer), std::move(folder));
}

}  // namespace ZQ7Standard
