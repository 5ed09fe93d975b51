#ifndef ZQ7STANDARD_MODULES_PRINTING_PAGE_TEXT_H_
#define ZQ7STANDARD_MODULES_PRINTING_PAGE_TEXT_H_

#include <ZQ7Standard/platform/print_document.h>
#include <pango/pangocairo.h>

#include <map>

#include "handle.h"

namespace ZQ7Standard {

inline constexpr double kPointsPerMillimetre = 72 / 25.4;

/// Lines of text shaped by Pango, with metrics for paper. A tab, line break or other control
/// character counts as a blank.
class PageText {
 public:
  PageText();

  const PrintFont& Font() const { return font_; }

  /// A family that is not installed is replaced by one with Thai letters. A size that does not fit
  /// any page raises error 482.
  void SetFont(const PrintFont& font);

  /// The width and height of `text` as a line, in millimetres.
  PageSize Measure(TextView text);

  /// Draws `text` with its top left corner at the current point of `page`.
  void Draw(TextView text, cairo_t* page);

 private:
  void Lay(TextView text);
  const Text& FamilyFor(const Text& name);

  Handle<PangoFontMap, g_object_unref> fonts_;
  Handle<PangoContext, g_object_unref> context_;
  Handle<PangoLayout, g_object_unref> layout_;
  PrintFont font_;
  Text text_;                      // the text laid out
  std::map<Text, Text> families_;  // requested families and their replacements
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_PRINTING_PAGE_TEXT_H_
