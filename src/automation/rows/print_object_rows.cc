#include <ZQ7Standard/PrintObject.h>

#include <memory>

#include "automation/classes.h"
#include "automation/rows.h"

namespace ZQ7Standard::Automation {
namespace {

void AddSelection(ClassRow& info) {
  AddSubject(info, "The printer and its paper",
             {Operation<&PrintObject::SelectPrinter>(
                  1, "SelectPrinter", {"DeviceName", "Orientation", "PaperSize", "PaperBin"},
                  "Remembers a printer and its paper; always 1.", {{{u"PDF", 1, 9, 7}, 1}}),
              Operation<&PrintObject::SelectPrinter2>(
                  2, "SelectPrinter2",
                  {"DeviceName", "Orientation", "PaperSize", "PaperBin", "PrintQuality"},
                  "Remembers a printer, its paper and its quality; always 1.",
                  {{{u"PDF", 1, 9, 7, -4}, 1}}),
              Operation<&PrintObject::CheckPaperSize>(
                  3, "CheckPaperSize", {Optional("StartSize", 0)},
                  "Sets the paper and returns the one in force.", {{{11}, 11}}),
              Operation<&PrintObject::CheckPaperBin>(4, "CheckPaperBin", {Optional("StartBin", 0)},
                                                     "Sets the bin and returns the one in force.",
                                                     {{{1}, 1}})});
}

void AddTexts(ClassRow& info) {
  AddSubject(info, "Papers, bins and orientations by name",
             {Operation<&PrintObject::GETPaperSizeText>(
                  5, "GETPaperSizeText", {"PaperSize"}, "The name of a paper.",
                  {{{9}, u"A4, 210 x 297 mm"}, {{300}, u"Custom Size: ( 300 )"}}),
              Operation<&PrintObject::GETPaperBinText>(6, "GETPaperBinText", {"PaperBin"},
                                                       "The name of a bin.", {{{1}, u"Upper Bin"}}),
              Operation<&PrintObject::GETPaperOrientationText>(
                  7, "GETPaperOrientationText", {"Orientation"}, R"("Landscape" or "Portrait".)",
                  {{{2}, u"Landscape"}, {{99}, u"Portrait"}})});
}

void AddPrinting(ClassRow& info) {
  const std::vector<Call> line = {{"PrintStart"}, {"PrintGraphicText", {u"ใบเสร็จ", 105, 20, 1, 1}}};
  AddSubject(
      info, "Printing",
      {Operation<&PrintObject::PrintStart>(
           8, "PrintStart", "Makes the printer count in millimetres, and goes to 1, 1.", {{{}, 0}}),
       Operation<&PrintObject::PrintSet>(9, "PrintSet", {"Row", "Col", "FSize", "message"},
                                         "Prints a line in the Thai font.",
                                         {{{20, 30, 10, u"สวัสดี"}, 0}}),
       Operation<&PrintObject::PrintGraphicText>(
           10, "PrintGraphicText",
           {"sMsg", Optional("x", -1), Optional("y", -1), Optional("MoveLine", 1),
            Optional("Alignment", 0), Optional("MaxLenText", 0), Optional("FontName", u""),
            Optional("FontSize", 0), Optional("FontBold", false), Optional("FontItalic", false)},
           "Prints a line of text, aligned to a place.", {{{u"ใบเสร็จ", 105, 20, 1, 1}, 0}}),
       Operation<&PrintObject::PrintGraphicObject>(
           11, "PrintGraphicObject",
           {"Src", Optional("x", -1), Optional("y", -1), Optional("W", 0), Optional("H", 0),
            Optional("MoveLine", 1)},
           "Draws a picture.", {{{u"C:\\none\\logo.png", 10, 10}, Raises(53)}}),
       Operation<&PrintObject::PrintOut>(
           12, "PrintOut", "Ends the document, which is then printed.", {{{}, 0, line}}),
       Operation<&PrintObject::PrintCancel>(13, "PrintCancel", "Throws the document away.",
                                            {{{}, 0, line}})});
}

}  // namespace

ClassRow PrintObjectEntry() {
  ClassRow info = {
      .name = "PrintObject",
      .help = "Printers, papers and printed pages.",
      .create = [](const HostServices& services) -> std::shared_ptr<void> {
        return std::make_shared<PrintObject>(PrintServices{.printers = services.printers});
      }};
  for (const auto add : {AddSelection, AddTexts, AddPrinting}) add(info);
  return info;
}

ClassRow PrintPictureEntry() {
  ClassRow info = {
      .name = "PrintPicture",
      .help = "A picture for `PrintObject`; a path makes one of a PNG or JPEG file.",
      .from_text = [](const HostServices& services, TextView path) -> std::shared_ptr<void> {
        return PictureFromFile(path, services.drives);
      }};
  info.properties = {Property<&PrintPicture::Width>(1, "Width", "The width in millimetres."),
                     Property<&PrintPicture::Height>(2, "Height", "The height in millimetres.")};
  return info;
}

}  // namespace ZQ7Standard::Automation
