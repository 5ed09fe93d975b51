#ifndef ZQ7STANDARD_PLATFORM_PRINTER_SETTINGS_H_
#define ZQ7STANDARD_PLATFORM_PRINTER_SETTINGS_H_

#include <ZQ7Standard/Export.h>

#include <cstdint>

namespace ZQ7Standard {

/// The numeric settings of a printer.
enum class PrinterSetting : std::uint8_t {
  kOrientation,   ///< 1 portrait, 2 landscape
  kPaperSize,     ///< a code of `PrintObject::GETPaperSizeText`
  kPaperBin,      ///< a code of `PrintObject::GETPaperBinText`
  kPrintQuality,  ///< -1 draft, -2 low, -3 medium, -4 high; from 1, dots per inch
};

/// How a printer prints its next document. Failures raise 482.
class ZQ7STANDARD_EXPORT PrinterSettings {
 public:
  virtual ~PrinterSettings();

  virtual std::int16_t Get(PrinterSetting setting) = 0;

  /// Fails if the printer cannot do `value`; the setting is then unchanged.
  virtual void Set(PrinterSetting setting, std::int16_t value) = 0;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_PRINTER_SETTINGS_H_
