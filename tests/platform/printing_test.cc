#include <ZQ7Standard/PrintObject.h>
#include <ZQ7Standard/RunTimeError.h>
#include <cairo.h>
#include <cups/cups.h>
#include <stdlib.h>
#include <unistd.h>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "platform/linux/printer_names.h"
#include "tests/support/rows.h"

namespace ZQ7Standard {
namespace {

namespace fs = std::filesystem;

/// What a command prints.
std::string OutputOf(const std::string& command) {
  FILE* const pipe = popen(command.c_str(), "r");
  std::string output;
  for (int c = 0; (c = fgetc(pipe)) != EOF;) output.push_back(static_cast<char>(c));
  pclose(pipe);
  return output;
}

/// A new folder, gone with the object.
struct Folder {
  Folder() : path(mkdtemp(std::string("/tmp/zq7-XXXXXX").data())) {
    fs::permissions(path, fs::perms(0755));
  }
  ~Folder() { fs::remove_all(path); }
  auto Files() const { return std::distance(fs::directory_iterator(path), {}); }
  std::string Only() const { return "'" + fs::directory_iterator(path)->path().string() + "'"; }

  fs::path path;
};

/// The user's folder, before anything looks for it.
const struct Home : Folder {
  Home() { setenv("HOME", path.c_str(), 1), unsetenv("XDG_CONFIG_HOME"); }
} kHome;

void UseServer(const std::string& server) {
  setenv("CUPS_SERVER", server.c_str(), 1);
  cupsSetServer(nullptr);
}

struct Pages : testing::Test {
  Pages() { UseServer("/nonexistent/cups.sock"); }

