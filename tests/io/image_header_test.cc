#include "io/image_header.h"

#include "tests/support/rows.h"

using namespace ZQ7Standard;
using namespace std::string_literals;

namespace {

std::string Segment(int marker, int length, const std::string& bytes) {
  return {"\xFF"s + static_cast<char>(marker) + static_cast<char>(length / 256) +
          static_cast<char>(length % 256) + bytes};
}

std::string Filled(int length) {
  return Segment(0xE0, length, std::string(static_cast<std::size_t>(length - 2), '\xFE'));
}

std::string Frame(int marker, char components) {
  return Segment(marker, 11, "\x08\0\xC8\1\x2C"s + components + "###");
}

}  // namespace

// What an encoder writes is read in image_info_test.cc; here is what none would.
TEST(ReadImageHeader, ReadsAnyBytes) {
  const std::string start = "\xFF\xD8";
  const std::string frame = Frame(0xC0, 3);
  const std::string png = "\x89PN" + std::string(13, '#') + "\1\1\x11\x70##\0\5"s;
  const std::string bmp = "BM" + std::string(16, '#');
  const auto read = [](const std::string& bytes) {
    const auto [type, width, height, depth] = ReadImageHeader(bytes);
    return Shown(+type) + ": " + Shown(width) + " x " + Shown(height) + " x " + Shown(depth);
  };
  // clang-format off
  ExpectRows<std::string>(read, {
      {{""}, "0: 0 x 0 x 0"}, {{"GI BN PNG"}, "0: 0 x 0 x 0"}, {{"GIF"}, "1: 0 x 0 x 1"},
      {{"GIF89a\1\2\3\4\xFF"}, "1: 513 x 1027 x 8"}, {{bmp + "\1\2##\3\4"}, "4: 513 x 1027 x 0"},
      {{png + "\x40\6"}, "3: 4464 x 5 x 256"}, {{png + "\xFF\3"}, "3: 4464 x 5 x 8"},
      {{png + "\x08\1"}, "0: 0 x 0 x 0"}, {{png + "\x08\5"}, "0: 0 x 0 x 0"},
      {{png + "\x08\7" + start + frame}, "2: 300 x 200 x 24", "a JPEG behind no PNG"},
      {{start + Frame(0xC2, 32)}, "2: 300 x 200 x 256"},
      {{start + Filled(9) + Filled(20000) + frame}, "2: 300 x 200 x 24"},
      {{start + Filled(9) + "##" + frame}, "2: 300 x 200 x 24", "stray bytes"},
      {{start + Segment(0xE0, 0, "") + frame}, "2: 300 x 200 x 24", "a length of 0"},
      {{"text\xFF" + start + frame}, "2: 300 x 200 x 24", "a start anywhere"},
      {{start + Segment(0xE0, 15, Frame(0xC0, 1)) + frame}, "2: 300 x 200 x 24"},
      {{start + Segment(0xE0, 4, start) + frame}, "2: 300 x 200 x 24", "a start in a segment"},
      {{start + "#" + frame}, "0: 0 x 0 x 0", "no marker at the start"},
      {{start + Filled(9) + "\xFF"}, "0: 0 x 0 x 0"},
      {{start + frame.substr(0, 7)}, "2: 0 x 200 x 0"},
      {{start + Filled(65520) + frame}, "2: 300 x 200 x 24", "the last place for a frame"},
      {{start + Filled(65521) + frame}, "0: 0 x 0 x 0"},
      {{start + Filled(65522) + frame}, "0: 0 x 0 x 0"},
      {{start + std::string(65523, '\xFF') + frame}, "0: 0 x 0 x 0"},
      {{std::string(65522, '#') + start + frame}, "2: 300 x 200 x 24", "the last start"},
      {{std::string(65523, '#') + start + frame}, "0: 0 x 0 x 0"}});
  // clang-format on
  for (int marker = 0; marker < 0xFF; ++marker) {
    const bool is_frame = marker >= 0xC0 && marker <= 0xCF && (marker % 4 != 0 || marker == 0xC0);
    const char* expected = is_frame ? "2: 300 x 200 x 8" : "2: 300 x 200 x 24";
    EXPECT_EQ(read(start + Frame(marker, 1) + frame), expected) << marker;
  }
}
