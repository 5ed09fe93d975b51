#include "formats/image_header.h"

#include "tests/support/row_tests.h"

using namespace ZQ7Standard;
using namespace std::string_literals;

namespace {

std::string Segment(int marker, int length, std::string bytes = "") {
  bytes.resize(static_cast<std::size_t>(std::max(length - 2, 0)), '\xFE');
  return {"\xFF"s + static_cast<char>(marker) + static_cast<char>(length / 256) +
          static_cast<char>(length % 256) + bytes};
}

std::string Frame(int marker, char components) {
  return Segment(marker, 11, "\x08\0\2\1\3"s + components);
}

}  // namespace

// image_info_test.cc reads what encoders write; here is what none would.
TEST(ReadImageHeader, ReadsAnyBytes) {
  const std::string start = "\xFF\xD8";
  const std::string jpeg = start + Frame(0xC0, 3);
  const std::string png = "\x89PN" + std::string(13, '#') + "\1\1\x11\x70##\0\5"s;
  const std::string bmp = "BM" + std::string(16, '#');
  const char* const none = "0 0x0x0";
  const char* const found = "2 259x2x24";
  const auto after = [&](const auto& bytes) { return start + bytes + Frame(0xC0, 3); };
  const auto read = [](const std::string& bytes) {
    const auto [type, width, height, depth] = ReadImageHeader(bytes);
    return Shown(+type) + " " + Shown(width) + "x" + Shown(height) + "x" + Shown(depth);
  };
  // clang-format off
  ExpectRows<std::string>(read, {
      {{""}, none}, {{"GI BN PNG"}, none}, {{"GIF"}, "1 0x0x1"},
      {{"GIF89a\1\2\3\4\xFF"}, "1 513x1027x8"}, {{bmp + "\1\2##\3\4"}, "4 513x1027x0"},
      {{png + "\x40\6"}, "3 4464x5x256"}, {{png + "\xFF\3"}, "3 4464x5x8"},
      {{png + "\x08\1"}, none}, {{png + "\x08\5"}, none}, {{png + "\x08\7" + jpeg}, found},
      {{start + Frame(0xC2, 32)}, "2 259x2x256"}, {{"text\xFF" + jpeg}, found},
      {{after(Segment(0xE0, 20000))}, found}, {{after(Segment(0xE0, 4, start))}, found},
      {{after(Segment(0xE0, 9) + "##")}, found, "stray bytes"}, {{after(Segment(0xE0, 0))}, found},
      {{after(Segment(0xE0, 15, Frame(0xC0, 1)))}, found}, {{after("#")}, none},
      {{start + Segment(0xE0, 9) + "\xFF"}, none},
      {{jpeg.substr(0, 9)}, "2 0x2x0"}, {{after(std::string(65523, '\xFF'))}, none},
      {{after(Segment(0xE0, 65520))}, found, "last"}, {{after(Segment(0xE0, 65521))}, none},
      {{after(Segment(0xE0, 65522))}, none, "a segment past the end"},
      {{std::string(65522, '#') + jpeg}, found}, {{std::string(65523, '#') + jpeg}, none}});
  // clang-format on
  for (int marker = 0; marker < 0xFF; ++marker) {
    const bool is_frame = marker >= 0xC0 && marker <= 0xCF && (marker % 4 != 0 || marker == 0xC0);
    EXPECT_EQ(read(after(Frame(marker, 1))), is_frame ? "2 259x2x8" : found) << marker;
  }
}
