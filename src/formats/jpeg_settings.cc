#include "formats/jpeg_settings.h"

#include <ZQ7Standard/RunTimeError.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>

namespace ZQ7Standard {
namespace {

constexpr std::uint32_t kLongestSide = 65'500;  // of a JPEG file
constexpr std::uint64_t kMostPixels = 100'000'000;
constexpr double kMillimetresPerInch = 25.4;
constexpr double kMostPerInch = 65'535;

int PerInch(double per_millimetre) {
  const double per_inch = std::round(per_millimetre * kMillimetresPerInch);
  return static_cast<int>(std::clamp(per_inch, 1.0, kMostPerInch));
}

}  // namespace

PictureSize SizeForJpeg(std::string_view picture) {
  const auto size = ReadPictureSize(picture);
  if (!size) throw RunTimeError(Error::kInvalidPicture, "neither a PNG nor a JPEG");
  if (std::max(size->columns, size->rows) > kLongestSide ||
      std::uint64_t{size->columns} * size->rows > kMostPixels) {
    throw RunTimeError(Error::kInvalidPicture, std::to_string(size->columns) + " by " +
                                                   std::to_string(size->rows) + " pixels");
  }
  return *size;
}

JpegSettings JpegSettingsFor(const PictureSize& size, int quality) {
  return {quality, PerInch(size.columns_per_mm), PerInch(size.rows_per_mm)};
}

}  // namespace ZQ7Standard
