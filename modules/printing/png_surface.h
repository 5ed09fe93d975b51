#ifndef ZQ7STANDARD_MODULES_PRINTING_PNG_SURFACE_H_
#define ZQ7STANDARD_MODULES_PRINTING_PNG_SURFACE_H_

#include <cairo.h>

#include <string_view>

#include "handle.h"

namespace ZQ7Standard {

using Surface = Handle<cairo_surface_t, cairo_surface_destroy>;

/// The picture of a PNG file; the status of the surface tells whether the file is damaged.
Surface PngSurface(std::string_view file);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_PRINTING_PNG_SURFACE_H_
