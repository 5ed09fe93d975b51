#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/platform/print_picture.h>

#include <fstream>
#include <sstream>
#include <string>

#include "tests/support/row_tests.h"
#include "tests/support/temp_folder.h"

namespace ZQ7Standard {
namespace {

/// A picture with the bytes of any file.
class BytesPicture final : public PrintPicture {
 public:
  explicit BytesPicture(std::string bytes) : bytes_(std::move(bytes)) {}
  float Width() override { return 1; }
  float Height() override { return 1; }
  std::string_view Picture() override { return bytes_; }

 private:
  std::string bytes_;
};

class SavePicture : public ::testing::Test {
 protected:
  /// Makes the file f by a shell command, saves it as j.jpg, and returns the error number.
  int Save(const std::string& command, std::int16_t quality = 75, const char* target = "j.jpg") {
    folder_.Run("rm -f f; " + command);
    std::ostringstream bytes;
    bytes << std::ifstream(folder_.Native() / "f").rdbuf();
    const auto picture = std::make_shared<BytesPicture>(bytes.str());
    try {
      StandardObject().SavePictureAsJPEG(picture, folder_.Path(target), quality);
      return 0;
    } catch (const RunTimeError& error) {
      message_ = error.what();
      return error.Number();
    }
  }

  std::string Described(const std::string& format) const {
    return folder_.Run("identify -format '" + format + "' j.jpg");
  }

  TempFolder folder_;
  std::string message_;  // of the last error
};

TEST_F(SavePicture, KeepsPixelsAndDensity) {
  ExpectRows<std::string>(
      [&](const std::string& command) {
        const int error = Save(command);
        return error != 0 ? Shown(error) : Described("%m %wx%h %xx%y %U %[colorspace]");
      },
      {{{"convert -size 30x20 gradient:red-blue PNG:f"}, "JPEG 30x20 96x96 PixelsPerInch sRGB"},
       {{"convert -size 30x20 gradient:red-blue -depth 16 -units PixelsPerInch -density 300 PNG:f"},
        "JPEG 30x20 300x300 PixelsPerInch sRGB"},
       {{"convert -size 30x20 xc:gray -units PixelsPerInch -density 72x144 JPEG:f"},
        "JPEG 30x20 72x144 PixelsPerInch sRGB"},
       {{"convert -size 1x1 xc:red -interlace JPEG JPEG:f"}, "JPEG 1x1 96x96 PixelsPerInch sRGB"},
       {{"convert -size 9x9 xc:red PNG:p; head -c 60 p >f"}, "481", "ends early"},
       {{"convert -size 99x99 plasma:fractal JPEG:p; head -c 2000 p >f"}, "481", "ends early"},
       {{"echo text >f"}, "481"},
       {{": >f"}, "481"}});
}

// The header alone tells: such a picture is not decoded.
TEST_F(SavePicture, RefusesWhatIsTooLarge) {
  const std::string header = "printf '\\211PNG\\r\\n\\32\\n\\0\\0\\0\\rIHDR";
  ExpectRows<std::string>(
      [&](const std::string& size) {
        Save(header + size + "' >f");
        const std::size_t start = message_.find("picture: ") + 9;
        return message_.substr(start, message_.find(" (error 481)") - start);
      },
      {{{"\\0\\1\\0\\0\\0\\0\\0\\1"}, "65536 by 1 pixels"},
       {{"\\0\\0\\60\\0\\0\\0\\60\\0"}, "12288 by 12288 pixels"}});
}

TEST_F(SavePicture, ShowsTheSameColours) {
  ExpectRows<std::string>(
      [&](const std::string& command) {
        const int error = Save(command, 100);
        return error != 0 ? Shown(error) : Described("%[pixel:p{4,4}]");
      },
      {{{"convert -size 9x9 xc:none PNG:f"}, "srgb(255,255,255)", "transparent"},
       {{"convert -size 9x9 'xc:rgba(0,0,0,0.5)' PNG:f"}, "srgb(127,127,127)", "half"},
       {{"convert -size 9x9 'xc:rgb(200,100,50)' PNG:f"}, "srgb(200,100,50)"},
       {{"convert -size 9x9 xc:gray40 -colorspace gray PNG:f"}, "srgb(102,102,102)"},
       {{"convert -size 9x9 'xc:rgb(255,0,0)' -colorspace CMYK -quality 100 JPEG:f"},
        "srgb(254,0,0)",
        "inks"}});
}

TEST_F(SavePicture, TellsNothingElse) {
  EXPECT_EQ(Save("convert -size 30x20 xc:red -set comment secret JPEG:f"), 0);
  EXPECT_EQ(folder_.Run("grep -c secret f"), "1\n");
  EXPECT_EQ(folder_.Run("grep -c secret j.jpg"), "0\n");
}

TEST_F(SavePicture, WritesTheFileWholeOrNotAtAll) {
  const std::string make = "convert -size 99x99 plasma:fractal PNG:f";
  EXPECT_EQ(Save(make, 100), 0);
  const auto large = std::filesystem::file_size(folder_.Native() / "j.jpg");
  EXPECT_EQ(Save(make, 1), 0) << "in place of the old file";
  EXPECT_LT(std::filesystem::file_size(folder_.Native() / "j.jpg"), large);
  const std::string before = folder_.Run("md5sum j.jpg");
  EXPECT_EQ(Save("echo text >f"), 481);
  EXPECT_EQ(Save(make, 0), 5);
  EXPECT_EQ(Save(make, 101), 5);
  EXPECT_EQ(folder_.Run("md5sum j.jpg"), before);
  EXPECT_EQ(Save(make, 75, "none/j.jpg"), 76);
  EXPECT_EQ(folder_.Run("ls -A"), "f\nj.jpg\n");
}

}  // namespace
}  // namespace ZQ7Standard
