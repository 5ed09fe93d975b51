#ifndef ZQ7STANDARD_BENCH_IMAGES_H_
#define ZQ7STANDARD_BENCH_IMAGES_H_

#include <string>

namespace ZQ7Standard::Bench {

/// A file with a picture of 160 x 120 in the format "png", "jpeg", "gif" or "bmp", made by
/// ImageMagick and removed when the program ends.
std::string ImageFile(const std::string& format);

}  // namespace ZQ7Standard::Bench

#endif  // ZQ7STANDARD_BENCH_IMAGES_H_
