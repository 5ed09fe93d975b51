#include <ZQ7Standard/PrintObject.h>
#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/print_picture.h>
#include <ZQ7Standard/platform/printers.h>
#include <windows.h>
#include <winspool.h>

#include <chrono>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "tests/support/row_tests.h"
#include "tests/support/small_pictures.h"
#include "tests/support/temp_folder.h"

namespace ZQ7Standard {
namespace {

namespace fs = std::filesystem;

constexpr double kDotsPerMm = 300 / 25.4;  // of the tests' printer

std::string BytesOf(const fs::path& path) {
  std::ostringstream bytes;
  bytes << std::ifstream(path, std::ios::binary).rdbuf();
  return bytes.str();
}

/// What a page in PostScript shows.
struct Mark {
  double x = 0;  // millimetres from the left
  double y = 0;  // and from the top; the base line of a text
  double width = 0;
  double height = 0;  // both 0 for a text
  std::string glyphs = {};
};

std::vector<Mark> MarksOn(const std::string& postscript) {
  std::vector<Mark> page;
  std::istringstream lines(postscript.substr(postscript.find("%%EndPageSetup")));
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    double a = 0;
    double b = 0;
    std::string word;
    if (line.ends_with(" glyphshow") && !page.empty()) {
      page.back().glyphs += line.substr(1, line.find(' '));
    } else if (words >> a >> b >> word && (word == "moveto" || word == "translate")) {
      page.push_back({.x = a / kDotsPerMm, .y = b / kDotsPerMm});
    } else if (word == "scale" && !page.empty()) {
      page.back().width = a / kDotsPerMm;
      page.back().height = b / kDotsPerMm;
    }
  }
  return page;
}

/// Prints on the server that check_printing starts, or to files.
class SystemPrinting : public testing::Test {
 protected:
  static constexpr const char16_t* kToFile = u"To a file";

  static void SetUpTestSuite() {
    if (getenv("ZQ7_PRINTED") == nullptr) return;
    SystemPrinters()->Installed();  // which lets the system know the driver
    std::wstring name = L"To a file";
    std::wstring port = L"FILE:";
    std::wstring driver = L"Laser";
    std::wstring processor = L"winprint";
    std::wstring datatype = L"RAW";
    PRINTER_INFO_2W info{};
    info.pPrinterName = name.data();
    info.pPortName = port.data();
    info.pDriverName = driver.data();
    info.pPrintProcessor = processor.data();
    info.pDatatype = datatype.data();
    ClosePrinter(AddPrinterW(nullptr, 2, reinterpret_cast<BYTE*>(&info)));
  }

  void SetUp() override {
    if (getenv("ZQ7_PRINTED") == nullptr) GTEST_SKIP() << "run by check_printing";
  }

  /// The names of the documents in the folder.
  std::vector<fs::path> Documents() const {
    std::vector<fs::path> documents;
    for (const auto& entry : fs::directory_iterator(folder.Native())) {
      documents.push_back(entry.path());
    }
    return documents;
  }

  /// The page that `draw` draws, printed to a file.
  std::vector<Mark> PageOf(const std::function<void(PrintObject&)>& draw) const {
    for (const fs::path& old : Documents()) fs::remove(old);
    PrintObject printer({.printers = printers});
    printer.SelectPrinter(kToFile, 1, 9, 7);
    printer.CheckPaperSize();  // which makes it current
    draw(printer);
    printer.PrintOut();
    const auto documents = Documents();
    return documents.size() == 1 ? MarksOn(BytesOf(documents[0])) : std::vector<Mark>();
  }

