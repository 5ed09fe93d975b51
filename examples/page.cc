// Prints a page of Thai text, placed in millimetres, to a PDF file in the folder given.
#include <ZQ7Standard/PrintObject.h>
#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/printers.h>
#include <stdlib.h>

#include <cstdint>
#include <iostream>

int main(int argc, char** argv) {
  using namespace ZQ7Standard;
  constexpr std::int16_t kA4 = 9;
  enum Alignment : std::int32_t { kStart, kCentre, kEnd };
  if (argc != 2) {
    std::cerr << "usage: page FOLDER\n";
    return 2;
  }
  // Without a print server there is one printer, which writes PDF files.
  setenv("CUPS_SERVER", "/none", 1);
  try {
    PrintObject printer({.printers = SystemPrinters(argv[1])});
    printer.CheckPaperSize(kA4);
    printer.PrintStart();
    printer.PrintGraphicText(u"ใบเสร็จรับเงิน", 105, 20, 1, kCentre, 0, u"Laksaman", 22, true);
    printer.PrintGraphicText(u"ค่าเช่าเดือนมกราคม", 20, 40, 1, kStart, 0, u"Laksaman", 14);
    printer.PrintGraphicText(u"8,500.00", 190, 40, 1, kEnd);  // in the same font
    printer.PrintOut();
  } catch (const RunTimeError& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