  Folder folder;
  std::shared_ptr<PrinterList> printers = SystemPrinters(folder.path.u16string());
  PrintObject printer{{.printers = printers}};
};

TEST_F(Pages, HaveTheirTextInItsPlace) {
  printer.PrintStart();
  printer.PrintGraphicText(u"ใบกำกับภาษี", 20, 30, 1, 0, 0, u"Garuda", 14);
  printer.PrintGraphicText(u"1,234.50", 190, 0, 0, 2);
  printer.PrintGraphicText(u"ญาติผู้ใหญ่\tน้ำมัน", 20, 200);
  printer.PrintSet(50.5, 60.3F, 0, u"ที่นี่กี่สตางค์");
  printer.PrintOut();
  // Where an edge of a word is, in tenths of a millimetre.
  const std::string words = OutputOf("pdftotext -bbox " + folder.Only() + " -");
  const auto edge = [&](std::string word, std::string name) {
    const std::size_t start = words.rfind(name + "=\"", words.find("\">" + word + "<"));
    return std::lround(std::stod(words.substr(start + name.size() + 2)) / 72 * 254);
  };
  ExpectRows<std::string, std::string>(edge, {{{"ใบกำกับภาษี", "xMin"}, "200"},
                                              {{"ใบกำกับภาษี", "yMin"}, "300"},
                                              {{"1,234.50", "xMax"}, "1900"},
                                              {{"1,234.50", "yMin"}, "300"},
                                              {{"น้ำมัน", "yMin"}, "2000"},
                                              {{"ที่นี่กี่สตางค์", "xMin"}, "505"},
                                              {{"ที่นี่กี่สตางค์", "yMin"}, "603"}});
  const std::string fonts = OutputOf("pdffonts " + folder.Only());
  EXPECT_NE(fonts.find("+Garuda"), std::string::npos) << fonts;
}

TEST_F(Pages, HaveTheSizeOfTheirPaper) {
  const auto page = [&](std::int16_t paper, std::int16_t orientation) {
    Folder pages;
    const auto list = SystemPrinters(pages.path.u16string());
    PrintObject object({.printers = list});
    list->Current().settings->Set(PrinterSetting::kOrientation, orientation);
    object.CheckPaperSize(paper);
    object.PrintGraphicText(u"a");
    object.PrintOut();
    return OutputOf("pdfinfo " + pages.Only() + " | sed -n 's/^Page size: *//p' | tr -d '\\n'");
  };
  ExpectRows<std::int16_t, std::int16_t>(page,
                                         {{{9, 1}, "595.276 x 841.89 pts (A4)"},
                                          {{9, 2}, "841.89 x 595.276 pts (A4)", "landscape"},
                                          {{4, 1}, "1224 x 792 pts", "a ledger lies"},
                                          {{4, 2}, "792 x 1224 pts"},
                                          {{256, 1}, "595.276 x 841.89 pts (A4)", "refused"}});
  EXPECT_EQ(printer.CheckPaperBin(1), 1);
  EXPECT_EQ(printer.CheckPaperBin(), 7);
}

TEST_F(Pages, HaveTheirPictures) {
  using namespace std::string_literals;
  const std::string jpeg = folder.path.string() + "/a.jpg";
  const std::string png = folder.path.string() + "/a.png";
  std::ofstream(jpeg) << "\xFF\xD8\xFF\xE0\0\x10JFIF\0\1\1\1\0\x64\0\x64\0\0"s
                         "\xFF\xC0\0\x11\b\0\x64\0\xC8\3\1\x22\0\2\x11\1\3\x11\1\xFF\xD9"s;
  const auto surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, 300, 150);
  cairo_surface_write_to_png(surface, png.c_str());
  cairo_surface_destroy(surface);
  printer.PrintGraphicObject(PictureFromFile(FromUtf8(jpeg)), 10, 10);
  printer.PrintGraphicObject(PictureFromFile(FromUtf8(png)), 10, 80, 25.4F, 25.4F);
  printer.PrintOut();
  const std::string list = "pdfimages -list " + folder.path.string() + "/*.pdf | tail -n +3";
  EXPECT_EQ(OutputOf(list + " | awk '{ print $4, $5, $9, $13, $14 }'"),
            "200 100 jpeg 100 100\n300 150 image 300 150\n");
}

TEST_F(Pages, AreFilesOfTheirOwn) {
  printer.PrintOut();
  printer.PrintGraphicText(u"a");
  printer.PrintCancel();
  EXPECT_EQ(folder.Files(), 0);
  for (int i = 0; i < 3; ++i) {
    printer.PrintGraphicText(u"a");
    printer.PrintOut();
  }
  EXPECT_EQ(folder.Files(), 3);
  PrintObject nowhere({.printers = SystemPrinters(u"/proc/none")});
  nowhere.PrintGraphicText(u"a");
  EXPECT_EQ(ErrorOf([&] { nowhere.PrintOut(); }), 482);
  EXPECT_EQ(ErrorOf([&] { printer.PrintGraphicText(u"a", 1, 1, 1, 0, 0, u"", kNan); }), 482);
  EXPECT_EQ(ErrorOf([&] { printer.PrintGraphicText(u"a", 2'000'000'000); }), 482);
}

TEST_F(Pages, GoToTheDocumentsOfTheUser) {
  const fs::path& home = kHome.path;
  fs::create_directories(home / ".config");
  std::ofstream(home / ".config/user-dirs.dirs") << "XDG_DOCUMENTS_DIR=\"$HOME/เอกสาร\"\n";
  PrintObject object;
  object.PrintGraphicText(u"a");
  object.PrintOut();
  EXPECT_EQ(std::distance(fs::directory_iterator(home / "เอกสาร"), {}), 1);
}

TEST(PrinterNames, AreThereForEveryCode) {
  for (std::int16_t code = 1; code <= 41; ++code) {
    const CodeName& row = kPaperNames[static_cast<std::size_t>(code - 1)];
    EXPECT_EQ(row.code, code);
    EXPECT_NE(pwgMediaForPWG(std::string(row.name).c_str()), nullptr) << row.name;
  }
  std::string bins;
  for (const CodeName& row : kBinNames) bins += std::to_string(row.code) + " ";
  EXPECT_EQ(bins, "1 2 3 4 5 6 7 8 9 10 11 14 ");
  EXPECT_EQ(kPaperNames[6].name, "na_executive_7.25x10.5in");
  EXPECT_EQ(kPaperNames[31].name, "iso_c6c5_114x229mm");
}

/// A server of the test's own.
struct Server : testing::Test {
  Server() { Start(), UseServer("localhost:" + port); }
  ~Server() override { Kill(); }

  void Start() const { OutputOf(script + " start " + folder.path.string() + " " + port); }
  void Kill() const { OutputOf(script + " kill " + folder.path.string()); }
  std::string Jobs() const {
    return OutputOf("lpstat -W completed -o | cut -d' ' -f1; lpstat -o | cut -d' ' -f1");
  }
  std::string Printed() const {
    const std::string job = (folder.path / "out/job.pdf").string();
    return OutputOf("for i in $(seq 100); do [ -e " + job +
                    " ] && break; sleep 0.05; done; pdftotext " + job + " - | head -1; rm -f " +
                    job);
  }

  Folder folder;
  std::string script = ZQ7_SOURCE_DIR "/tests/support/cups_server";
  std::string port = std::to_string(20'000 + getpid() % 20'000);
};

TEST_F(Server, PrintsAndCancels) {
  const auto printers = SystemPrinters();
  std::string names;
  for (const Printer& printer : printers->Installed()) names += Utf8(printer.device_name) + " ";
  EXPECT_EQ(names, "Idle Laser ");
  PrintObject printer({.printers = printers});
  EXPECT_EQ(printers->Current().device_name, u"Laser") << "the default one";
  EXPECT_EQ(printer.CheckPaperSize(), 9);
  EXPECT_EQ(printer.CheckPaperSize(1), 1) << "refused";
  EXPECT_EQ(printer.CheckPaperSize(11), 11);
  EXPECT_EQ(printer.CheckPaperBin(3), 3) << "refused";
  EXPECT_EQ(printer.CheckPaperBin(2), 2);
  printer.SelectPrinter(u"LASER", 1, 9, 7);
  printer.PrintGraphicText(u"หนึ่ง");
  printer.PrintCancel();
  EXPECT_EQ(Jobs(), "");
  printer.PrintGraphicText(u"สอง");
  printer.PrintOut();
  EXPECT_EQ(Printed(), "สอง\n");
  const std::string options = OutputOf("cat " + folder.path.string() + "/out/options");
  EXPECT_NE(options.find("PageSize=A5"), std::string::npos) << options;
  EXPECT_NE(options.find("InputSlot=Lower"), std::string::npos) << options;
  printer.SelectPrinter(u"idle", 1, 9, 7);
  printer.PrintGraphicText(u"สาม");
  EXPECT_EQ(printers->Current().device_name, u"Idle");
  printer.PrintCancel();
  EXPECT_EQ(Jobs(), "Laser-1\n");
}

TEST_F(Server, MayDieInADocument) {
  PrintObject printer;
  printer.PrintGraphicText(u"หนึ่ง");
  Kill();
  EXPECT_EQ(ErrorOf([&] { printer.PrintOut(); }), 482);
  printer.PrintGraphicText(u"สอง");
  Start();
  printer.PrintOut();
  EXPECT_EQ(Printed(), "สอง\n");
}

}  // namespace
}  // namespace ZQ7Standard
