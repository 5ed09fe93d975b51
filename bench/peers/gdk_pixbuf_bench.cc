#include <gdk-pixbuf/gdk-pixbuf.h>

#include <array>

#include "bench/images.h"
#include "bench/measure.h"

namespace ZQ7Standard::Bench {
namespace {

void ReadImageGdkPixbuf(benchmark::State& state, const char* format) {
  Measure(state, std::array{ImageFile(format)}, [](const std::string& name) {
    gint width = 0;
    gint height = 0;
    gdk_pixbuf_get_file_info(name.c_str(), &width, &height);
    return width;
  });
}
BENCHMARK_CAPTURE(ReadImageGdkPixbuf, png, "png")->Name("read_image_png/gdk_pixbuf");
BENCHMARK_CAPTURE(ReadImageGdkPixbuf, jpeg, "jpeg")->Name("read_image_jpeg/gdk_pixbuf");
BENCHMARK_CAPTURE(ReadImageGdkPixbuf, gif, "gif")->Name("read_image_gif/gdk_pixbuf");
BENCHMARK_CAPTURE(ReadImageGdkPixbuf, bmp, "bmp")->Name("read_image_bmp/gdk_pixbuf");

}  // namespace
}  // namespace ZQ7Standard::Bench
