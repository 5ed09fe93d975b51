#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PAGE_CANVAS_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PAGE_CANVAS_H_

#include <ZQ7Standard/platform/print_document.h>
#include <windows.h>

#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "platform/windows/pictures.h"
#include "platform/windows/printer_device.h"

namespace ZQ7Standard {

/// A line of text on a page, its top left corner at a place.
struct PlacedLine {
  Text text;  // without control characters
  PrintFont font;
  PagePosition position;
};

/// A picture on a page.
struct PlacedPicture {
  Bitmap picture;
  PagePosition position;
  PageSize size;
};

using PageContent = std::vector<std::variant<PlacedLine, PlacedPicture>>;

/// The paper of a printer with the settings of a moment. Places count in millimetres from the corner
/// of the paper itself, not of what the printer reaches. Failures raise 482.
class PageCanvas {
 public:
  PageCanvas(const std::wstring& printer, const DeviceMode& mode);

  const DeviceMode& Mode() const { return mode_; }

  /// The width and height of `line`.
  PageSize Measure(const Text& line, const PrintFont& font);

  /// Prints a page; to the file `output` rather than the printer's port unless it is empty.
  void Print(const PageContent& page, const std::wstring& output);

 private:
  struct DeleteContext {
    using pointer = HDC;
    void operator()(HDC context) const { DeleteDC(context); }
  };
  struct DeleteFont {
    using pointer = HFONT;
    void operator()(HFONT font) const { DeleteObject(font); }
  };

  void Use(const PrintFont& font);
  void Draw(const PlacedLine& line);
  void Draw(const PlacedPicture& picture);
  POINT DotsAt(PagePosition position) const;
  int Cap(int index) const { return GetDeviceCaps(context_.get(), index); }
  void Require(bool done, const char* step) const;

  std::wstring printer_;
  DeviceMode mode_;
  PrintFont font_;
  std::unique_ptr<HFONT, DeleteFont> selected_;  // outlives the context
  std::unique_ptr<HDC, DeleteContext> context_;
  double columns_per_mm_;
  double rows_per_mm_;
  POINT reach_;  // from the corner of the paper to the first dot, in dots
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PAGE_CANVAS_H_
