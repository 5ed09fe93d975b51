#include <ZQ7Standard/RunTimeError.h>

#include <cstdint>
#include <cstring>

#include "printing/pixels.h"
#include "printing/png_surface.h"

namespace ZQ7Standard {
namespace {

constexpr unsigned kWhite = 255;

/// A colour of a pixel on white; Cairo has multiplied it by the opacity.
unsigned char OnWhite(std::uint32_t pixel, int shift, unsigned opacity) {
  return static_cast<unsigned char>(((pixel >> shift) & kWhite) + (kWhite - opacity));
}

}  // namespace

Pixels PngPixels(std::string_view file) {
  const Surface surface = PngSurface(file);
  const cairo_status_t status = cairo_surface_status(surface.get());
  if (status != CAIRO_STATUS_SUCCESS) {
    throw RunTimeError(Error::kInvalidPicture, cairo_status_to_string(status));
  }
  Pixels pixels = {static_cast<std::size_t>(cairo_image_surface_get_width(surface.get())),
                   static_cast<std::size_t>(cairo_image_surface_get_height(surface.get()))};
  pixels.rgb.reserve(pixels.columns * pixels.rows * 3);
  const bool opaque = cairo_image_surface_get_format(surface.get()) == CAIRO_FORMAT_RGB24;
  const auto stride = static_cast<std::size_t>(cairo_image_surface_get_stride(surface.get()));
  const unsigned char* const data = cairo_image_surface_get_data(surface.get());
  for (std::size_t row = 0; row < pixels.rows; ++row) {
    for (std::size_t column = 0; column < pixels.columns; ++column) {
      std::uint32_t pixel = 0;
      std::memcpy(&pixel, data + row * stride + column * sizeof pixel, sizeof pixel);
      const unsigned opacity = opaque ? kWhite : pixel >> 24;
      for (const int shift : {16, 8, 0}) pixels.rgb.push_back(OnWhite(pixel, shift, opacity));
    }
  }
  return pixels;
}

}  // namespace ZQ7Standard
