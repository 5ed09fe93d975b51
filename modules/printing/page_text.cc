#include "printing/page_text.h"

#include <ZQ7Standard/platform/printers.h>
#include <fontconfig/fontconfig.h>

#include <cmath>
#include <string>

#include "platform/page_rules.h"

namespace ZQ7Standard {
namespace {

// The Thai letters, vowels and tone marks in Unicode.
constexpr FcChar32 kFirstThaiLetter = 0x0E01;
constexpr FcChar32 kLastThaiLetter = 0x0E3A;
constexpr FcChar32 kFirstThaiVowel = 0x0E40;
constexpr FcChar32 kLastThaiMark = 0x0E4D;

using Pattern = Handle<FcPattern, FcPatternDestroy>;
using Charset = Handle<FcCharSet, FcCharSetDestroy>;
using FontOptions = Handle<cairo_font_options_t, cairo_font_options_destroy>;
using Description = Handle<PangoFontDescription, pango_font_description_free>;

/// The installed font nearest to `pattern`.
Pattern Nearest(FcPattern* pattern) {
  FcConfigSubstitute(nullptr, pattern, FcMatchPattern);
  FcDefaultSubstitute(pattern);
  FcResult result = FcResultNoMatch;
  return Pattern(FcFontMatch(nullptr, pattern, &result));
}

Pattern PatternOf(const std::string& family) {
  Pattern pattern(FcPatternCreate());
  if (!family.empty()) {
    FcPatternAddString(pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(family.c_str()));
  }
  return pattern;
}

/// The name at `index` of a font's family; null after the last.
const FcChar8* FamilyName(const Pattern& font, int index) {
  FcChar8* name = nullptr;
  const bool found =
      font && FcPatternGetString(font.get(), FC_FAMILY, index, &name) == FcResultMatch;
  return found ? name : nullptr;
}

bool IsInstalled(const std::string& family) {
  const Pattern pattern = PatternOf(family);
  const Pattern font = Nearest(pattern.get());
  const auto* const wanted = reinterpret_cast<const FcChar8*>(family.c_str());
  for (int index = 0; const FcChar8* name = FamilyName(font, index); ++index) {
    if (FcStrCmpIgnoreCase(name, wanted) == 0) return true;
  }
  return false;
}

Charset ThaiLetters() {
  Charset letters(FcCharSetCreate());
  for (FcChar32 c = kFirstThaiLetter; c <= kLastThaiMark; ++c) {
    if (c <= kLastThaiLetter || c >= kFirstThaiVowel) FcCharSetAddChar(letters.get(), c);
  }
  return letters;
}

/// The family with Thai letters nearest to `family`; `family` if the machine has none.
std::string ThaiFamilyNear(const std::string& family) {
  const Charset letters = ThaiLetters();
  const Pattern pattern = PatternOf(family);
  FcPatternAddCharSet(pattern.get(), FC_CHARSET, letters.get());
  FcPatternAddString(pattern.get(), FC_LANG, reinterpret_cast<const FcChar8*>("th"));
  const Pattern font = Nearest(pattern.get());
  const FcChar8* const name = FamilyName(font, 0);
  return name == nullptr ? family : reinterpret_cast<const char*>(name);
}

/// Paper has no dots to which letters must be fitted.
void UseMetricsOfPaper(PangoContext* context) {
  const FontOptions options(cairo_font_options_create());
  cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
  pango_cairo_context_set_font_options(context, options.get());
  pango_context_set_round_glyph_positions(context, FALSE);
}

double Millimetres(int pango_units) {
  return pango_units / (PANGO_SCALE * kPointsPerMillimetre);
}

}  // namespace

PageText::PageText()
    : fonts_(pango_cairo_font_map_new()),
      context_(pango_font_map_create_context(fonts_.get())),
      layout_(nullptr) {
  pango_cairo_font_map_set_resolution(PANGO_CAIRO_FONT_MAP(fonts_.get()), 72);
  UseMetricsOfPaper(context_.get());
  pango_context_set_language(context_.get(), pango_language_from_string("th"));
  layout_.reset(pango_layout_new(context_.get()));
  pango_layout_set_single_paragraph_mode(layout_.get(), TRUE);
  font_.size = 0;
  SetFont({});
}

void PageText::SetFont(const PrintFont& font) {
  if (font == font_) return;
  RequireFontSize(font.size);
  const Description description(pango_font_description_new());
  pango_font_description_set_family(description.get(), Utf8(FamilyFor(font.name)).c_str());
  pango_font_description_set_size(description.get(),
                                  static_cast<int>(std::lround(font.size * PANGO_SCALE)));
  pango_font_description_set_weight(description.get(),
                                    font.bold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
  pango_font_description_set_style(description.get(),
                                   font.italic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
  pango_layout_set_font_description(layout_.get(), description.get());
  font_ = font;
}

const Text& PageText::FamilyFor(const Text& name) {
  const auto [entry, is_new] = families_.try_emplace(name, name);
  if (!is_new) return entry->second;
  const std::string family = Utf8(name);
  if (!IsInstalled(family)) entry->second = FromUtf8(ThaiFamilyNear(family));
  return entry->second;
}

void PageText::Lay(TextView text) {
  if (text == text_) return;
  text_ = text;
  const std::string bytes = Utf8(AsLine(text));
  pango_layout_set_text(layout_.get(), bytes.data(), static_cast<int>(bytes.size()));
}

PageSize PageText::Measure(TextView text) {
  Lay(text);
  int width = 0;
  int height = 0;
  pango_layout_get_size(layout_.get(), &width, &height);
  return {static_cast<float>(Millimetres(width)), static_cast<float>(Millimetres(height))};
}

void PageText::Draw(TextView text, cairo_t* page) {
  Lay(text);
  pango_cairo_show_layout(page, layout_.get());
}

}  // namespace ZQ7Standard
