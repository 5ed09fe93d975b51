#ifndef ZQ7STANDARD_PLATFORM_PRINT_DOCUMENT_H_
#define ZQ7STANDARD_PLATFORM_PRINT_DOCUMENT_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>

#include <cstdint>
#include <string_view>

namespace ZQ7Standard {

/// A place on the page, from its top left corner.
struct PagePosition {
  float x = 0;
  float y = 0;

  friend bool operator==(PagePosition, PagePosition) = default;
};

/// The extent of a picture on the page.
struct PageSize {
  float width = 0;
  float height = 0;

  friend bool operator==(PageSize, PageSize) = default;
};

/// The font that text is printed in.
struct PrintFont {
  Text name;                 ///< of the family; empty is the printer's own
  double size = 10;          ///< points
  std::uint8_t charset = 1;  ///< of the letters needed: 222 Thai, 1 any
  bool bold = false;
  bool italic = false;

  friend bool operator==(const PrintFont&, const PrintFont&) = default;
};

/// The page given to a printer. The first text or picture opens a document, `End` or
/// `Abort` closes it; position and font exist before that. Failures raise 482.
class ZQ7STANDARD_EXPORT PrintDocument {
 public:
  virtual ~PrintDocument();

  /// Makes every position and length count in millimetres; in a new document they may
  /// not.
  virtual void UseMillimetres() = 0;

  virtual PagePosition Position() = 0;
  virtual void MoveTo(PagePosition position) = 0;

  virtual PrintFont Font() = 0;
  virtual void SetFont(const PrintFont& font) = 0;

  /// The width of `text` in the font in force.
  virtual float TextWidth(TextView text) = 0;

  /// Prints `text` as one line, its top left corner at the position, which then
  /// moves to the start of the next line: x is 0, y one line down.
  virtual void PrintLine(TextView text) = 0;

  /// Draws a picture, given as the bytes of a PNG or JPEG file, with that place and size.
  /// The position stays.
  virtual void DrawPicture(std::string_view picture, PagePosition position, PageSize size) = 0;

  /// Gives the open document, if there is one, to the printer. The position is then 0, 0.
  /// After a failure the document is gone too.
  virtual void End() = 0;

  /// Discards the open document, if there is one. The position is then 0, 0.
  virtual void Abort() = 0;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_PRINT_DOCUMENT_H_
