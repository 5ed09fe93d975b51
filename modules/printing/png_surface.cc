#include "printing/png_surface.h"

namespace ZQ7Standard {
namespace {

/// Reads the next bytes of `file`, a `std::string_view`, for Cairo.
cairo_status_t ReadOn(void* file, unsigned char* data, unsigned int size) {
  auto& rest = *static_cast<std::string_view*>(file);
  if (rest.size() < size) return CAIRO_STATUS_READ_ERROR;
  rest.copy(reinterpret_cast<char*>(data), size);
  rest.remove_prefix(size);
  return CAIRO_STATUS_SUCCESS;
}

}  // namespace

Surface PngSurface(std::string_view file) {
  return Surface(cairo_image_surface_create_from_png_stream(ReadOn, &file));
}

}  // namespace ZQ7Standard
