#include "formats/picture_size.h"

#include <cstddef>

#include "formats/jpeg.h"

namespace ZQ7Standard {
namespace {

using namespace std::string_view_literals;

constexpr double kMillimetresPerInch = 25.4;
constexpr double kScreenDotsPerMm = 96 / kMillimetresPerInch;

constexpr auto kPngSignature = "\x89PNG\r\n\x1A\n"sv;

/// Removes `count` bytes from the front of `bytes`, or all if there are fewer.
std::string_view Take(std::string_view& bytes, std::size_t count) {
  const std::string_view taken = bytes.substr(0, count);
  bytes.remove_prefix(taken.size());
  return taken;
}

/// Reads a number of `size` bytes off the front of `bytes`, the highest byte first.
std::uint32_t TakeNumber(std::string_view& bytes, std::size_t size) {
  std::uint32_t number = 0;
  for (const char byte : Take(bytes, size)) number = number << 8 | static_cast<unsigned char>(byte);
  return number;
}

/// Reads two densities off `bytes`, which count dots per `millimetres`. A density of 0 is ignored.
void TakeDensity(std::string_view& bytes, std::size_t size, double millimetres,
                 PictureSize& picture) {
  const std::uint32_t columns = TakeNumber(bytes, size);
  const std::uint32_t rows = TakeNumber(bytes, size);
  if (columns == 0 || rows == 0) return;
  picture.columns_per_mm = columns / millimetres;
  picture.rows_per_mm = rows / millimetres;
}

/// Reads the chunks of a PNG up to the pixels.
void ReadPng(std::string_view chunks, PictureSize& picture) {
  while (!chunks.empty()) {
    const std::uint32_t size = TakeNumber(chunks, 4);
    const std::string_view type = Take(chunks, 4);
    std::string_view data = Take(chunks, size);
    Take(chunks, 4);  // the check sum
    if (type == "IHDR") {
      picture.columns = TakeNumber(data, 4);
      picture.rows = TakeNumber(data, 4);
    } else if (type == "pHYs" && data.ends_with('\1')) {
      TakeDensity(data, 4, 1000, picture);  // dots to the metre
    } else if (type == "IDAT") {
      return;
    }
  }
}

/// Reads the density of a JFIF header.
void ReadJfif(std::string_view header, PictureSize& picture) {
  Take(header, 2);  // the version
  const std::uint32_t unit = TakeNumber(header, 1);
  if (unit == 1) TakeDensity(header, 2, kMillimetresPerInch, picture);
  if (unit == 2) TakeDensity(header, 2, 10, picture);
}

/// Reads the segments of a JPEG up to the frame.
void ReadJpeg(std::string_view segments, PictureSize& picture) {
  while (segments.starts_with(kMarkerPrefix)) {
    Take(segments, 1);
    if (segments.starts_with(kMarkerPrefix)) continue;  // a fill byte
    const std::uint32_t marker = TakeNumber(segments, 1);
    const std::uint32_t size = TakeNumber(segments, 2);
    std::string_view data = Take(segments, size < 2 ? 0 : size - 2);
    if (marker == 0xE0 && Take(data, 5) == "JFIF\0"sv) ReadJfif(data, picture);
    if (BeginsFrame(static_cast<int>(marker))) {
      Take(data, 1);  // the depth
      picture.rows = TakeNumber(data, 2);
      picture.columns = TakeNumber(data, 2);
      return;
    }
  }
}

}  // namespace

std::optional<PictureSize> ReadPictureSize(std::string_view file) {
  PictureSize picture{.columns_per_mm = kScreenDotsPerMm, .rows_per_mm = kScreenDotsPerMm};
  if (file.starts_with(kPngSignature)) {
    ReadPng(file.substr(kPngSignature.size()), picture);
  } else if (file.starts_with(kJpegStart)) {
    picture.format = PictureFormat::kJpeg;
    ReadJpeg(file.substr(kJpegStart.size()), picture);
  }
  if (picture.columns == 0 || picture.rows == 0) return std::nullopt;
  return picture;
}

}  // namespace ZQ7Standard
