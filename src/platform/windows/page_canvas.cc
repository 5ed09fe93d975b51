#include "platform/windows/page_canvas.h"

#include <algorithm>
#include <cmath>

#include "platform/windows/printer_errors.h"
#include "platform/windows/wide_text.h"

namespace ZQ7Standard {
namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kPointsPerMillimetre = 72 / kMillimetresPerInch;

LONG Rounded(double dots) {
  return static_cast<LONG>(std::lround(dots));
}

int CALLBACK CountFont(const LOGFONTW*, const TEXTMETRICW*, DWORD, LPARAM count) {
  ++*reinterpret_cast<int*>(count);
  return FALSE;  // one is enough
}

bool IsInstalled(HDC context, LOGFONTW font) {
  font.lfCharSet = DEFAULT_CHARSET;
  int count = 0;
  EnumFontFamiliesExW(context, &font, CountFont, reinterpret_cast<LPARAM>(&count), 0);
  return font.lfFaceName[0] != L'\0' && count > 0;
}

/// The system's description of a font. A family that is not installed, or none, is replaced by one
/// with Thai letters.
LOGFONTW DescriptionOf(const PrintFont& font, HDC context, double rows_per_mm) {
  LOGFONTW description{};
  description.lfHeight =
      -std::max(Rounded(font.size / kPointsPerMillimetre * rows_per_mm), LONG{1});
  description.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
  description.lfItalic = font.italic ? TRUE : FALSE;
  const std::wstring name = Wide(font.name);
  name.copy(description.lfFaceName, LF_FACESIZE - 1);
  description.lfCharSet =
      IsInstalled(context, description) ? font.charset : static_cast<BYTE>(THAI_CHARSET);
  return description;
}

}  // namespace

PageCanvas::PageCanvas(const std::wstring& printer, const DeviceMode& mode)
    : printer_(printer),
      mode_(mode),
      context_(CreateDCW(L"WINSPOOL", printer.c_str(), nullptr,
                         reinterpret_cast<const DEVMODEW*>(mode_.data()))) {
  Require(context_ != nullptr, "CreateDCW");
  columns_per_mm_ = Cap(LOGPIXELSX) / kMillimetresPerInch;
  rows_per_mm_ = Cap(LOGPIXELSY) / kMillimetresPerInch;
  reach_ = {Cap(PHYSICALOFFSETX), Cap(PHYSICALOFFSETY)};
  font_.size = 0;
}

void PageCanvas::Require(bool done, const char* step) const {
  if (!done) FailPrinting(step, printer_);
}

POINT PageCanvas::DotsAt(PagePosition position) const {
  return {Rounded(position.x * columns_per_mm_) - reach_.x,
          Rounded(position.y * rows_per_mm_) - reach_.y};
}

void PageCanvas::Use(const PrintFont& font) {
  if (font == font_) return;
  const LOGFONTW description = DescriptionOf(font, context_.get(), rows_per_mm_);
  std::unique_ptr<HFONT, DeleteFont> made(CreateFontIndirectW(&description));
  Require(made != nullptr && SelectObject(context_.get(), made.get()) != nullptr, "SelectObject");
  selected_ = std::move(made);
  font_ = font;
}

PageSize PageCanvas::Measure(const Text& line, const PrintFont& font) {
  Use(font);
  const std::wstring text = Wide(line);
  SIZE extent{};
  TEXTMETRICW metrics{};
  Require(GetTextExtentPoint32W(context_.get(), text.c_str(), static_cast<int>(text.size()),
                                &extent) != FALSE &&
              GetTextMetricsW(context_.get(), &metrics) != FALSE,
          "GetTextExtentPoint32W");
  return {static_cast<float>(extent.cx / columns_per_mm_),
          static_cast<float>(metrics.tmHeight / rows_per_mm_)};
}

void PageCanvas::Draw(const PlacedLine& line) {
  Use(line.font);
  const std::wstring text = Wide(line.text);
  const POINT at = DotsAt(line.position);
  Require(
      TextOutW(context_.get(), at.x, at.y, text.c_str(), static_cast<int>(text.size())) != FALSE,
      "TextOutW");
}

void PageCanvas::Draw(const PlacedPicture& placed) {
  const Bitmap& picture = placed.picture;
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = static_cast<LONG>(picture.columns);
  info.bmiHeader.biHeight = -static_cast<LONG>(picture.rows);  // from the top
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 8 * Bitmap::kPixelSize;
  const POINT at = DotsAt(placed.position);
  const POINT end =
      DotsAt({placed.position.x + placed.size.width, placed.position.y + placed.size.height});
  const int drawn = StretchDIBits(context_.get(), at.x, at.y, end.x - at.x, end.y - at.y, 0, 0,
                                  static_cast<int>(picture.columns), static_cast<int>(picture.rows),
                                  picture.bytes.data(), &info, DIB_RGB_COLORS, SRCCOPY);
  Require(drawn != 0 && static_cast<DWORD>(drawn) != GDI_ERROR, "StretchDIBits");
}

void PageCanvas::Print(const PageContent& page, const std::wstring& output) {
  DOCINFOW document{};
  document.cbSize = sizeof document;
  document.lpszDocName = L"Document";
  document.lpszOutput = output.empty() ? nullptr : output.c_str();
  HDC const context = context_.get();
  Require(StartDocW(context, &document) > 0, "StartDocW");
  try {
    Require(StartPage(context) > 0, "StartPage");
    SetBkMode(context, TRANSPARENT);
    SetStretchBltMode(context, HALFTONE);
    SetBrushOrgEx(context, 0, 0, nullptr);
    for (const auto& item : page) {
      std::visit([this](const auto& placed) { Draw(placed); }, item);
    }
    Require(EndPage(context) > 0, "EndPage");
    Require(EndDoc(context) > 0, "EndDoc");
  } catch (...) {
    AbortDoc(context);
    throw;
  }
}

}  // namespace ZQ7Standard
