#include <ZQ7Standard/CImageInfo.h>

#include "tests/support/row_tests.h"
#include "tests/support/temp_folder.h"

using namespace ZQ7Standard;

// EXIF, fill bytes and top-down rows are inserted into what the encoder writes. Each file is read
// after another one, whose properties must not remain.
TEST(ReadImageInfo, ReadsRealFiles) {
  const TempFolder folder;
  CImageInfo info;
  const auto read = [&](const std::string& command) {
    folder.Run("rm -rf f; Make() { convert -size 30x20 gradient:red-blue $*; }; " + command);
    const int error = ErrorOf([&] { info.ReadImageInfo(folder.Path("f")); });
    return Shown(error) + ": " + Shown(+info.ImageType()) + " " + Shown(info.Width()) + "x" +
           Shown(info.Height()) + "x" + Shown(info.Depth());
  };
  // clang-format off
  ExpectRows<std::string>(read, {
      {{"Make -colors 2 GIF:f"}, "0: 1 30x20x1"}, {{"Make GIF:f"}, "0: 1 30x20x5"},
      {{"mkdir f"}, "75: 0 0x0x0"}, {{"Make JPEG:f"}, "0: 2 30x20x24"}, {{""}, "0: 0 0x0x0"},
      {{"Make -colorspace gray JPEG:f"}, "0: 2 30x20x8"}, {{"ls / >f"}, "0: 0 0x0x0"},
      {{"Make -interlace JPEG JPEG:f"}, "0: 2 30x20x24"},
      {{"printf '\\377\\330\\377\\300\\0\\21\\10\\0\\1\\0\\1\\40' >f"}, "6: 0 0x0x0"},
      {{"Make JPEG:j; (head -c2 j; printf '\\377\\341\\0\\10Exif\\0\\0'; tail -c+3 j) >f"},
       "0: 2 30x20x24"},
      {{"Make JPEG:j; (head -c2 j; printf '\\377\\377'; tail -c+3 j) >f"}, "0: 2 30x20x24"},
      {{"Make -type Bilevel PNG:f"}, "0: 3 30x20x1"}, {{"Make BMP3:f"}, "0: 4 30x20x24"},
      {{"Make -type Grayscale -depth 16 PNG:f"}, "0: 3 30x20x16"},
      {{"Make -depth 8 -define png:color-type=2 PNG:f"}, "0: 3 30x20x24"},
      {{"Make -colors 2 -define png:color-type=3 PNG:f"}, "0: 3 30x20x8"},
      {{"Make -colorspace gray -depth 8 -define png:color-type=4 PNG:f"}, "0: 3 30x20x16"},
      {{"Make -depth 16 -define png:color-type=6 PNG:f"}, "0: 3 30x20x64"},
      {{"Make -monochrome BMP3:f"}, "0: 4 30x20x1"},
      {{"Make -colors 16 -type Palette BMP3:f"}, "0: 4 30x20x4"},
      {{"Make -type Palette BMP3:f"}, "0: 4 30x20x8"},
      {{"Make -define bmp:subtype=RGB565 BMP:f"}, "0: 4 30x20x16"},
      {{"Make -type TrueColorMatte BMP:f"}, "0: 4 30x20x32"},
      {{"Make BMP3:b; (head -c22 b; printf '\\354\\377\\377\\377'; tail -c+27 b) >f"},
       "0: 4 30x65516x24"}});
  // clang-format on
}
