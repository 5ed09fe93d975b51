#ifndef ZQ7STANDARD_SRC_FORMATS_JPEG_H_
#define ZQ7STANDARD_SRC_FORMATS_JPEG_H_

#include <algorithm>
#include <array>
#include <string_view>

/// The markers of a JPEG file (ITU T.81).
namespace ZQ7Standard {

/// The start of an image.
inline constexpr std::string_view kJpegStart = "\xFF\xD8";

/// The first byte of every marker; the second is its type.
inline constexpr char kMarkerPrefix = '\xFF';

// Frames of every coding. 0xC4, 0xC8 and 0xCC are other segments.
inline constexpr std::array kStartOfFrame = {0xC0, 0xC1, 0xC2, 0xC3, 0xC5, 0xC6, 0xC7,
                                             0xC9, 0xCA, 0xCB, 0xCD, 0xCE, 0xCF};

/// Whether a marker begins a frame, which holds the size of the picture.
constexpr bool BeginsFrame(int marker) {
  return std::ranges::find(kStartOfFrame, marker) != kStartOfFrame.end();
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_JPEG_H_
