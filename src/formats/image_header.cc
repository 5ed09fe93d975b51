#include "formats/image_header.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "formats/jpeg.h"

namespace ZQ7Standard {
namespace {

constexpr std::string_view kPngSignature = "\x89PN";
constexpr std::string_view kGifSignature = "GIF";
constexpr std::string_view kBmpSignature = "BM";

// Where the fields are, in bytes from the start of the file. The sizes of PNG and BMP have four
// bytes; the low two are read.
constexpr std::size_t kPngWidth = 18;
constexpr std::size_t kPngHeight = 22;
constexpr std::size_t kPngBitDepth = 24;
constexpr std::size_t kPngColourType = 25;
constexpr std::size_t kGifWidth = 6;
constexpr std::size_t kGifHeight = 8;
constexpr std::size_t kGifPackedField = 10;
constexpr int kGifDepthMask = 7;
constexpr std::size_t kBmpWidth = 18;
constexpr std::size_t kBmpHeight = 22;
constexpr std::size_t kBmpDepth = 28;

// The same in a JPEG, in bytes from the 0xFF of a segment's marker.
constexpr std::size_t kSegmentLength = 2;
constexpr std::size_t kFrameHeight = 5;
constexpr std::size_t kFrameWidth = 7;
constexpr std::size_t kFrameComponents = 9;
constexpr int kBitsPerComponent = 8;
constexpr int kPrefix = static_cast<unsigned char>(kMarkerPrefix);
// Markers from here on are ignored.
constexpr std::size_t kJpegSearchEnd = 65'525;

/// A PNG colour type: a pixel has `samples` samples of the file's bit depth, or with a palette as
/// many bits as a colour index is unpacked to.
struct PngColour {
  int type;
  int samples;
  int palette_bits;
};

constexpr std::array kPngColours = {PngColour{.type = 0, .samples = 1, .palette_bits = 0},
                                    PngColour{.type = 2, .samples = 3, .palette_bits = 0},
                                    PngColour{.type = 3, .samples = 0, .palette_bits = 8},
                                    PngColour{.type = 4, .samples = 2, .palette_bits = 0},
                                    PngColour{.type = 6, .samples = 4, .palette_bits = 0}};

/// The bytes of a header; bytes past its end read as 0.
class HeaderBytes {
 public:
  explicit HeaderBytes(std::string_view bytes) : bytes_(bytes) {}

  int At(std::size_t offset) const {
    return offset < bytes_.size() ? static_cast<unsigned char>(bytes_[offset]) : 0;
  }
  int BigEndian(std::size_t offset) const { return At(offset) * 256 + At(offset + 1); }
  int LittleEndian(std::size_t offset) const { return At(offset + 1) * 256 + At(offset); }

 private:
  std::string_view bytes_;
};

/// Returns nullopt for a colour type that PNG does not have.
std::optional<ImageHeader> ReadPng(HeaderBytes header) {
  const auto colour = std::ranges::find(kPngColours, header.At(kPngColourType), &PngColour::type);
  if (colour == kPngColours.end()) return std::nullopt;
  return ImageHeader{.type = itPNG,
                     .width = header.BigEndian(kPngWidth),
                     .height = header.BigEndian(kPngHeight),
                     .depth = header.At(kPngBitDepth) * colour->samples + colour->palette_bits};
}

ImageHeader ReadGif(HeaderBytes header) {
  return {.type = itGIF,
          .width = header.LittleEndian(kGifWidth),
          .height = header.LittleEndian(kGifHeight),
          .depth = (header.At(kGifPackedField) & kGifDepthMask) + 1};
}

ImageHeader ReadBmp(HeaderBytes header) {
  return {.type = itBMP,
          .width = header.LittleEndian(kBmpWidth),
          .height = header.LittleEndian(kBmpHeight),
          .depth = header.At(kBmpDepth)};
}

/// The offset of the first start-of-frame marker after the first start of image, wherever that is.
/// Fill bytes and stray bytes between segments are skipped.
std::optional<std::size_t> FindFrame(std::string_view bytes) {
  const std::size_t start = bytes.find(std::string(kJpegStart) + kMarkerPrefix);
  if (start >= kJpegSearchEnd) return std::nullopt;
  const HeaderBytes header(bytes);
  const std::size_t end = std::min(bytes.size(), kJpegSearchEnd);
  std::size_t offset = start + 2;
  while (offset < end) {
    const int marker = header.At(offset + 1);
    if (header.At(offset) != kPrefix || marker == kPrefix) {
      ++offset;
      continue;
    }
    if (BeginsFrame(marker)) return offset;
    // To the last byte of the segment; the search for the next marker starts there.
    offset += 1 + static_cast<std::size_t>(header.BigEndian(offset + kSegmentLength));
  }
  return std::nullopt;
}

ImageHeader ReadJpeg(std::string_view bytes) {
  const auto frame = FindFrame(bytes);
  if (!frame) return {};
  const HeaderBytes header(bytes);
  return {.type = itJPEG,
          .width = header.BigEndian(*frame + kFrameWidth),
          .height = header.BigEndian(*frame + kFrameHeight),
          .depth = header.At(*frame + kFrameComponents) * kBitsPerComponent};
}

}  // namespace

ImageHeader ReadImageHeader(std::string_view bytes) {
  const HeaderBytes header(bytes);
  if (bytes.starts_with(kPngSignature)) {
    if (const auto png = ReadPng(header)) return *png;
  }
  if (bytes.starts_with(kGifSignature)) return ReadGif(header);
  if (bytes.starts_with(kBmpSignature)) return ReadBmp(header);
  return ReadJpeg(bytes);
}

}  // namespace ZQ7Standard
