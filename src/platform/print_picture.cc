#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/print_picture.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>

#include "io/picture_size.h"
#include "text/unicode.h"

namespace ZQ7Standard {
namespace {

class FilePicture final : public PrintPicture {
 public:
  FilePicture(std::string file, const PictureSize& size)
      : file_(std::move(file)),
        width_(static_cast<float>(size.columns / size.columns_per_mm)),
        height_(static_cast<float>(size.rows / size.rows_per_mm)) {}

  float Width() override { return width_; }
  float Height() override { return height_; }
  std::string_view Picture() override { return file_; }

 private:
  std::string file_;
  float width_;
  float height_;
};

std::string ContentsOf(TextView path) {
  const std::filesystem::path file(Utf8(path));
  std::error_code ignored;
  if (!std::filesystem::exists(file, ignored)) {
    throw RunTimeError::FileNotFound("PictureFromFile", Quoted(path));
  }
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw RunTimeError::PermissionDenied("PictureFromFile", Quoted(path));
  try {
    return {std::istreambuf_iterator<char>(stream), {}};
  } catch (const std::ios_base::failure&) {
    throw RunTimeError::PathFileAccess("PictureFromFile", Quoted(path));
  }
}

}  // namespace

PrintPicture::~PrintPicture() = default;

std::shared_ptr<PrintPicture> PictureFromFile(TextView path) {
  std::string bytes = ContentsOf(path);
  const auto size = ReadPictureSize(bytes);
  if (!size) throw RunTimeError::InvalidArgument("PictureFromFile", Quoted(path));
  return std::make_shared<FilePicture>(std::move(bytes), *size);
}

}  // namespace ZQ7Standard
