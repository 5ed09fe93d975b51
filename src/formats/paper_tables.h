#ifndef ZQ7STANDARD_SRC_FORMATS_PAPER_TABLES_H_
#define ZQ7STANDARD_SRC_FORMATS_PAPER_TABLES_H_

#include <ZQ7Standard/Types.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace ZQ7Standard {

/// The name of a paper or a bin.
struct CodeText {
  std::int16_t code;
  TextView text;
};

inline constexpr auto kPaperSizeTexts = std::to_array<CodeText>({
    {1, u"Letter, 8 1/2 x 11 in"},
    {2, u"+A611Letter Small, 8 1/2 x 11 in"},
    {3, u"Tabloid, 11 x 17 in"},
    {4, u"Ledger, 17 x 11 in"},
    {5, u"Legal, 8 1/2 x 14 in"},
    {6, u"Statement, 5 1/2 x 8 1/2 in"},
    {7, u"Executive, 7 1/2 x 10 1/2 in"},
    {8, u"A3, 297 x 420 mm"},
    {9, u"A4, 210 x 297 mm"},
    {10, u"A4 Small, 210 x 297 mm"},
    {11, u"A5, 148 x 210 mm"},
    {12, u"B4, 250 x 354 mm"},
    {13, u"B5, 182 x 257 mm"},
    {14, u"Folio, 8 1/2 x 13 in"},
    {15, u"Quarto, 215 x 275 mm"},
    {16, u"10 x 14 in"},
    {17, u"11 x 17 in"},
    {18, u"Note, 8 1/2 x 11 in"},
    {19, u"Envelope #9, 3 7/8 x 8 7/8 in"},
    {20, u"Envelope #10, 4 1/8 x 9 1/2 in"},
    {21, u"Envelope #11, 4 1/2 x 10 3/8 in"},
    {22, u"Envelope #12, 4 1/2 x 11 in"},
    {23, u"Envelope #14, 5 x 11 1/2 in"},
    {24, u"C size sheet"},
    {25, u"D size sheet"},
    {26, u"E size sheet"},
    {27, u"Envelope DL, 110 x 220 mm"},
    {28, u"Envelope C5, 162 x 229 mm"},
    {29, u"Envelope C3, 324 x 458 mm"},
    {30, u"Envelope C4, 229 x 324 mm"},
    {31, u"Envelope C6, 114 x 162 mm"},
    {32, u"Envelope C65, 114 x 229 mm"},
    {33, u"Envelope B4, 250 x 353 mm"},
    {34, u"Envelope B5, 176 x 250 mm"},
    {35, u"Envelope B6, 176 x 125 mm"},
    {36, u"Envelope, 110 x 230 mm"},
    {37, u"Envelope Monarch, 3 7/8 x 7 1/2 in"},
    {38, u"Envelope, 3 5/8 x 6 1/2 in"},
    {39, u"U.S. Standard Fanfold, 14 7/8 x 11 in"},
    {40, u"German Standard Fanfold, 8 1/2 x 12 in"},
    {41, u"German Legal Fanfold, 8 1/2 x 13 in"},
    {256, u"User-defined"},
});

inline constexpr auto kPaperBinTexts = std::to_array<CodeText>({
    {1, u"Upper Bin"},
    {2, u"Lower Bin"},
    {3, u"Middle Bin"},
    {4, u"Manual insertion"},
    {5, u"Envelope feeder"},
    {6, u"Envelope feeder, but wait for manual insertion"},
    {7, u"Default bin"},
    {8, u"Tractor feeder"},
    {9, u"Small paper feeder"},
    {10, u"Large paper bin"},
    {11, u"Large capacity feeder"},
    {14, u"Attached cassette cartridge"},
});

/// Whether the codes of the first `count` rows are 1 to `count`.
constexpr bool CountsFromOne(std::span<const CodeText> rows, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    if (rows[i].code != static_cast<std::int16_t>(i + 1)) return false;
  }
  return true;
}
static_assert(CountsFromOne(kPaperSizeTexts, 41) && kPaperSizeTexts.size() == 42);
static_assert(CountsFromOne(kPaperBinTexts, 11) && kPaperBinTexts.size() == 12);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_PAPER_TABLES_H_