  TempFolder folder;
  std::shared_ptr<PrinterList> printers = SystemPrinters(folder.Native());
};

TEST_F(SystemPrinting, ChoosesAmongThePrinters) {
  std::string names;
  for (const Printer& printer : printers->Installed()) names += Utf8(printer.device_name) + ", ";
  EXPECT_EQ(names, "Idle, Laser, To a file, ");
  EXPECT_EQ(printers->Current().device_name, u"Laser") << "the default one";
  EXPECT_EQ(printers->Current().document, printers->Installed()[1].document);
  printers->MakeCurrent(printers->Installed()[0]);
  EXPECT_EQ(printers->Current().device_name, u"Idle");
}

TEST_F(SystemPrinting, TakesWhatThePrinterCanDo) {
  using enum PrinterSetting;
  PrinterSettings& settings = *printers->Current().settings;
  const auto code = [](PrinterSetting setting) { return static_cast<int>(setting); };
  // clang-format off
  ExpectRows<int, std::int16_t>(
      [&](int setting, std::int16_t value) {
        const auto at = static_cast<PrinterSetting>(setting);
        const int error = ErrorOf([&] { settings.Set(at, value); });
        return Shown(error) + ", " + Shown(settings.Get(at));
      },
      {{{code(kOrientation), 2}, "0, 2"}, {{code(kOrientation), 3}, "482, 2"}, {{code(kOrientation), 1}, "0, 1"},
       {{code(kPaperSize), 11}, "0, 11"}, {{code(kPaperSize), 1}, "482, 11", "no Letter"},
       {{code(kPaperSize), 0}, "482, 11"}, {{code(kPaperSize), 9}, "0, 9"},
       {{code(kPaperBin), 7}, "0, 7", "in force"}, {{code(kPaperBin), 3}, "482, 7"},
       {{code(kPaperBin), 257}, "0, 257", "a bin of the driver's"},
       {{code(kPrintQuality), -4}, "0, -4"}, {{code(kPrintQuality), -5}, "482, -4"},
       {{code(kPrintQuality), 777}, "482, -4"}});
  // clang-format on
  EXPECT_EQ(printers->Installed()[0].settings->Get(kPaperSize), 9) << "of another printer";
}

TEST_F(SystemPrinting, PutsTextsInTheirPlaces) {
  constexpr double kRise = 14 * 25.4 / 72 * 535 / 417;  // of Garuda above its base line
  const auto page = PageOf([](PrintObject& printer) {
    printer.PrintStart();
    printer.PrintGraphicText(u"ใบ", 20, 30, 1, 0, 0, u"Garuda", 14);
    printer.PrintGraphicText(u"a\tb", 20, 200);
    printer.PrintGraphicText(u"1,234.50", 190, 0, 0, 2);
    printer.PrintSet(50.5F, 60.3F, 0, u"ที่");
    printer.PrintGraphicText(u"", 0, 0);
  });
  ASSERT_GE(page.size(), 4U);
  struct Row {
    double x;
    double y;
    const char* glyphs;
  };
  const Row rows[] = {{20, 30 + kRise, "uni0E43 uni0E1A "},
                      {20, 200 + kRise, "a space b "},
                      {190, 200 + kRise, "one comma two three four period five zero "},
                      {50.5, 60.3 + kRise * 10 / 14, "uni0E17 uni0E35 uni0E48 "}};
  const double width = [&] {
    PrintDocument& document = *printers->Current().document;
    document.SetFont({u"Garuda", 14});
    return document.TextWidth(u"1,234.50");
  }();
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    EXPECT_NEAR(page[i].x, rows[i].x - (i == 2 ? width : 0), 0.1) << i;
    EXPECT_NEAR(page[i].y, rows[i].y, 0.15) << i;
    EXPECT_EQ(page[i].glyphs, rows[i].glyphs);
  }
}

TEST_F(SystemPrinting, MeasuresAsElsewhere) {
  PrintDocument& document = *printers->Current().document;
  struct Row {
    PrintFont font;
    double width;  // on Linux
    double height;
  };
  const Row rows[] = {{{u"Garuda", 14}, 58.284, 9.26},
                      {{u"Garuda", 100, 1, true}, 455.401, 66.146},
                      {{u"Loma", 10, 222}, 42.449, 5.607},
                      {{u"BrowalliaUPC", 10, 222}, 41.631, 6.615}};
  for (const auto& [font, width, height] : rows) {
    document.SetFont(font);
    document.MoveTo({0, 0});
    EXPECT_NEAR(document.TextWidth(u"ใบกำกับภาษี ABC 1,234.50"), width, width / 100);
    document.PrintLine(u"");
    EXPECT_NEAR(document.Position().y, height, 0.13) << "the next line";
    EXPECT_EQ(document.Position().x, 0);
  }
  document.Abort();
  EXPECT_EQ(document.Position(), PagePosition());
}

TEST_F(SystemPrinting, HasThaiLettersWhateverTheFont) {
  ExpectRows<Text, int>(
      [&](const Text& name, int charset) {
        const auto page = PageOf([&](PrintObject&) {
          PrintDocument& document = *printers->Current().document;
          document.SetFont({name, 10, static_cast<std::uint8_t>(charset)});
          document.PrintLine(u"ก");
        });
        return page.empty() ? std::string() : page[0].glyphs;
      },
      {{{u"Garuda", 1}, "uni0E01 "},
       {{u"Garuda", 222}, "uni0E01 "},
       {{u"Nowhere", 1}, "uni0E01 "},
       {{u"Nowhere", 222}, "uni0E01 "},
       {{Text(99, u'x'), 1}, "uni0E01 "},
       {{u"", 1}, "uni0E01 ", "the printer's own"}});
}

/// A picture with the bytes of any file.
struct BytesPicture final : PrintPicture {
  explicit BytesPicture(std::string file) : bytes(std::move(file)) {}
  float Width() override { return 10; }
  float Height() override { return 5; }
  std::string_view Picture() override { return bytes; }

  std::string bytes;
};

