#include "platform/windows/pictures.h"

#include <ZQ7Standard/platform/picture_encoder.h>
#include <objbase.h>

#include <cmath>
#include <future>
#include <string>

#include "formats/picture_size.h"
#include "platform/windows/com.h"
#include "tests/support/row_tests.h"
#include "tests/support/small_pictures.h"

namespace ZQ7Standard {
namespace {

std::string ToJpeg(const std::string& picture) {
  return SystemPictureEncoder()->ToJpeg(picture, 100);
}

/// "columns x rows at density x density, red green blue" of the first pixel.
std::string Described(const std::string& file) {
  const Bitmap picture = DecodePicture(file);
  const auto density = ReadPictureSize(file);
  const auto dots = [](double per_mm) { return std::to_string(std::lround(per_mm * 25.4)); };
  std::string text = std::to_string(picture.columns) + "x" + std::to_string(picture.rows) + " at " +
                     dots(density->columns_per_mm) + "x" + dots(density->rows_per_mm) + ",";
  for (const int colour : {2, 1, 0}) {
    text += " " + std::to_string(picture.bytes[static_cast<std::size_t>(colour)]);
  }
  return text;
}

TEST(SystemPictures, KeepPixelsAndDensity) {
  const auto described = [](const std::string& file) { return Described(FromHex(file)); };
  ExpectRows<std::string>(described, {{{kTransparentPng}, "1x1 at 96x96, 255 255 255"},
                                      {{kHalfBlackPng}, "1x1 at 96x96, 127 127 127"},
                                      {{kDensePng}, "1x1 at 300x150, 200 100 50", "16 bits"},
                                      {{kGrayPng}, "1x1 at 96x96, 102 102 102"},
                                      {{kRedAndBluePng}, "3x2 at 96x96, 255 0 0"}});
  const auto as_jpeg = [](const std::string& file) { return Described(ToJpeg(FromHex(file))); };
  ExpectRows<std::string>(as_jpeg, {{{kTransparentPng}, "1x1 at 96x96, 255 255 255"},
                                    {{kDensePng}, "1x1 at 300x150, 200 100 50"},
                                    {{kGrayPng}, "1x1 at 96x96, 102 102 102"}});
  const std::string again = ToJpeg(ToJpeg(FromHex(kDensePng)));
  EXPECT_EQ(Described(again), "1x1 at 300x150, 200 100 50") << "from a JPEG";
}

TEST(SystemPictures, AreRowsFromTheTopOfWholeWords) {
  const Bitmap picture = DecodePicture(FromHex(kRedAndBluePng));
  ASSERT_EQ(picture.RowSize(), 12U);
  ASSERT_EQ(picture.bytes.size(), 24U);
  const std::string row("\0\0\xFF\0\0\xFF\xFF\0\0", 9);
  EXPECT_EQ(std::string(picture.bytes.begin(), picture.bytes.begin() + 9), row);
  EXPECT_EQ(std::string(picture.bytes.begin() + 12, picture.bytes.begin() + 21), row);
}

TEST(SystemPictures, AreRefusedIfDamagedOrTooLarge) {
  const std::string png = FromHex(kRedAndBluePng);
  const std::string jpeg = ToJpeg(png);
  std::string wrong = png;
  wrong[wrong.size() - 20] = '\x55';
  const std::string header = png.substr(0, 16);
  const auto error = [](const std::string& file) { return ErrorOf([&] { ToJpeg(file); }); };
  ExpectRows<std::string>(error,
                          {{{png.substr(0, 50)}, "481", "ends early"},
                           {{jpeg.substr(0, jpeg.size() - 2)}, "481", "lacks its end alone"},
                           {{jpeg.substr(0, jpeg.size() / 2)}, "481", "ends early"},
                           {{wrong}, "481", "wrong bytes"},
                           {{header + std::string("\0\1\0\0\0\0\0\1", 8)}, "481", "65536 wide"},
                           {{header + std::string("\0\0\60\0\0\0\60\0", 8)}, "481", "12288 square"},
                           {{"text"}, "481"},
                           {{""}, "481"}});
}

/// The apartment of the calling thread; -1 if it has none.
int Apartment() {
  APTTYPE type = APTTYPE_CURRENT;
  APTTYPEQUALIFIER qualifier = APTTYPEQUALIFIER_NONE;
  return CoGetApartmentType(&type, &qualifier) == S_OK ? type : -1;
}

TEST(SystemPictures, LeaveTheApartmentOfTheThread) {
  const auto after = [](int apartment) {
    return std::async(std::launch::async,
                      [apartment] {
                        if (apartment >= 0) CoInitializeEx(nullptr, static_cast<DWORD>(apartment));
                        EXPECT_EQ(ErrorOf([] { ToJpeg(FromHex(kGrayPng)); }), 0);
                        EXPECT_EQ(ErrorOf([] { ToJpeg("text"); }), 481);
                        const int left = Apartment();
                        if (apartment >= 0) CoUninitialize();
                        return std::pair(left, Apartment());
                      })
        .get();
  };
  EXPECT_EQ(after(-1), std::pair(-1, -1)) << "without COM";
  const auto single = after(COINIT_APARTMENTTHREADED);
  EXPECT_TRUE(single.first == APTTYPE_STA || single.first == APTTYPE_MAINSTA);
  EXPECT_EQ(single.second, -1);
  EXPECT_EQ(after(COINIT_MULTITHREADED), std::pair(int{APTTYPE_MTA}, -1));
}

}  // namespace
}  // namespace ZQ7Standard
