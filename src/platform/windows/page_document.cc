#include "platform/windows/page_document.h"

#include <ZQ7Standard/RunTimeError.h>

#include <chrono>
#include <exception>
#include <string>
#include <utility>

#include "platform/page_rules.h"
#include "platform/windows/limited_call.h"
#include "platform/windows/page_canvas.h"
#include "platform/windows/page_output.h"
#include "platform/windows/user_session.h"

namespace ZQ7Standard {
namespace {

constexpr std::chrono::seconds kJobLimit{30};

/// `DecodePicture`, whose errors are the printer's here.
Bitmap PictureToPrint(std::string_view file) {
  try {
    return DecodePicture(file);
  } catch (const RunTimeError& error) {
    throw RunTimeError(Error::kPrinterError, error.Details().text);
  }
}

/// Where no user sees the question of a driver or a port, it would wait for ever.
void PrintUnseen(const std::shared_ptr<PageCanvas>& canvas, PageContent page, std::wstring output) {
  const auto failure = ResultWithin<std::exception_ptr>(
      [canvas, page = std::move(page), output = std::move(output)]() -> std::exception_ptr {
        try {
          canvas->Print(page, output);
          return nullptr;
        } catch (...) {
          return std::current_exception();
        }
      },
      kJobLimit);
  if (!failure)
    throw RunTimeError(Error::kPrinterError, "the printer did not take the job in time");
  if (*failure) std::rethrow_exception(*failure);
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
    PageContent page = std::exchange(page_, {});
    const auto canvas = std::exchange(canvas_, nullptr);
    if (page.empty()) return;
    PageOutput output(printer_->Name(), folder_);
    if (HasVisibleDesktop()) {
      canvas->Print(page, output.Name());
    } else {
      PrintUnseen(canvas, std::move(page), output.Name());
    }
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
    if (!canvas_) canvas_ = std::make_shared<PageCanvas>(printer_->Name(), printer_->Mode());
    return *canvas_;
  }

  std::shared_ptr<PrinterDevice> printer_;
  std::filesystem::path folder_;
  std::shared_ptr<PageCanvas> canvas_;
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
