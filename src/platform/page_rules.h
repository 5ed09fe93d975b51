#ifndef ZQ7STANDARD_SRC_PLATFORM_PAGE_RULES_H_
#define ZQ7STANDARD_SRC_PLATFORM_PAGE_RULES_H_

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/print_document.h>

#include <algorithm>
#include <cmath>
#include <string>

/// The rules of a printed page, whatever draws it. What breaks one raises error 482.
namespace ZQ7Standard {

/// Millimetres from the corner; within the range of every system's coordinates.
inline constexpr double kFarthest = 1'000'000;

inline constexpr double kLargestFont = 10'000;  // points

inline bool IsOnPaper(double position) {
  return std::abs(position) <= kFarthest;  // a NaN is not
}

inline void RequireOnPaper(PagePosition position) {
  if (IsOnPaper(position.x) && IsOnPaper(position.y)) return;
  throw RunTimeError(Error::kPrinterError, "a position beyond all paper");
}

inline void RequireOnPaper(PageSize picture) {
  if (IsOnPaper(picture.width) && IsOnPaper(picture.height) && picture.width != 0 &&
      picture.height != 0) {
    return;
  }
  throw RunTimeError(Error::kPrinterError, "a picture of no size or beyond all paper");
}

inline void RequireFontSize(double points) {
  if (points > 0 && points <= kLargestFont) return;
  throw RunTimeError(Error::kPrinterError, "no font has " + std::to_string(points) + " points");
}

/// `text` as one line: a tab, line break or other control character counts as a blank.
inline Text AsLine(TextView text) {
  Text line(text);
  std::ranges::replace_if(
      line,
      [](char16_t c) {
        return c < u' ' || c == u'\u007F' || c == u'\u0085' || c == u'\u2028' || c == u'\u2029';
      },
      u' ');
  return line;
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_PAGE_RULES_H_
