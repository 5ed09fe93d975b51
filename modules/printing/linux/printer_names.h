#ifndef ZQ7STANDARD_MODULES_PRINTING_LINUX_PRINTER_NAMES_H_
#define ZQ7STANDARD_MODULES_PRINTING_LINUX_PRINTER_NAMES_H_

#include <ZQ7Standard/platform/printer_settings.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "formats/paper_tables.h"

namespace ZQ7Standard {

/// A code of a setting and its CUPS name. If a name is listed twice, its code is the first.
struct CodeName {
  std::int16_t code;
  std::string_view name;
  bool turned = false;  ///< a paper that lies on its side in the terms of its code
};

/// Numbers of orientation-requested (RFC 8011).
inline constexpr auto kOrientationNames = std::to_array<CodeName>({{1, "3"}, {2, "4"}});

/// Numbers of print-quality (RFC 8011).
inline constexpr auto kQualityNames =
    std::to_array<CodeName>({{-3, "4"}, {-1, "3"}, {-2, "3"}, {-4, "5"}});

/// Keywords of media-source (PWG 5100.3), and CUPS's names for the slots in printer descriptions
/// that have no keyword.
inline constexpr auto kBinNames = std::to_array<CodeName>({
    {1, "top"},
    {2, "bottom"},
    {3, "middle"},
    {4, "manual"},
    {5, "envelope"},
    {6, "manual"},  // an envelope fed by hand
    {7, "auto"},
    {8, "tractor"},
    {9, "small-format"},
    {10, "large-format"},
    {11, "large-capacity"},
    {14, "main"},
});

/// Self-describing names of media (PWG 5101.1).
inline constexpr auto kPaperNames = std::to_array<CodeName>({
    {1, "na_letter_8.5x11in"},
    {2, "na_letter_8.5x11in"},
    {3, "na_ledger_11x17in"},
    {4, "na_ledger_11x17in", true},
    {5, "na_legal_8.5x14in"},
    {6, "na_invoice_5.5x8.5in"},
    {7, "na_executive_7.25x10.5in"},
    {8, "iso_a3_297x420mm"},
    {9, "iso_a4_210x297mm"},
    {10, "iso_a4_210x297mm"},
    {11, "iso_a5_148x210mm"},
    {12, "iso_b4_250x353mm"},
    {13, "jis_b5_182x257mm"},
    {14, "na_foolscap_8.5x13in"},
    {15, "na_quarto_8.5x10.83in"},
    {16, "na_10x14_10x14in"},
    {17, "na_ledger_11x17in"},
    {18, "na_letter_8.5x11in"},
    {19, "na_number-9_3.875x8.875in"},
    {20, "na_number-10_4.125x9.5in"},
    {21, "na_number-11_4.5x10.375in"},
    {22, "na_number-12_4.75x11in"},
    {23, "na_number-14_5x11.5in"},
    {24, "na_c_17x22in"},
    {25, "na_d_22x34in"},
    {26, "na_e_34x44in"},
    {27, "iso_dl_110x220mm"},
    {28, "iso_c5_162x229mm"},
    {29, "iso_c3_324x458mm"},
    {30, "iso_c4_229x324mm"},
    {31, "iso_c6_114x162mm"},
    {32, "iso_c6c5_114x229mm"},
    {33, "iso_b4_250x353mm"},
    {34, "iso_b5_176x250mm"},
    {35, "iso_b6_125x176mm", true},
    {36, "om_italian_110x230mm"},
    {37, "na_monarch_3.875x7.5in"},
    {38, "na_personal_3.625x6.5in"},
    {39, "na_fanfold-us_11x14.875in", true},
    {40, "na_fanfold-eur_8.5x12in"},
    {41, "na_foolscap_8.5x13in"},
});

/// The form of a setting's names in CUPS.
enum class NameKind : std::uint8_t {
  kNumber,  ///< decimal digits only
  kWord,
};

/// A setting in CUPS.
struct SettingNames {
  PrinterSetting setting;
  const char* attribute;  ///< of IPP, without "-default" and "-supported"
  NameKind kind;
  std::span<const CodeName> names;
  std::int16_t other;  ///< the code of a name that has no code
};

/// In the order of the settings.
inline constexpr auto kSettings = std::to_array<SettingNames>({
    {PrinterSetting::kOrientation, "orientation-requested", NameKind::kNumber, kOrientationNames,
     1},
    {PrinterSetting::kPaperSize, "media", NameKind::kWord, kPaperNames, 256},
    {PrinterSetting::kPaperBin, "media-source", NameKind::kWord, kBinNames, 7},
    {PrinterSetting::kPrintQuality, "print-quality", NameKind::kNumber, kQualityNames, -3},
});

/// Whether each name has a text of the same code at its index.
constexpr bool SameCodes(std::span<const CodeName> names, std::span<const CodeText> texts) {
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (names[i].code != texts[i].code) return false;
  }
  return true;
}
static_assert(SameCodes(kPaperNames, kPaperSizeTexts) && kPaperNames.size() == 41);
static_assert(SameCodes(kBinNames, kPaperBinTexts) && kBinNames.size() == 12);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_PRINTING_LINUX_PRINTER_NAMES_H_
