#include <ZQ7Standard/PrintObject.h>

#include <memory>

#include "automation/catalogue_rows.h"
#include "automation/classes.h"

namespace ZQ7Standard::Automation {
namespace {

using enum Effect;

void AddSelection(ClassRow& info) {
  AddOperations(
      info, MayBlock({Operation<&PrintObject::SelectPrinter>(
                          1, "SelectPrinter", kOutside,
                          {"DeviceName", "Orientation", "PaperSize", "PaperBin"},
                          {{{u"PDF", 1, 9, 7}, 1}}),
                      Operation<&PrintObject::SelectPrinter2>(
                          2, "SelectPrinter2", kOutside,
                          {"DeviceName", "Orientation", "PaperSize", "PaperBin", "PrintQuality"},
                          {{{u"PDF", 1, 9, 7, -4}, 1}}),
                      Operation<&PrintObject::CheckPaperSize>(
                          3, "CheckPaperSize", kOutside, {Optional("StartSize", 0)}, {{{11}, 11}}),
                      Operation<&PrintObject::CheckPaperBin>(
                          4, "CheckPaperBin", kOutside, {Optional("StartBin", 0)}, {{{1}, 1}})}));
}

void AddTexts(ClassRow& info) {
  AddOperations(info, {Operation<&PrintObject::GETPaperSizeText>(
                           5, "GETPaperSizeText", kNone, {"PaperSize"},
                           {{{9}, u"A4, 210 x 297 mm"}, {{300}, u"Custom Size: ( 300 )"}}),
                       Operation<&PrintObject::GETPaperBinText>(
                           6, "GETPaperBinText", kNone, {"PaperBin"}, {{{1}, u"Upper Bin"}}),
                       Operation<&PrintObject::GETPaperOrientationText>(
                           7, "GETPaperOrientationText", kNone, {"Orientation"},
                           {{{2}, u"Landscape"}, {{99}, u"Portrait"}})});
}

void AddPrinting(ClassRow& info) {
  const std::vector<Call> line = {{"PrintStart"}, {"PrintGraphicText", {u"ใบเสร็จ", 105, 20, 1, 1}}};
  AddOperations(
      info, MayBlock({Operation<&PrintObject::PrintStart>(8, "PrintStart", kOutside, {{{}, 0}}),
                      Operation<&PrintObject::PrintSet>(9, "PrintSet", kOutside,
                                                        {"Row", "Col", "FSize", "message"},
                                                        {{{20, 30, 10, u"สวัสดี"}, 0}}),
                      Operation<&PrintObject::PrintGraphicText>(
                          10, "PrintGraphicText", kOutside,
                          {"sMsg", Optional("x", -1), Optional("y", -1), Optional("MoveLine", 1),
                           Optional("Alignment", 0), Optional("MaxLenText", 0),
                           Optional("FontName", u""), Optional("FontSize", 0),
                           Optional("FontBold", false), Optional("FontItalic", false)},
                          {{{u"ใบเสร็จ", 105, 20, 1, 1}, 0}}),
                      Operation<&PrintObject::PrintGraphicObject>(
                          11, "PrintGraphicObject", kOutside,
                          {"Src", Optional("x", -1), Optional("y", -1), Optional("W", 0),
                           Optional("H", 0), Optional("MoveLine", 1)},
                          {{{u"C:\\none\\logo.png", 10, 10}, Raises(53)}}),
                      Operation<&PrintObject::PrintOut>(12, "PrintOut", kOutside, {{{}, 0, line}}),
                      Operation<&PrintObject::PrintCancel>(13, "PrintCancel", kOutside,
                                                           {{{}, 0, line}})}));
}

}  // namespace

ClassRow PrintObjectRows() {
  ClassRow info = {.name = "PrintObject",
                   .create = [](const Services& services) -> std::shared_ptr<void> {
                     return std::make_shared<PrintObject>(services);
                   }};
  for (const auto add : {AddSelection, AddTexts, AddPrinting}) add(info);
  return info;
}

ClassRow PrintPictureRows() {
  ClassRow info = {.name = "PrintPicture"};
  info.properties = {Outside(Property<&PrintPicture::Width>(1, "Width")),
                     Outside(Property<&PrintPicture::Height>(2, "Height"))};
  return info;
}

}  // namespace ZQ7Standard::Automation
