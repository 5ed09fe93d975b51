#include <ZQ7Standard/PrintObject.h>
#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/print_picture.h>
#include <ZQ7Standard/platform/printers.h>

#include <cmath>
#include <fstream>

#include "base/unicode.h"
#include "formats/picture_size.h"
#include "io/printing/fitting_text.h"
#include "tests/support/printers.h"
#include "tests/support/row_tests.h"
#include "tests/support/temp_folder.h"

namespace ZQ7Standard {
namespace {

/// An object with short names for its operations.
struct Pen : PrintObject {
  explicit Pen(PrintRecord& record) : PrintObject({.printers = Recorded(record)}) {}
  void Text(auto... arguments) { PrintGraphicText(arguments...); }
  void Bold(TextView text, std::int32_t x) { Text(text, x, 4, 1, 2, 0.0, u"F", 20.0, true, true); }
  void Cut(TextView text, double limit, double size = 0) {
    Text(text, 1, 1, 1, 0, limit, u"", size);
  }
  void Picture(auto... arguments) {
    PrintGraphicObject(std::make_shared<PlainPicture>(), arguments...);
  }
};

/// Calls on an object with one recording printer, and what they print.
struct Job {
  const char* reason;
  const char* log;
  void (*calls)(Pen& pen);
  const char* refused = "";
};

/// Checks the log of each job, including any error.
void ExpectJobs(const std::vector<Job>& jobs) {
  for (const Job& job : jobs) {
    PrintRecord record;
    record.before = Refusing(job.refused);
    Pen pen(record);
    try {
      job.calls(pen);
    } catch (const RunTimeError& error) {
      record.log.append(record.log.empty() ? "" : " ").append(error.what());
    }
    EXPECT_EQ(record.log, job.log) << job.reason;
  }
}

constexpr const char* kBoth = "a@10,20 s@5,6[BrowalliaUPC 10 222] b@9,20[BrowalliaUPC 10 222]";

TEST(Printing, PlacesTextAndPictures) {
  ExpectJobs({
      {"ended", "mm a@1,1 end", [](Pen& p) { p.PrintStart(), p.Text(u"a"), p.PrintOut(); }},
      {"cancelled", "a@2,4 abort", [](Pen& p) { p.Text(u"a"), p.PrintCancel(); }},
      {"-1 is here, halves to even", "a@2,4", [](Pen& p) { p.Text(u"a"); }},
      {"next line", "a@10,20 b@0,25", [](Pen& p) { p.Text(u"a", 10, 20), p.Text(u"b"); }},
      {"-2 is a place", "a@-2,-3", [](Pen& p) { p.Text(u"a", -2, -3); }},
      {"same line", "a@9,2 b@5,2", [](Pen& p) { p.Text(u"a", 9, 2), p.Text(u"b", 5, 99, 0); }},
      {"the first on the same line", "a@10,3.5", [](Pen& p) { p.Text(u"a", 10, 99, 0); }},
      {"0 is not remembered", "a@9,0 b@5,5",
       [](Pen& p) { p.Text(u"a", 9, 0), p.Text(u"b", 5, 99, 0); }},
      {"PrintSet is not remembered", kBoth,
       [](Pen& p) { p.Text(u"a", 10, 20), p.PrintSet(5, 6, 0, u"s"), p.Text(u"b", 9, 99, 0); }},
      {"centred, to the even below", "ab@98,9", [](Pen& p) { p.Text(u"ab", 100, 9, 1, 1); }},
      {"ending, not rounded", "abc@95.5,9", [](Pen& p) { p.Text(u"abc", 100, 9, 1, 2); }},
      {"aligned in the new font", "ab@-4,4[F 20 1 bold italic]", [](Pen& p) { p.Bold(u"ab", -1); }},
      {"bold is always set", "a@6,4[F 20 1 bold italic] b@1,1[F 20 1]",
       [](Pen& p) { p.Bold(u"a", 9), p.Text(u"b", 1, 1); }},
      {"cut in the font before", "abc@1,1[ 20 1] a@1,1[ 20 1]",
       [](Pen& p) { p.Cut(u"abcdef", 4.5, 20), p.Cut(u"abcdef", 4.5); }},
      {"Row is across", "s@3.5,4.25[BrowalliaUPC 10 222]",
       [](Pen& p) { p.PrintSet(3.5, 4.25, 99, u"s"); }},
      {"PrintSet resets the font", "a@6,4[F 20 1 bold italic] s@3,4[BrowalliaUPC 10 222]",
       [](Pen& p) { p.Bold(u"a", 9), p.PrintSet(3, 4, 0, u"s"); }},
      {"a picture in its own size", "picture@2,4:40x20", [](Pen& p) { p.Picture(); }},
      {"text beside a picture", "picture@7,8:30x20 a@50,8",
       [](Pen& p) { p.Picture(7, 8, 30.F), p.Text(u"a", 50, 99, 0); }},
      {"a picture beside text, which moves no line", "a@9,2 picture@6,2:40x5.5 b@6,2",
       [](Pen& p) { p.Text(u"a", 9, 2), p.Picture(6, 99, 0.F, 5.5F, 0), p.Text(u"b"); }},
  });
}

TEST(Printing, TellsWhatThePrinterFailsToDo) {
  const auto set = [](Pen& p) { p.PrintSet(3, 4, 0, u"s"); };
  ExpectJobs({
      {"passed on", "mm PrintStart: printer error: no MoveTo (error 482)",
       [](Pen& p) { p.PrintStart(); }, "MoveTo"},
      {"passed on", "PrintOut: printer error: no End (error 482)", [](Pen& p) { p.PrintOut(); },
       "End"},
      {"left out", "s@3,4", set, "SetFont"},
      {"left out", "s@2.5,3.5[BrowalliaUPC 10 222]", set, "MoveTo"},
  });
  PrintRecord record;
  PrintObject nowhere({.printers = Recorded(record, {})});
  EXPECT_EQ(nowhere.PrintSet(1, 1, 0, u"s"), 0);
  EXPECT_EQ(ErrorOf([&] { nowhere.PrintStart(); }), 482);
  EXPECT_EQ(ErrorOf([&] { nowhere.PrintGraphicObject(nullptr); }), 5);
}

TEST(PrinterSelection, MakesTheRememberedPrinterCurrent) {
  PrintRecord record;
  const auto printers = Recorded(record, {u"Laser", u"pdf", u"ink", u"PDF"});
  PrintObject printer({.printers = printers});
  const auto used = [&](TextView name) {
    record.log.clear();
    EXPECT_EQ(printer.SelectPrinter(name, 1, 9, 7), 1);
    printer.CheckPaperSize();
    return record.log;
  };
  ExpectRows<TextView>(used, {{{u"LASER"}, "", "current, case aside"},
                              {{u"Pdf"}, "use pdf use PDF", "the last of the name"},
                              {{u"pdf"}, "", "current as it is"},
                              {{u"plotter"}, "", "not installed"},
                              {{u"laser"}, "use Laser", "back to the first"}});
}

TEST(PrinterSelection, RemembersTheNameOfAPrinterWhoseSettingsCannotBeRead) {
  PrintRecord record;
  record.before = Refusing("Get");
  const auto printers = Recorded(record, {u"Laser", u"PDF"});
  PrintObject object({.printers = printers});
  printers->MakeCurrent(printers->Installed().back());
  object.PrintGraphicText(u"a");
  EXPECT_EQ(record.log, "use PDF use Laser a@2,4");
}

/// Printers that are used only within an operation.
struct GuardedPrinters final : PrinterList {
  std::vector<Printer> Installed() override { return Listed()->Installed(); }
  Printer Current() override { return Listed()->Current(); }
  void MakeCurrent(const Printer& printer) override { Listed()->MakeCurrent(printer); }
  void DoOperation(const std::function<void()>& steps) override {
    ++depth, ++operations;
    steps();
    --depth;
  }
  std::shared_ptr<PrinterList> Listed() const {
    EXPECT_EQ(depth, 1);
    return list;
  }

