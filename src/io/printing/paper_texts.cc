#include <ZQ7Standard/PrintObject.h>

#include <algorithm>
#include <span>

#include "formats/paper_tables.h"
#include "numbers/number_text.h"

namespace ZQ7Standard {
namespace {

constexpr std::int16_t kLandscape = 2;

/// The text of `code`; if it has none, `custom` and the code in brackets.
Text TextOf(std::span<const CodeText> texts, std::int16_t code, TextView custom) {
  const auto row = std::ranges::find(texts, code, &CodeText::code);
  if (row != texts.end()) return Text(row->text);
  return Text(custom).append(u": ( ").append(ShortestText(*ToDecimal(code))).append(u" )");
}

}  // namespace

Text PrintObject::GETPaperSizeText(std::int16_t PaperSize) const {
  return TextOf(kPaperSizeTexts, PaperSize, u"Custom Size");
}

Text PrintObject::GETPaperBinText(std::int16_t PaperBin) const {
  return TextOf(kPaperBinTexts, PaperBin, u"Custom Bin");
}

Text PrintObject::GETPaperOrientationText(std::int16_t Orientation) const {
  return Orientation == kLandscape ? u"Landscape" : u"Portrait";
}

}  // namespace ZQ7Standard
