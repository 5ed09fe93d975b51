#include <ZQ7Standard/BahtStringObject.h>
#include <ZQ7Standard/PrintObject.h>
#include <ZQ7Standard/platform/printers.h>
#include <cairo-pdf.h>
#include <pango/pangocairo.h>

#include "bench/inputs.h"
#include "bench/measure.h"
#include "handle.h"
#include "printing/linux/named_settings.h"
#include "printing/page_document.h"

namespace ZQ7Standard::Bench {
namespace {

constexpr double kPointsPerMillimetre = 72 / 25.4;

/// A printer of A4 that counts the bytes it receives.
class CountingPrinter final : public NamedSettings {
 public:
  void Print(std::string_view pdf) override { bytes += pdf.size(); }

  std::size_t bytes = 0;

 private:
  SettingValues Defaults() override { return {{{1, "3"}, {9, "iso_a4_210x297mm"}, {7, ""}, {}}}; }
  bool Supports(const SettingNames& /*setting*/, const std::string& /*name*/) override {
    return true;
  }
};

class OnePrinter final : public PrinterList {
 public:
  std::vector<Printer> Installed() override { return {printer_}; }
  Printer Current() override { return printer_; }
  void MakeCurrent(const Printer& /*printer*/) override {}

 private:
  Printer printer_ = PrinterOn(u"A4", std::make_shared<CountingPrinter>());
};

const std::vector<Text>& ThaiLines() {
  static const std::vector<Text> lines = [] {
    std::vector<Text> words;
    for (const Amount& amount : Amounts())
      words.push_back(BahtStringObject().BahtString(amount.value));
    return words;
  }();
  return lines;
}

const Text& Line(std::int64_t number) {
  return ThaiLines()[static_cast<std::size_t>(number) % ThaiLines().size()];
}

template <std::int64_t Lines>
void PageOurs(benchmark::State& state) {
  PrintObject printer({.printers = std::make_shared<OnePrinter>()});
  const std::vector<std::int64_t> pages = {Lines};
  Measure(state, pages, [&](std::int64_t lines) {
    printer.PrintStart();
    for (std::int32_t line = 0; line < lines; ++line) {
      printer.PrintGraphicText(Line(line), 20, 4 * line, 1, 0, 0, u"Garuda", 10);
    }
    return printer.PrintOut();
  });
}
BENCHMARK(PageOurs<60>)->Name("page_60/ours");
BENCHMARK(PageOurs<1000>)->Name("page_1000/ours");

cairo_status_t Count(void* bytes, const unsigned char* /*data*/, unsigned int size) {
  *static_cast<std::size_t*>(bytes) += size;
  return CAIRO_STATUS_SUCCESS;
}

std::size_t DrawByHand(const std::vector<std::string>& lines, std::int64_t count) {
  std::size_t bytes = 0;
  const Handle<cairo_surface_t, cairo_surface_destroy> surface(cairo_pdf_surface_create_for_stream(
      Count, &bytes, 210 * kPointsPerMillimetre, 297 * kPointsPerMillimetre));
  const Handle<cairo_t, cairo_destroy> page(cairo_create(surface.get()));
  const Handle<PangoLayout, g_object_unref> layout(pango_cairo_create_layout(page.get()));
  const Handle<PangoFontDescription, pango_font_description_free> font(
      pango_font_description_from_string("Garuda 10"));
  pango_layout_set_font_description(layout.get(), font.get());
  for (std::int64_t number = 0; number < count; ++number) {
    const std::string& line = lines[static_cast<std::size_t>(number) % lines.size()];
    pango_layout_set_text(layout.get(), line.data(), static_cast<int>(line.size()));
    cairo_move_to(page.get(), 20 * kPointsPerMillimetre,
                  4 * static_cast<double>(number) * kPointsPerMillimetre);
    pango_cairo_show_layout(page.get(), layout.get());
  }
  cairo_show_page(page.get());
  cairo_surface_finish(surface.get());
  return bytes;
}

template <std::int64_t Lines>
void PageByHand(benchmark::State& state) {
  std::vector<std::string> lines;
  for (const Text& line : ThaiLines()) lines.push_back(Utf8(line));
  const std::vector<std::int64_t> pages = {Lines};
  Measure(state, pages, [&](std::int64_t count) { return DrawByHand(lines, count); });
}
BENCHMARK(PageByHand<60>)->Name("page_60/by_hand");
BENCHMARK(PageByHand<1000>)->Name("page_1000/by_hand");

/// Shortens a text to half its width, several times.
template <std::size_t Length, int Times>
void CutText(benchmark::State& state) {
  const auto printers = std::make_shared<OnePrinter>();
  PrintObject printer({.printers = printers});
  Text text;
  for (std::int64_t line = 0; text.size() < Length; ++line) text += Line(line);
  text.resize(Length);
  const double limit = printers->Current().document->TextWidth(text) / 2;
  const std::vector<int> repeats = {Times};
  Measure(state, repeats, [&](int count) {
    for (int i = 0; i < count; ++i) printer.PrintGraphicText(text, 0, 0, 1, 0, limit);
    return printer.PrintCancel();
  });
}
BENCHMARK(CutText<2000, 1>)->Name("cut_text_2000/ours");
BENCHMARK(CutText<1000, 2>)->Name("cut_text_2000/1000_twice");

}  // namespace
}  // namespace ZQ7Standard::Bench
