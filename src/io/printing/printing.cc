#include <ZQ7Standard/PrintObject.h>

#include <string>

#include "base/raise.h"
#include "io/failures.h"
#include "io/printing/current_printer.h"
#include "io/printing/fitting_text.h"
#include "numbers/number_text.h"
#include "platform/service_set.h"

namespace ZQ7Standard {
namespace {

constexpr std::int32_t kPrinterPosition = -1;  // as a position: the printer's current one
constexpr std::int32_t kCentred = 1;
constexpr std::int32_t kEnding = 2;

constexpr std::string_view kPrintGraphicText = "PrintGraphicText";
constexpr std::string_view kPrintGraphicObject = "PrintGraphicObject";

constexpr std::uint8_t kThaiCharset = 222;

// The most that a character can narrow the text before it, in font heights: a family of emoji
// becomes one.
constexpr double kShrinkage = 4;
constexpr double kMillimetresPerPoint = 25.4 / 72;

/// The document of `printer`, which a host's list may have left empty.
std::shared_ptr<PrintDocument> DocumentOf(const Printer& printer) {
  if (!printer.document) throw RunTimeError(Error::kPrinterError, "the printer has no document");
  return printer.document;
}

std::int32_t Rounded(std::string_view operation, double position) {
  const auto whole = RoundToInteger<std::int32_t>(position);
  if (!whole) Raise(Error::kOverflow, {operation}, position, "the position");
  return *whole;
}

/// `asked`, or the printer's current position, in whole millimetres.
float AskedOrCurrent(std::string_view operation, std::int32_t asked, float current) {
  return static_cast<float>(asked == kPrinterPosition ? Rounded(operation, current) : asked);
}

/// Where a text aligned to `x` begins.
float StartOf(std::int32_t alignment, float x, TextView text, PrintDocument& document) {
  if (alignment == kCentred) {
    return static_cast<float>(Rounded(kPrintGraphicText, x - document.TextWidth(text) / 2));
  }
  return alignment == kEnding ? x - document.TextWidth(text) : x;
}

/// `text` without the characters at its end that exceed `limit`.
TextView Shortened(TextView text, double limit, PrintDocument& document) {
  if (!(limit > 0)) return text;
  const double shrinkage = kShrinkage * document.Font().size * kMillimetresPerPoint;
  return FittingStart(text, limit, shrinkage,
                      [&](TextView start) { return document.TextWidth(start); });
}

PrintFont ThaiFont() {
  return {.name = u"BrowalliaUPC", .size = 10, .charset = kThaiCharset};
}

void SwitchBoldOff(PrintDocument& document) {
  PrintFont font = document.Font();
  font.bold = false;
  document.SetFont(font);
}

void ChangeFont(PrintDocument& document, TextView name, double size, bool bold, bool italic) {
  PrintFont font = document.Font();
  if (!name.empty()) font.name = name;
  if (size != 0) font.size = size;
  font.bold = bold;
  font.italic = italic;
  document.SetFont(font);
}

/// The document of `printer` to place something in; sets `last` to its current position.
std::shared_ptr<PrintDocument> DocumentToPlaceIn(const Printer& printer, PagePosition& last) {
  auto document = DocumentOf(printer);
  const PagePosition position = document->Position();
  if (last.x == 0) last.x = position.x;
  if (last.y == 0) last.y = position.y;
  return document;
}

}  // namespace

std::int16_t PrintObject::PrintStart() {
  DoOperation("PrintStart", services_->Printers(), [this] {
    const auto document = DocumentOf(services_->Printers().Current());
    document->UseMillimetres();
    document->MoveTo({1, 1});
  });
  return 0;
}

std::int16_t PrintObject::PrintSet(float Row, float Col, std::uint8_t /*FSize*/, TextView message) {
  TryOperation(services_->Printers(), [&] {
    const auto document = DocumentOf(services_->Printers().Current());
    Try([&] { document->SetFont(ThaiFont()); });
    Try([&] { SwitchBoldOff(*document); });
    Try([&] { document->MoveTo({Row, Col}); });
    document->PrintLine(message);
  });
  return 0;
}

std::int16_t PrintObject::PrintGraphicText(TextView sMsg, std::int32_t x, std::int32_t y,
                                           std::int32_t MoveLine, std::int32_t Alignment,
                                           double MaxLenText, TextView FontName, double FontSize,
                                           bool FontBold, bool FontItalic) {
  DoOperation(kPrintGraphicText, services_->Printers(), [&] {
    const auto document =
        DocumentToPlaceIn(MakeCurrent(services_->Printers(), device_name_), last_);
    const TextView text = Shortened(sMsg, MaxLenText, *document);
    ChangeFont(*document, FontName, FontSize, FontBold, FontItalic);
    const PagePosition current = document->Position();
    const float at = AskedOrCurrent(kPrintGraphicText, x, current.x);
    const float down = MoveLine != 0 ? AskedOrCurrent(kPrintGraphicText, y, current.y) : last_.y;
    document->MoveTo({StartOf(Alignment, at, text, *document), down});
    last_ = document->Position();
    document->PrintLine(text);
  });
  return 0;
}

std::int16_t PrintObject::PrintGraphicObject(const std::shared_ptr<PrintPicture>& Src,
                                             std::int32_t x, std::int32_t y, float W, float H,
                                             std::int32_t MoveLine) {
  if (!Src) Raise(Error::kInvalidArgument, {kPrintGraphicObject, "Src"}, "no picture");
  DoOperation(kPrintGraphicObject, services_->Printers(), [&] {
    const auto document =
        DocumentToPlaceIn(MakeCurrent(services_->Printers(), device_name_), last_);
    const PagePosition current = document->Position();
    const float down = MoveLine != 0 ? AskedOrCurrent(kPrintGraphicObject, y, current.y) : last_.y;
    const PagePosition at{AskedOrCurrent(kPrintGraphicObject, x, current.x), down};
    const PageSize size{W != 0 ? W : Src->Width(), H != 0 ? H : Src->Height()};
    document->MoveTo(at);
    last_ = document->Position();
    document->DrawPicture(Src->Picture(), at, size);
  });
  return 0;
}

std::int16_t PrintObject::PrintOut() {
  DoOperation("PrintOut", services_->Printers(),
              [this] { DocumentOf(services_->Printers().Current())->End(); });
  return 0;
}

std::int16_t PrintObject::PrintCancel() {
  DoOperation("PrintCancel", services_->Printers(),
              [this] { DocumentOf(services_->Printers().Current())->Abort(); });
  return 0;
}

}  // namespace ZQ7Standard
