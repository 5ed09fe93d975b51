#include "io/image_header.h"

#include "tests/support/rows.h"

using namespace ZQ7Standard;
using namespace std::string_literals;

namespace {

/// A file of zeros with `parts` at their offsets; it ends behind the last.
std::string File(const std::vector<std::pair<std::size_t, std::string>>& parts) {
  std::string bytes;
  for (const auto& [offset, part] : parts)
    bytes = bytes + std::string(offset - bytes.size(), '\0') + part;
  return bytes;
}

std::string Png(const std::string& bit_depth_and_colour_type) {
  return File({{0, "\x89PNG\r\n\x1A\n"},
               {18, "\x01\x2C"},
               {22, "\x00\xC8"s},
               {24, bit_depth_and_colour_type}});
}

std::string Segment(int marker, std::size_t length) {
  const std::string head = {'\xFF', static_cast<char>(marker), static_cast<char>(length / 256),
                            static_cast<char>(length % 256)};
  return head + std::string(length < 2 ? 0 : length - 2, '\xFE');
}

std::string Frame(int marker, char components = 3) {
  return {'\xFF', static_cast<char>(marker), 0, 17, 8, 0, '\xC8', 1, '\x2C', components};
}

const std::string kStart = "\xFF\xD8";

std::string Read(const std::string& bytes) {
  const ImageHeader header = ReadImageHeader(bytes);
  return std::to_string(header.type) + ": " + std::to_string(header.width) + " x " +
         std::to_string(header.height) + " x " + std::to_string(header.depth);
}

}  // namespace

TEST(ReadImageHeader, KnowsFourKindsByTheirFirstBytes) {
  const struct {
    const char* reason;
    std::string bytes;
    const char* expected;
  } rows[] = {
      {"empty", "", "0: 0 x 0 x 0"},
      {"text", "GI BN PNG", "0: 0 x 0 x 0"},
      {"GIF 1 x 1", "GIF89a\1\0\1\0\x80"s, "1: 1 x 1 x 1"},
      {"GIF, high bytes and all of the packed field", "GIF87a\1\2\3\4\xFF", "1: 513 x 1027 x 8"},
      {"GIF, cut short", "GIF", "1: 0 x 0 x 1"},
      {"PNG, grey of 16 bits", Png("\x10\x00"s), "3: 300 x 200 x 16"},
      {"PNG, colour", Png("\x08\x02"), "3: 300 x 200 x 24"},
      {"PNG, palette of 1 bit", Png("\x01\x03"), "3: 300 x 200 x 8"},
      {"PNG, palette of any bits", Png("\xFF\x03"), "3: 300 x 200 x 8"},
      {"PNG, grey and alpha", Png("\x08\x04"), "3: 300 x 200 x 16"},
      {"PNG, colour and alpha", Png("\x10\x06"), "3: 300 x 200 x 64"},
      {"PNG, a depth beyond 8 bits", Png("\x40\x06"), "3: 300 x 200 x 256"},
      {"PNG, colour type 1", Png("\x08\x01"), "0: 0 x 0 x 0"},
      {"PNG, colour type 5", Png("\x08\x05"), "0: 0 x 0 x 0"},
      {"PNG, colour type 7 before a JPEG", Png("\x08\x07") + kStart + Frame(0xC0),
       "2: 300 x 200 x 24"},
      {"PNG, three bytes suffice and sizes lose their high half",
       File({{0, "\x89PN"}, {16, "\x01\x02\x11\x70\x03\x04\x00\x05\x08\x00"s}}), "3: 4464 x 5 x 8"},
      {"PNG, two bytes do not", "\x89P", "0: 0 x 0 x 0"},
      {"BMP", File({{0, "BM"}, {18, "\x80\x02\0\0\xE0\x01\0\0\1\0\x18"s}}), "4: 640 x 480 x 24"},
      {"BMP, top down", File({{0, "BM"}, {18, "\x80\x02\1\0\x20\xFE\xFF\xFF\1\0\xFF\1"s}}),
       "4: 640 x 65056 x 255"},
  };
  for (const auto& row : rows) EXPECT_EQ(Read(row.bytes), row.expected) << row.reason;
}

TEST(ReadImageHeader, WalksTheSegmentsOfAJpegToItsFrame) {
  const std::string found = "2: 300 x 200 x 24";
  const std::string unknown = "0: 0 x 0 x 0";
  const std::string huffman = Segment(0xC4, 30);
  const struct {
    const char* reason;
    std::string bytes;
    std::string expected;
  } rows[] = {
      {"grey", kStart + Frame(0xC0, 1), "2: 300 x 200 x 8"},
      {"31 components", kStart + Frame(0xC2, 31), "2: 300 x 200 x 248"},
      {"32 components", kStart + Frame(0xC2, 32), "2: 300 x 200 x 256"},
      {"behind other segments", kStart + Segment(0xE1, 20000) + huffman + Frame(0xC0), found},
      {"a frame inside a segment is none",
       kStart + Segment(0xE1, 14).substr(0, 4) + Frame(0xC0) + "##" + Frame(0xC2, 1),
       "2: 300 x 200 x 8"},
      {"fill bytes", kStart + huffman + "\xFF\xFF\xFF" + Frame(0xC0), found},
      {"stray bytes", kStart + huffman + "##" + Frame(0xC0), found},
      {"a length of 0 moves on by a byte", kStart + Segment(0xE0, 0) + Frame(0xC0), found},
      {"no marker at the start of image", kStart + "#" + Frame(0xC0), unknown},
      {"a start of image anywhere", "text\xFF" + kStart + Frame(0xC0), found},
      {"the first start of image counts",
       kStart + Segment(0xE0, 12).substr(0, 4) + kStart + Frame(0xC0, 1) + Frame(0xC0), found},
      {"cut short before the frame", kStart + huffman + "\xFF", unknown},
      {"cut short within the frame", (kStart + Frame(0xC0)).substr(0, 9), "2: 0 x 200 x 0"},
      {"the last place for a frame", kStart + Segment(0xE0, 65520) + Frame(0xC0), found},
      {"a frame one byte on", kStart + Segment(0xE0, 65521) + Frame(0xC0), unknown},
      {"a segment past the end", kStart + Segment(0xE0, 65522) + Frame(0xC0), unknown},
      {"fill bytes past the end", kStart + std::string(65523, '\xFF') + Frame(0xC0), unknown},
      {"the last place for a start of image", std::string(65522, '#') + kStart + Frame(0xC0),
       found},
      {"a start of image one byte on", std::string(65523, '#') + kStart + Frame(0xC0), unknown},
  };
  for (const auto& row : rows) EXPECT_EQ(Read(row.bytes), row.expected) << row.reason;
  for (int marker = 0; marker < 0xFF; ++marker) {
    const bool frame = marker >= 0xC0 && marker <= 0xCF && marker % 4 != 0;
    const std::string bytes = kStart + Frame(marker) + std::string(9, '#') + Frame(0xC0, 1);
    EXPECT_EQ(Read(bytes), frame || marker == 0xC0 ? found : "2: 300 x 200 x 8") << marker;
  }
}
