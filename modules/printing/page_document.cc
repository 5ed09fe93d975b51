#include "printing/page_document.h"

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/printers.h>
#include <cairo-pdf.h>

#include <exception>
#include <string>
#include <utility>

#include "formats/picture_size.h"
#include "handle.h"
#include "platform/page_rules.h"
#include "printing/page_text.h"
#include "printing/png_surface.h"

namespace ZQ7Standard {
namespace {

using Context = Handle<cairo_t, cairo_destroy>;

void Check(cairo_status_t status) {
  if (status != CAIRO_STATUS_SUCCESS)
    throw RunTimeError(Error::kPrinterError, cairo_status_to_string(status));
}

/// Appends Cairo's output to the string `file`.
cairo_status_t Append(void* file, const unsigned char* data, unsigned int size) {
  try {
    static_cast<std::string*>(file)->append(reinterpret_cast<const char*>(data), size);
  } catch (const std::exception&) {
    return CAIRO_STATUS_NO_MEMORY;
  }
  return CAIRO_STATUS_SUCCESS;
}

/// A picture without pixels, whose file is embedded in the page unchanged.
Surface JpegPicture(std::string_view file, const PictureSize& size) {
  Surface picture(cairo_image_surface_create(CAIRO_FORMAT_RGB24, static_cast<int>(size.columns),
                                             static_cast<int>(size.rows)));
  auto* const copy = new std::string(file);
  const cairo_status_t status = cairo_surface_set_mime_data(
      picture.get(), CAIRO_MIME_TYPE_JPEG, reinterpret_cast<const unsigned char*>(copy->data()),
      copy->size(), [](void* bytes) { delete static_cast<std::string*>(bytes); }, copy);
  if (status != CAIRO_STATUS_SUCCESS) delete copy;
  Check(status);
  return picture;
}

/// A page of a size in millimetres that becomes a PDF file.
class Page {
 public:
  explicit Page(PageSize size)
      : surface_(cairo_pdf_surface_create_for_stream(
            Append, &file_, size.width * kPointsPerMillimetre, size.height * kPointsPerMillimetre)),
        context_(cairo_create(surface_.get())) {
    Check(cairo_status(context_.get()));
  }
  Page(const Page&) = delete;  // Cairo keeps the address of the file
  Page& operator=(const Page&) = delete;

  void DrawText(TextView text, PagePosition position, PageText& shaper) {
    cairo_move_to(context_.get(), position.x * kPointsPerMillimetre,
                  position.y * kPointsPerMillimetre);
    shaper.Draw(text, context_.get());
    Check(cairo_status(context_.get()));
  }

  void DrawPicture(std::string_view file, PagePosition position, PageSize size) {
    const auto pixels = ReadPictureSize(file);
    if (!pixels)
      throw RunTimeError(Error::kPrinterError, "the picture is neither a PNG nor a JPEG");
    const bool is_png = pixels->format == PictureFormat::kPng;
    const Surface picture = is_png ? PngSurface(file) : JpegPicture(file, *pixels);
    Check(cairo_surface_status(picture.get()));
    cairo_t* const page = context_.get();
    cairo_save(page);
    cairo_translate(page, position.x * kPointsPerMillimetre, position.y * kPointsPerMillimetre);
    cairo_scale(page, size.width * kPointsPerMillimetre / pixels->columns,
                size.height * kPointsPerMillimetre / pixels->rows);
    cairo_set_source_surface(page, picture.get(), 0, 0);
    cairo_paint(page);
    cairo_restore(page);
    Check(cairo_status(page));
  }

  /// The bytes of the PDF file; the last use of the page.
  std::string Finish() {
    cairo_show_page(context_.get());
    cairo_surface_finish(surface_.get());
    Check(cairo_surface_status(surface_.get()));
    return std::move(file_);
  }

 private:
  std::string file_;
  Surface surface_;
  Context context_;
};

class PageDocument final : public PrintDocument {
 public:
  explicit PageDocument(std::shared_ptr<PageTarget> target) : target_(std::move(target)) {}

  void UseMillimetres() override {}  // always in use

  PagePosition Position() override { return position_; }
  void MoveTo(PagePosition position) override {
    RequireOnPaper(position);
    position_ = position;
  }

  PrintFont Font() override { return Shaper().Font(); }
  void SetFont(const PrintFont& font) override { Shaper().SetFont(font); }
  float TextWidth(TextView text) override { return Shaper().Measure(text).width; }

  void PrintLine(TextView text) override {
    OpenPage().DrawText(text, position_, Shaper());
    MoveTo({0, position_.y + Shaper().Measure(text).height});
  }

  void DrawPicture(std::string_view picture, PagePosition position, PageSize size) override {
    RequireOnPaper(size);
    OpenPage().DrawPicture(picture, position, size);
  }

  void End() override {
    position_ = {};
    const auto page = std::exchange(page_, nullptr);
    if (page) target_->Print(page->Finish());
  }

  void Abort() override {
    position_ = {};
    page_.reset();
  }

 private:
  /// Created on demand: lists contain printers that nobody uses.
  PageText& Shaper() {
    if (!shaper_) shaper_ = std::make_unique<PageText>();
    return *shaper_;
  }

  Page& OpenPage() {
    if (!page_) page_ = std::make_unique<Page>(target_->Page());
    return *page_;
  }

  std::shared_ptr<PageTarget> target_;
  std::unique_ptr<Page> page_;  // while a document is open
  std::unique_ptr<PageText> shaper_;
  PagePosition position_;
};

}  // namespace

std::shared_ptr<PrintDocument> NewPageDocument(std::shared_ptr<PageTarget> target) {
  return std::make_shared<PageDocument>(std::move(target));
}

}  // namespace ZQ7Standard
