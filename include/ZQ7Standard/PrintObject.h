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
/// Chooses the printer and its paper, tells papers and bins by name, and prints
/// documents of one page, positions in millimetres from the top left corner.
//
//     PrintObject printer;
//     printer.PrintStart();
//     printer.PrintGraphicText(u"ใบกำกับภาษี", 105, 20, 1, 1);
//     printer.PrintOut();
///
/// Made with a host's printers, the object asks for the current one and remembers its
/// name. The machine's own, which belong to the object alone, are asked when they are
/// first needed: making an object and the texts of papers ask no print server.
/// Operations that say so first make the remembered printer current: when the current
/// one has another name, case aside, the last installed printer of that name; the
/// current one stays where there is none.
///
/// What a printer fails to do raises 482 with what the print system said, unless an
/// operation says otherwise; a `RunTimeError` of a host's own printer keeps its number.
/// An instance belongs to one thread at a time; distinct instances are independent
/// unless they are given the same printers.
class ZQ7STANDARD_EXPORT PrintObject {
 public:
  /// With the services of the machine.
  PrintObject();
  /// With services of the host's own.
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
  /// current; nothing is sent to a printer, and the name may be of none.
  std::int16_t SelectPrinter2(TextView DeviceName, std::int16_t Orientation, std::int16_t PaperSize,
                              std::int16_t PaperBin, std::int16_t PrintQuality);

  /// Sets the paper and returns the one in force.
  ///
  /// Makes the remembered printer current and sets its paper to `StartSize`. A
  /// `StartSize` below 1 leaves the printer's own paper; so does one of 256
  /// (user-defined) or more where the environment variable "OS" is Windows_NT.
  ///
  /// Never raises: a paper that the printer refuses is returned as if it were in
  /// force, and 0 when the printer cannot be asked at all.
  std::int16_t CheckPaperSize(std::int16_t StartSize = 0);

  /// Sets the bin and returns the one in force.
  ///
  /// Otherwise as `CheckPaperSize`. `StartBin` below 1 and 7, the default bin, leave the
  /// printer's own.
  std::int16_t CheckPaperBin(std::int16_t StartBin = 0);

  // --- Papers, bins and orientations by name: src/io/printing/paper_texts.cc ---

  /// The name of a paper.
  ///
  /// "A4, 210 x 297 mm" for 9, "Custom Size: ( 300 )" for a code that has no name.
  /// Hosts compare and store these texts, so all stay as they are: 2 is
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

  /// Makes the printer count in millimetres, and goes to 1, 1.
  ///
  /// The printer is the current one. Returns 0.
  std::int16_t PrintStart();

  /// Prints a line in the Thai font.
  ///
  /// Prints `message` on the current printer in BrowalliaUPC, 10 points, not bold. The
  /// names are crossed: `Row` is the distance from the left edge, `Col` that from the
  /// top. `FSize` has no effect. Steps that fail are left out. Returns 0.
  std::int16_t PrintSet(float Row, float Col, std::uint8_t FSize, TextView message);

  /// Prints a line of text, aligned to a place.
  ///
  /// The printer is the remembered one, made current.
  ///
  /// The text stands at `x`, `y`, where -1 is the printer's position, rounded, a half to
  /// even; with `MoveLine` 0 at the height of the last text or picture instead. `x` is
  /// where it starts, for an `Alignment` of 1 its centre, its start being rounded the
  /// same, and for 2 its end.
  ///
  /// A `MaxLenText` above 0 drops characters (a surrogate pair is one) from the end
  /// until the text is no wider than that, in the font of the call before: only then
  /// is the font set. An empty `FontName` and a `FontSize` of 0 leave those as they
  /// are; bold and italic are always set.
  ///
  /// Returns 0. Raises 6 for a position that 32 bits cannot hold.
  std::int16_t PrintGraphicText(TextView sMsg, std::int32_t x = -1, std::int32_t y = -1,
                                std::int32_t MoveLine = 1, std::int32_t Alignment = 0,
                                double MaxLenText = 0, TextView FontName = {}, double FontSize = 0,
                                bool FontBold = false, bool FontItalic = false);

  /// Draws a picture.
  ///
  /// It stands on the remembered printer, made current, with its top left corner at `x`,
  /// `y`, which count as in `PrintGraphicText`, and the printer goes there. A `W` or `H`
  /// of 0 is the picture's own. Returns 0. Raises 5 without a picture, 6 as
  /// `PrintGraphicText` does.
  std::int16_t PrintGraphicObject(const std::shared_ptr<PrintPicture>& Src, std::int32_t x = -1,
                                  std::int32_t y = -1, float W = 0, float H = 0,
                                  std::int32_t MoveLine = 1);

  /// Ends the document, which is then printed.
  ///
  /// The document is the current printer's. Returns 0. After a failure the document is
  /// lost; the next one is not touched by it.
  std::int16_t PrintOut();

  /// Throws the document away.
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