TEST_F(SystemPrinting, DrawsPicturesInTheirSize) {
  const auto picture = std::make_shared<BytesPicture>(FromHex(kRedAndBluePng));
  const auto page = PageOf([&](PrintObject& printer) {
    printer.PrintGraphicObject(picture, 20, 80, 100, 50.5F);
    printer.PrintGraphicObject(picture, 150, 200);
    const auto wrong = std::make_shared<BytesPicture>("text");
    EXPECT_EQ(ErrorOf([&] { printer.PrintGraphicObject(wrong, 1, 1); }), 482);
    EXPECT_EQ(ErrorOf([&] { printer.PrintGraphicObject(picture, 2'000'000'000); }), 482);
  });
  ASSERT_EQ(page.size(), 2U) << "nothing of those that failed";
  const double rows[2][4] = {{20, 80, 100, 50.5}, {150, 200, 10, 5}};
  for (std::size_t i = 0; i < 2; ++i) {
    EXPECT_NEAR(page[i].x, rows[i][0], 0.1);
    EXPECT_NEAR(page[i].y, rows[i][1], 0.1);
    EXPECT_NEAR(page[i].width, rows[i][2], 0.1);
    EXPECT_NEAR(page[i].height, rows[i][3], 0.1);
  }
}

TEST_F(SystemPrinting, WritesWholeDocumentsOnly) {
  PrintObject printer({.printers = printers});
  printer.SelectPrinter(kToFile, 1, 9, 7);
  printer.CheckPaperSize();
  printer.PrintOut();
  printer.PrintGraphicText(u"a");
  printer.PrintCancel();
  EXPECT_EQ(Documents().size(), 0U);
  for (int i = 0; i < 3; ++i) {
    printer.PrintGraphicText(u"a");
    printer.PrintOut();
  }
  const auto documents = Documents();
  EXPECT_EQ(documents.size(), 3U) << "even in one second";
  for (const fs::path& document : documents) {
    EXPECT_EQ(document.extension(), ".prn");
    EXPECT_TRUE(BytesOf(document).starts_with("%!PS"));
  }
  printer.PrintGraphicText(u"a");
  printers.reset();
  printer = PrintObject();
  EXPECT_EQ(Documents().size(), 3U) << "discarded with its list";
}

/// Puts the process where no user sees it, as a service is.
class OutOfSight {
 public:
  OutOfSight() : before_(GetProcessWindowStation()) { SetProcessWindowStation(station_); }
  OutOfSight(const OutOfSight&) = delete;
  OutOfSight& operator=(const OutOfSight&) = delete;
  ~OutOfSight() {
    SetProcessWindowStation(before_);
    CloseWindowStation(station_);
  }

 private:
  HWINSTA station_ = CreateWindowStationW(L"zq7", 0, MAXIMUM_ALLOWED, nullptr);
  HWINSTA before_;
};

TEST_F(SystemPrinting, FailsWhereNobodyCanNameTheFile) {
  const OutOfSight service;
  std::ofstream(folder.Native() / "file") << "in the way";
  ExpectRows<std::string>(
      [&](const std::string& name) {
        const auto list = SystemPrinters(name.empty() ? fs::path() : folder.Native() / name);
        PrintObject printer({.printers = list});
        printer.SelectPrinter(kToFile, 1, 9, 7);
        printer.PrintGraphicText(u"a");
        const int error = ErrorOf([&] { printer.PrintOut(); });
        return Shown(error) + ", then " + Shown(ErrorOf([&] { printer.PrintOut(); }));
      },
      {{{""}, "482, then 0", "the document is lost"},
       {{"file/folder"}, "482, then 0"},
       {{"new/folder"}, "0, then 0"}});
}

TEST_F(SystemPrinting, ReachesThePrintServer) {
  const fs::path printed(getenv("ZQ7_PRINTED"));
  PrintObject printer({.printers = printers});
  printer.PrintGraphicText(u"cancelled");
  printer.PrintCancel();
  EXPECT_EQ(printer.CheckPaperSize(11), 11);
  printers->Current().settings->Set(PrinterSetting::kOrientation, 2);
  printers->Current().settings->Set(PrinterSetting::kPaperBin, 257);
  printer.PrintGraphicText(u"รวม", 200, 100, 1, 0, 0, u"Garuda", 10);
  printer.CheckPaperSize(9);
  printer.PrintOut();
  for (int i = 0; i < 200 && !fs::exists(printed / "job.postscript"); ++i) Sleep(50);
  const std::string job = BytesOf(printed / "job.postscript");
  EXPECT_NE(job.find("%%Orientation: Landscape"), job.npos);
  EXPECT_NE(job.find("PageSize A5"), job.npos) << "the paper of the document's first text";
  EXPECT_NE(job.find("InputSlot Lower"), job.npos);
  EXPECT_NE(BytesOf(printed / "options").find("PageSize=A5"), std::string::npos);
  const auto page = MarksOn(job);
  ASSERT_FALSE(page.empty());
  EXPECT_NEAR(page[0].x, 200, 0.1) << "beyond the width of the paper upright";
  EXPECT_EQ(page[0].glyphs, "uni0E23 uni0E27 uni0E21 ");
}

}  // namespace
}  // namespace ZQ7Standard
