#include <ZQ7Standard/platform/file_contents.h>
#include <ZQ7Standard/platform/print_picture.h>

#include <string>
#include <utility>

#include "base/raise.h"
#include "formats/picture_size.h"

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

}  // namespace

std::shared_ptr<PrintPicture> PictureFromFile(TextView path, DriveMap drives) {
  auto bytes = SystemFileReader(std::move(drives))->ReadAll(path);
  if (!bytes) Raise(Error::kFileNotFound, {}, path);
  const auto size = ReadPictureSize(*bytes);
  if (!size) Raise(Error::kInvalidArgument, {}, path, "neither a PNG nor a JPEG");
  return std::make_shared<FilePicture>(std::move(*bytes), *size);
}

}  // namespace ZQ7Standard
