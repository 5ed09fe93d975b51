#ifndef ZQ7STANDARD_PRINTOBJECT_H_
#define ZQ7STANDARD_PRINTOBJECT_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/Types.h>
#include <ZQ7Standard/platform/print_document.h>
#include <ZQ7Standard/platform/print_picture.h>

#include <cstdint>
#include <memory>
#include <optional>

namespace ZQ7Standard {

class ServiceSet;

/// Printers, papers and printed pages.
///
/// Chooses the printer and its paper, names papers and bins, and prints one-page
/// documents, with positions in millimetres from the top left corner.
//
//     PrintObject printer;
//     printer.PrintStart();
//     printer.PrintGraphicText(u"ใบกำกับภาษี", 105, 20, 1, 1);
//     printer.PrintOut();
///
/// Made with a host's printers, the object asks for the current one and remembers its
/// name. The machine's own, which belong to the object alone, are asked when first
/// needed: neither making an object nor the names of papers ask a print server.
/// Operations that say so first make the remembered printer current: if the current one
/// has another name, ignoring case, the last installed printer of that name, if there is
/// one.
///
/// A printer's failure raises 482 with what the print system said, unless an operation
/// says otherwise; a `RunTimeError` of a host's own printer keeps its number. An instance
/// belongs to one thread at a time; distinct instances are independent unless they are
/// given the same printers.
class ZQ7STANDARD_EXPORT PrintObject {
 public:
  /// Uses the machine's services.
  PrintObject();
  /// Uses the host's services.
  explicit PrintObject(Services services);

  // --- The printer and its paper: src/io/printing/printer_selection.cc ---

  /// Remembers a printer and its paper; always 1.
  ///
  /// The same as `SelectPrinter2` with a quality of 0.
  std::int16_t SelectPrinter(TextView DeviceName, std::int16_t Orientation, std::int16_t PaperSize,
                             std::int16_t PaperBin);

  /// Remembers a printer, its paper and its quality; always 1.
  ///
  /// Only the name has an effect, on the operations that make the remembered printer
  /// current; nothing is sent to a printer, and the name need not be that of an installed
  /// one.
  std::int16_t SelectPrinter2(TextView DeviceName, std::int16_t Orientation, std::int16_t PaperSize,
                              std::int16_t PaperBin, std::int16_t PrintQuality);

  /// Sets the paper and returns the one in force.
  ///
  /// Makes the remembered printer current and sets its paper to `StartSize`. A
  /// `StartSize` below 1 leaves the printer's own paper; so does one of 256
  /// (user-defined) or more if the environment variable "OS" is Windows_NT.
  ///
  /// Never raises: returns a paper that the printer refuses as if it were in force, and 0
  /// if the printer cannot be asked at all.
  std::int16_t CheckPaperSize(std::int16_t StartSize = 0);

  /// Sets the bin and returns the one in force.
  ///
  /// Otherwise as `CheckPaperSize`. A `StartBin` below 1, or of 7 (the default bin),
  /// leaves the printer's own.
  std::int16_t CheckPaperBin(std::int16_t StartBin = 0);

  // --- Papers, bins and orientations by name: src/io/printing/paper_texts.cc ---

  /// The name of a paper.
  ///
  /// "A4, 210 x 297 mm" for 9, "Custom Size: ( 300 )" for a code that has no name. Hosts
  /// compare and store these texts, so none ever changes: 2 is
  /// "+A611Letter Small, 8 1/2 x 11 in".
  Text GETPaperSizeText(std::int16_t PaperSize) const;

  /// The name of a bin.
  ///
  /// "Upper Bin" for 1, "Custom Bin: ( 12 )" for a code that has no name.
  Text GETPaperBinText(std::int16_t PaperBin) const;

  /// "Landscape" or "Portrait".
  ///
  /// "Landscape" for 2, "Portrait" for any other value.
  Text GETPaperOrientationText(std::int16_t Orientation) const;

  // --- Printing: src/io/printing/printing.cc ---

  /// Makes the printer use millimetres, and moves to 1, 1.
  ///
  /// The printer is the current one. Returns 0.
  std::int16_t PrintStart();

  /// Prints a line in the Thai font.
  ///
  /// Prints `message` on the current printer in BrowalliaUPC, 10 points, not bold. The
  /// names are swapped: `Row` is the distance from the left edge, `Col` that from the
  /// top. `FSize` has no effect. Steps that fail are skipped. Returns 0.
  std::int16_t PrintSet(float Row, float Col, std::uint8_t FSize, TextView message);

  /// Prints a line of text, aligned to a place.
  ///
  /// The printer is the remembered one, made current.
  ///
  /// The text is placed at `x`, `y`, where -1 is the printer's position rounded, halves
  /// to even; with `MoveLine` 0 it is at the height of the last text or picture instead.
  /// `x` is where it starts; for an `Alignment` of 1 its centre, its start being rounded
  /// the same way, and for 2 its end.
  ///
  /// A `MaxLenText` above 0 drops characters (a surrogate pair is one) from the end until
  /// the text is no wider than that, measured in the font of the call before, as the font
  /// is set after that. An empty `FontName` and a `FontSize` of 0 leave those as they
  /// are; bold and italic are always set.
  ///
  /// Returns 0. Raises 6 for a position that 32 bits cannot hold.
  std::int16_t PrintGraphicText(TextView sMsg, std::int32_t x = -1, std::int32_t y = -1,
                                std::int32_t MoveLine = 1, std::int32_t Alignment = 0,
                                double MaxLenText = 0, TextView FontName = {}, double FontSize = 0,
                                bool FontBold = false, bool FontItalic = false);

  /// Draws a picture.
  ///
  /// The printer is the remembered one, made current, and moves to the picture's top left
  /// corner: `x`, `y`, which count as in `PrintGraphicText`. A `W` or `H` of 0 is the
  /// picture's own. Returns 0. Raises 5 without a picture, 6 as `PrintGraphicText` does.
  std::int16_t PrintGraphicObject(const std::shared_ptr<PrintPicture>& Src, std::int32_t x = -1,
                                  std::int32_t y = -1, float W = 0, float H = 0,
                                  std::int32_t MoveLine = 1);

  /// Ends the document, which is then printed.
  ///
  /// The document is the current printer's. Returns 0. After a failure the document is
  /// lost; the next one is not affected.
  std::int16_t PrintOut();

  /// Discards the document.
  ///
  /// The document is the current printer's. Returns 0.
  std::int16_t PrintCancel();

 private:
  std::shared_ptr<ServiceSet> services_;
  std::optional<Text> device_name_;  // nullopt is the current printer's
  PagePosition last_;                // where the last text or picture was placed
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PRINTOBJECT_H_
