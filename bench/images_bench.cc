#include <ZQ7Standard/CImageInfo.h>
#include <ZQ7Standard/platform/path_text.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>

#include "bench/images.h"
#include "bench/measure.h"
#include "tests/support/temp_folder.h"

namespace ZQ7Standard::Bench {

std::string ImageFile(const std::string& format) {
  static const TempFolder folder;
  const std::string name = "picture." + format;
  folder.Run("test -e " + name + " || convert -seed 1 -size 160x120 plasma: " + name);
  return folder.Native() / name;
}

namespace {

void ReadImage(benchmark::State& state, const char* format) {
  CImageInfo info;
  Measure(state, std::array{PathText(ImageFile(format))}, [&info](const Text& path) {
    info.ReadImageInfo(path);
    return info.Width();
  });
}
BENCHMARK_CAPTURE(ReadImage, png, "png")->Name("read_image_png/ours");
BENCHMARK_CAPTURE(ReadImage, jpeg, "jpeg")->Name("read_image_jpeg/ours");
BENCHMARK_CAPTURE(ReadImage, gif, "gif")->Name("read_image_gif/ours");
BENCHMARK_CAPTURE(ReadImage, bmp, "bmp")->Name("read_image_bmp/ours");

/// The minimum: reads the first 65,536 bytes of a file, and creates a missing one.
void OpenReadClose(benchmark::State& state, const char* format) {
  std::array<char, 65536> buffer;
  Measure(state, std::array{ImageFile(format)}, [&buffer](const std::string& name) {
    const int file = open(name.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    const ssize_t size = read(file, buffer.data(), buffer.size());
    close(file);
    return size;
  });
}
BENCHMARK_CAPTURE(OpenReadClose, png, "png")->Name("read_image_png/bare");
BENCHMARK_CAPTURE(OpenReadClose, jpeg, "jpeg")->Name("read_image_jpeg/bare");
BENCHMARK_CAPTURE(OpenReadClose, gif, "gif")->Name("read_image_gif/bare");
BENCHMARK_CAPTURE(OpenReadClose, bmp, "bmp")->Name("read_image_bmp/bare");

}  // namespace
}  // namespace ZQ7Standard::Bench