  PrintRecord record;
  std::shared_ptr<PrinterList> list = Recorded(record, {u"Laser", u"PDF"});
  int depth = 0;
  int operations = 0;
};

TEST(PrinterSelection, AsksWithinOperations) {
  const auto printers = std::make_shared<GuardedPrinters>();
  PrintObject object({.printers = printers});
  object.SelectPrinter(u"pdf", 1, 9, 7);
  object.CheckPaperSize();
  object.CheckPaperBin();
  object.PrintStart();
  object.PrintSet(1, 1, 0, u"a");
  object.PrintGraphicText(u"a");
  object.PrintGraphicObject(std::make_shared<PlainPicture>());
  object.PrintOut();
  object.PrintCancel();
  EXPECT_EQ(printers->operations, 9) << "one for the object itself";
}

TEST(PrinterSelection, ChecksPaperAndBin) {
  PrintRecord record;
  const auto paper = [&](const char* refused, const char* os, std::int16_t start) {
    record.before = Refusing(refused);
    PrintObject printer({.printers = Recorded(record), .os = FromUtf8(os)});
    return printer.CheckPaperSize(start);
  };
  ExpectRows<const char*, const char*, std::int16_t>(
      paper, {{{"", "", 0}, "9", "the printer's own"},
              {{"", "", 1}, "1"},
              {{"", "Linux", 256}, "256", "user-defined"},
              {{"", "Windows_NT", 255}, "255"},
              {{"", "Windows_NT", 256}, "9", "not there"},
              {{"Set", "", 8}, "8", "refused, and still returned"},
              {{"Get", "", 8}, "0", "nothing is known"}});
  record.before = {};
  const auto printers = Recorded(record);
  PrintObject printer({.printers = printers});
  const auto bin = [&](std::int16_t start) { return printer.CheckPaperBin(start); };
  ExpectRows<std::int16_t>(bin, {{{0}, "2"}, {{7}, "2", "never"}, {{256}, "256"}, {{1}, "1"}});
  EXPECT_EQ(printers->Current().settings->Get(PrinterSetting::kPaperBin), 1);
}

TEST(PaperTexts, StayAsTheyAre) {
  PrintRecord record;
  const PrintObject printer({.printers = Recorded(record)});
  const auto size = [&](std::int16_t code) { return printer.GETPaperSizeText(code); };
  const auto bin = [&](std::int16_t code) { return printer.GETPaperBinText(code); };
  ExpectRows<std::int16_t>(size, {{{2}, "+A611Letter Small, 8 1/2 x 11 in", "as hosts know it"},
                                  {{28}, "Envelope C5, 162 x 229 mm"},
                                  {{256}, "User-defined"},
                                  {{0}, "Custom Size: ( 0 )"},
                                  {{-32768}, "Custom Size: ( -32768 )"}});
  ExpectRows<std::int16_t>(bin, {{{6}, "Envelope feeder, but wait for manual insertion"},
                                 {{12}, "Custom Bin: ( 12 )"},
                                 {{14}, "Attached cassette cartridge"}});
  EXPECT_EQ(printer.GETPaperOrientationText(2), u"Landscape");
  EXPECT_EQ(printer.GETPaperOrientationText(99), u"Portrait");
}

TEST(FittingText, IsWhatDroppingOneByOneLeaves) {
  // An "i" joins an "f", and a family of four is one picture: both make the text narrower.
  const auto width = [](TextView text) {
    double sum = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
      const TextView start = text.substr(0, i + 1);
      sum += start.ends_with(u"fi") ? -2 : start.ends_with(u'\u0E48') ? 0 : 4;
      if (start.ends_with(u"👨👨👨👨")) sum -= 24;
    }
    return sum;
  };
  const auto one_by_one = [&](TextView text, double limit) {
    while (width(text) > limit) text.remove_suffix(IsLowSurrogate(text.back()) ? 2 : 1);
    return Text(text);
  };
  int measured = 0;
  for (const TextView text : {u"officfifi fififi", u"a👨👨👨👨b👨👨👨👨👨c", u"ก่ก่ก่ก่่่่่่่ก่ก่", u""}) {
    for (double limit = 0.5; limit < 100; limit += 0.75) {
      EXPECT_EQ(FittingStart(text, limit, 32, width), one_by_one(text, limit))
          << Shown(text) << limit;
    }
  }
  const auto counted = [&](TextView text) { return ++measured, width(text); };
  EXPECT_EQ(FittingStart(Text(2000, u'x'), 4001, 32, counted).size(), 1000U);
  EXPECT_LT(measured, 30);
}

TEST(PictureSize, IsReadFromTheHeader) {
  using namespace std::string_literals;
  const std::string png = "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\1\2\0\0\0\3\b\2\0\0\0...."s;
  const std::string jpeg = "\xFF\xD8\xFF\xE0\0\x10JFIF\0\1\1"s;
  const std::string frame = "\0\0\xFF\xFF\xC4\0\3x\xFF\xC2\0\x11\b\0\x02\1\0\3..."s;
  const auto read = [](const std::string& file) -> std::string {
    const auto size = ReadPictureSize(file);
    if (!size) return "none";
    return Shown(size->columns) + "x" + Shown(size->rows) + " " +
           Shown(std::lround(size->columns_per_mm * 254)) + " " +
           Shown(std::lround(size->rows_per_mm * 254));
  };
  ExpectRows<std::string>(
      read,
      {{{png}, "258x3 960 960", "96 dpi"},
       {{png + "\0\0\0\tpHYs\0\0\x2E\x23\0\0\x17\x12\1...."s}, "258x3 3000 1500", "300 x 150"},
       {{png + "\0\0\0\tpHYs\0\0\0\1\0\0\0\1\0....IDAT"s}, "258x3 960 960", "shape alone"},
       {{jpeg + "\1\1\x2C\0\x96"s + frame}, "256x2 3000 1500", "in inches, rows first"},
       {{jpeg + "\2\0\x64\0\x64"s + frame}, "256x2 2540 2540", "in centimetres"},
       {{"\xFF\xD8\xFF\xC0\0\0\0\0"s}, "none", "cut short"},
       {{"GIF89a"s}, "none"}});
  const TempFolder folder;
  std::ofstream(folder.Native() / "text") << "no picture";
  const auto made = [](TextView path) { return PictureFromFile(path)->Width(); };
  ExpectTexts(made, {{"error 53", {u"C:\\x.png", u"C:"}}, {"error 5", {folder.Path("text")}}});
}

}  // namespace
}  // namespace ZQ7Standard
