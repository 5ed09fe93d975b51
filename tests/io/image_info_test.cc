#include <ZQ7Standard/CImageInfo.h>

#include <cstdlib>

#include "tests/support/rows.h"
#include "tests/support/temp_folder.h"

using namespace ZQ7Standard;
using namespace std::string_literals;

namespace {

std::string Properties(const CImageInfo& info) {
  return std::to_string(info.ImageType()) + ": " + std::to_string(info.Width()) + " x " +
         std::to_string(info.Height()) + " x " + std::to_string(info.Depth());
}

}  // namespace

// clang-format off
TEST(ReadImageInfo, KnowsTheFilesOfARealEncoder) {
  const struct {
    const char* options;  // for the encoder, ending in the format
    std::size_t offset;   // where bytes are put into its file
    std::size_t replaced;
    std::string bytes;
    const char* expected;
  } rows[] = {
      {"-colors 2 GIF:", 0, 0, "", "1: 30 x 20 x 1"}, {"GIF:", 0, 0, "", "1: 30 x 20 x 5"},
      {"JPEG:", 0, 0, "", "2: 30 x 20 x 24"}, {"-colorspace gray JPEG:", 0, 0, "", "2: 30 x 20 x 8"},
      {"-colorspace CMYK JPEG:", 0, 0, "", "2: 30 x 20 x 32"},
      {"-interlace JPEG JPEG:", 0, 0, "", "2: 30 x 20 x 24"},
      {"JPEG:", 2, 0, "\xFF\xE1\0\x10""Exif\0\0MM\0*\0\0"s, "2: 30 x 20 x 24"},
      {"JPEG:", 2, 0, "\xFF\xFF\xFF", "2: 30 x 20 x 24"},
      {"-type Bilevel PNG:", 0, 0, "", "3: 30 x 20 x 1"},
      {"-type Grayscale -depth 8 PNG:", 0, 0, "", "3: 30 x 20 x 8"},
      {"-type Grayscale -depth 16 PNG:", 0, 0, "", "3: 30 x 20 x 16"},
      {"-define png:color-type=2 -depth 8 PNG:", 0, 0, "", "3: 30 x 20 x 24"},
      {"-define png:color-type=2 -depth 16 PNG:", 0, 0, "", "3: 30 x 20 x 48"},
      {"-colors 2 -define png:color-type=3 PNG:", 0, 0, "", "3: 30 x 20 x 8"},
      {"-colorspace gray -define png:color-type=4 -depth 8 PNG:", 0, 0, "", "3: 30 x 20 x 16"},
      {"-define png:color-type=6 -depth 16 PNG:", 0, 0, "", "3: 30 x 20 x 64"},
      {"-monochrome BMP3:", 0, 0, "", "4: 30 x 20 x 1"}, {"-colors 16 -type Palette BMP3:", 0, 0, "", "4: 30 x 20 x 4"},
      {"-type Palette BMP3:", 0, 0, "", "4: 30 x 20 x 8"}, {"-define bmp:subtype=RGB565 BMP:", 0, 0, "", "4: 30 x 20 x 16"},
      {"-type TrueColor BMP3:", 0, 0, "", "4: 30 x 20 x 24"}, {"-type TrueColorMatte BMP:", 0, 0, "", "4: 30 x 20 x 32"},
      {"-type TrueColor BMP3:", 22, 4, "\xEC\xFF\xFF\xFF", "4: 30 x 65516 x 24"}};
  const TempFolder folder;
  CImageInfo info;
  for (const auto& row : rows) {
    const std::string command = "convert -size 30x20 gradient:red-blue "s + row.options;
    ASSERT_EQ(std::system((command + folder.Native("image").native()).c_str()), 0) << command;
    folder.Write("image", folder.Read("image").replace(row.offset, row.replaced, row.bytes));
    info.ReadImageInfo(folder.Path("image"));
    EXPECT_EQ(Properties(info), row.expected) << command;
  }
}

TEST(ReadImageInfo, ForgetsTheLastFileFirst) {
  const TempFolder folder;
  CImageInfo info;
  EXPECT_EQ(Properties(info), "0: 0 x 0 x 0");
  folder.Write("gif", "GIF89a\1\0\1\0\7"s);
  folder.Write("text", std::string(70000, '#'));
  folder.Write("jpeg", "\xFF\xD8\xFF\xC0\0\x11\x08\0\1\0\1\x20"s);
  ExpectRows<std::string>(
      [&](const std::string& name) {
        info.ReadImageInfo(folder.Path("gif"));
        EXPECT_EQ(Properties(info), "1: 1 x 1 x 8");
        const int error = ErrorOf([&] { info.ReadImageInfo(folder.Path(name)); });
        return std::to_string(error) + ", " + Properties(info);
      },
      {{{"text"}, "0, 0: 0 x 0 x 0"}, {{"missing"}, "0, 0: 0 x 0 x 0"}, {{"jpeg"}, "6, 0: 0 x 0 x 0"},
       {{"missing/gif"}, "76, 0: 0 x 0 x 0"}, {{""}, "75, 0: 0 x 0 x 0"}});
  EXPECT_EQ(std::filesystem::file_size(folder.Native("missing")), 0);
}
// clang-format on
