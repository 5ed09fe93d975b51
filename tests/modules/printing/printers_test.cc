#include <ZQ7Standard/PrintObject.h>
#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/path_text.h>
#include <ZQ7Standard/platform/print_picture.h>
#include <ZQ7Standard/platform/printers.h>
#include <cairo.h>
#include <cups/cups.h>
#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <future>
#include <memory>
#include <vector>

#include "printing/linux/printer_names.h"
#include "tests/support/denied_calls.h"
#include "tests/support/ipp_server.h"
#include "tests/support/row_tests.h"
#include "tests/support/temp_folder.h"

namespace ZQ7Standard {
namespace {

namespace fs = std::filesystem;

/// A new folder that others can read, removed with the object.
struct Folder : TempFolder {
  Folder() { fs::permissions(path, fs::perms(0755)); }
  auto Files() const { return std::distance(fs::directory_iterator(path), {}); }
  std::string Only() const { return "'" + fs::directory_iterator(path)->path().string() + "'"; }

  const fs::path& path = Native();
};

/// The user's folder, set before anything looks for it.
const Folder kHome;
const int kHomeIsSet = setenv("HOME", kHome.path.c_str(), 1);

/// The output of a command.
std::string OutputOf(const std::string& command) {
  return kHome.Run(command);
}

void UseServer(const std::string& server) {
  setenv("CUPS_SERVER", server.c_str(), 1);
  cupsSetServer(nullptr);
}

struct Pages : testing::Test {
  Pages() { UseServer("/nonexistent/cups.sock"); }

  Folder folder;
  std::shared_ptr<PrinterList> printers = SystemPrinters(folder.path);
  PrintObject printer{{.printers = printers}};
};

TEST_F(Pages, HaveTheirTextInItsPlace) {
  printer.PrintStart();
  printer.PrintGraphicText(u"ใบกำกับภาษี", 20, 30, 1, 0, 0, u"Garuda", 14);
  printer.PrintGraphicText(u"1,234.50", 190, 0, 0, 2);
  printer.PrintGraphicText(u"ญาติผู้ใหญ่\tน้ำมัน", 20, 200);
  printer.PrintSet(50.5, 60.3F, 0, u"ที่นี่กี่สตางค์");
  printer.PrintOut();
  // The position of a word's edge, in tenths of a millimetre.
  const std::string words = OutputOf("pdftotext -bbox " + folder.Only() + " -");
  const auto edge = [&](std::string word, std::string name) {
    const std::size_t start = words.rfind(name + "=\"", words.find("\">" + word + "<"));
    return std::lround(std::stod(words.substr(start + name.size() + 2)) / 72 * 254);
  };
  ExpectRows<std::string, std::string>(edge, {{{"ใบกำกับภาษี", "xMin"}, "200"},
                                              {{"ใบกำกับภาษี", "yMin"}, "300"},
                                              {{"1,234.50", "xMax"}, "1900"},
                                              {{"น้ำมัน", "yMin"}, "2000"},
                                              {{"ที่นี่กี่สตางค์", "yMin"}, "603"}});
  EXPECT_NE(OutputOf("pdffonts " + folder.Only() + " | grep +Garuda"), "");
}

TEST_F(Pages, HaveTheSizeOfTheirPaper) {
  const auto page = [&](std::int16_t paper, std::int16_t orientation) {
    Folder pages;
    const auto list = SystemPrinters(pages.path);
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
                                          {{256, 1}, "595.276 x 841.89 pts (A4)", "refused"}});
  EXPECT_EQ(printer.CheckPaperBin(1), 1);
  EXPECT_EQ(printer.CheckPaperBin(), 7);
}

TEST_F(Pages, HaveTheirPictures) {
  using namespace std::string_literals;
  const std::string jpeg = folder.path.string() + "/a.jpg";
  const std::string png = folder.path.string() + "/a.png";
  std::ofstream(jpeg) << "\xFF\xD8\xFF\xE0\0\x10JFIF\0\1\1\1\0\x64\0\x64\0\0"
                         "\xFF\xC0\0\x0B\b\0\x64\0\xC8\1\1\x11\0\xFF\xD9"s;
  const auto surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, 300, 150);
  cairo_surface_write_to_png(surface, png.c_str());
  cairo_surface_destroy(surface);
  printer.PrintGraphicObject(PictureFromFile(PathText(jpeg)), 10, 10);
  printer.PrintGraphicObject(PictureFromFile(PathText(png)), 10, 80, 25.4F, 25.4F);
  printer.PrintOut();
  const std::string list = "pdfimages -list " + folder.path.string() + "/*.pdf | tail -n +3";
  EXPECT_EQ(OutputOf(list + " | awk '{ print $4, $5, $9, $13, $14 }'"),
            "200 100 jpeg 100 100\n300 150 image 300 150\n");
}

TEST_F(Pages, AreFilesOfTheirOwn) {
  umask(0022);
  printer.PrintOut();
  printer.PrintGraphicText(u"a");
  printer.PrintCancel();
  EXPECT_EQ(folder.Files(), 0);
  for (int i = 0; i < 3; ++i) {
    printer.PrintGraphicText(u"a");
    printer.PrintOut();
  }
  EXPECT_EQ(folder.Files(), 3);
  EXPECT_EQ(OutputOf("stat -c %a " + folder.path.string() + "/*.pdf | sort -u"), "644\n");
  printer.PrintGraphicText(u"a");
  EXPECT_EQ(RunDenied({{SYS_fsync, 0}}, [&] { printer.PrintOut(); }), -SIGSYS);
  EXPECT_EQ(folder.Files(), 3) << "a kill leaves nothing";
  PrintObject nowhere({.printers = SystemPrinters("/proc/none")});
  nowhere.PrintGraphicText(u"a");
  EXPECT_EQ(ErrorOf([&] { nowhere.PrintOut(); }), 482);
  EXPECT_EQ(ErrorOf([&] { printer.PrintGraphicText(u"a", 1, 1, 1, 0, 0, u"", kNan); }), 482);
  EXPECT_EQ(ErrorOf([&] { printer.PrintGraphicText(u"a", 2'000'000'000); }), 482);
}

TEST_F(Pages, GoToTheDocumentsOfTheUser) {
  UseServer("127.0.0.1:1");  // where no server listens
  fs::create_directories(kHome.path / ".config");
  std::ofstream(kHome.path / ".config/user-dirs.dirs") << "XDG_DOCUMENTS_DIR=\"$HOME/เอกสาร\"\n";
  PrintObject object;
  object.PrintGraphicText(u"a");
  object.PrintOut();
  EXPECT_EQ(OutputOf("stat -c %a '" + kHome.path.string() + "'/เอกสาร/*"), "600\n");
}

TEST(PrinterNames, ArePapersOfCups) {
  for (const CodeName& row : kPaperNames) {
    EXPECT_NE(pwgMediaForPWG(std::string(row.name).c_str()), nullptr) << row.name;
  }
  EXPECT_EQ(kPaperNames[6].name, "na_executive_7.25x10.5in");
}

/// A print server for each test.
struct Server : testing::Test {
  Server() { Start(), UseServer("localhost:" + port); }
  ~Server() override { Kill(); }

  void Start() const { Run("start"); }
  void Kill() const { Run("kill"); }
  void Run(const std::string& what) const {
    OutputOf(ZQ7_SOURCE_DIR "/tests/support/cups_server " + what + " " + folder.path.string() +
             " " + port);
  }
  std::string Jobs() const {
    return OutputOf("lpstat -W completed -o | cut -d' ' -f1; lpstat -o | cut -d' ' -f1");
  }
  std::string Printed() const {
    return OutputOf("cd " + folder.path.string() +
                    "/out; timeout 9 sh -c 'until [ -e job.pdf ]; do "
                    "sleep 0.05; done'; pdftotext job.pdf - | head -1; rm job.pdf");
  }

  Folder folder;
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
  printer.SelectPrinter(u"IDLE", 1, 9, 7);
  printer.PrintGraphicText(u"หนึ่ง");
  EXPECT_EQ(printers->Current().device_name, u"Idle");
  printer.PrintCancel();
  printer.SelectPrinter(u"laser", 1, 9, 7);
  printer.PrintGraphicText(u"สอง");
  printer.PrintOut();
  EXPECT_EQ(Printed(), "สอง\n");
  const std::string options =
      "/out/options | grep -o -E 'PageSize=A5|InputSlot=Lower' | sort | xargs";
  EXPECT_EQ(OutputOf("cat " + folder.path.string() + options), "InputSlot=Lower PageSize=A5\n");
  EXPECT_EQ(Jobs(), "Laser-1\n");
}

TEST(OddServer, TellsWordsWhereNumbersBelong) {
  const IppServer server;
  UseServer(server.Address());
  PrintObject printer;
  EXPECT_EQ(printer.CheckPaperSize(), 11);
  printer.PrintGraphicText(u"a");
  EXPECT_EQ(ErrorOf([&] { printer.PrintOut(); }), 0);
  EXPECT_EQ(server.JobAttributes(), "media ");
}

/// A picture of 16 MB, more than a connection takes at once.
struct LargePicture final : PrintPicture {
  float Width() override { return 10; }
  float Height() override { return 10; }
  std::string_view Picture() override { return file; }

  std::string file = std::string("\xFF\xD8\xFF\xC0\0\x0B\b\0\x64\0\xC8\1\1\x11\0\xFF\xD9", 17) +
                     std::string(16'000'000, 'x');
};

struct Outcome {
  int drawing;
  int printing;
  double seconds;  // of the longer one
};

/// The outcome of printing a page on the server at `address`, which is set for this thread only.
Outcome PrintAt(const std::string& address, http_encryption_t encryption) {
  using Clock = std::chrono::steady_clock;
  cupsSetServer(address.c_str());
  cupsSetEncryption(encryption);
  PrintObject printer;
  const auto start = Clock::now();
  const int drawing =
      ErrorOf([&] { printer.PrintGraphicObject(std::make_shared<LargePicture>()); });
  const auto middle = Clock::now();
  const int printing = ErrorOf([&] { printer.PrintOut(); });
  const std::chrono::duration<double> longer = std::max(middle - start, Clock::now() - middle);
  return {drawing, printing, longer.count()};
}

TEST(OddServer, FailsInTimeWhateverIsWrongWithIt) {
  struct Row {
    Fault fault;
    const char* reason;
    Outcome expected;
    http_encryption_t encryption = HTTP_ENCRYPTION_NEVER;
  };
  const Row rows[] = {
      {Fault::kNone, "sound", {0, 0, 0}},
      {Fault::kIsOutOfReach, "prints to a file", {0, 0, 5}},
      {Fault::kHangsUp, "hangs up", {482, 482, 0}},
      {Fault::kIsSilent, "silent", {482, 482, 5}},
      {Fault::kIsSilent, "encrypted", {482, 482, 5}, HTTP_ENCRYPTION_REQUIRED},
      {Fault::kDribbles, "dribbles", {482, 482, 5}},
      {Fault::kIsSlow, "three answers of 2 s", {482, 0, 5}},
      {Fault::kPauses, "pauses within answers", {0, 0, 0}},
      {Fault::kWantsPassword, "401", {482, 482, 0}},
      {Fault::kGuardsJobs, "401 for jobs", {0, 482, 0}},
      {Fault::kStallsInJob, "stalls in the job", {0, 482, 30}},
      {Fault::kStallsAfterJob, "stalls after the job", {0, 482, 30}},
      {Fault::kDiesInJob, "dies in the job", {0, 482, 0}},
  };
  std::vector<std::unique_ptr<IppServer>> servers;
  std::vector<std::future<Outcome>> outcomes;
  for (const Row& row : rows) {
    servers.push_back(std::make_unique<IppServer>(row.fault));
    outcomes.push_back(
        std::async(std::launch::async, PrintAt, servers.back()->Address(), row.encryption));
  }
  for (std::size_t i = 0; i < outcomes.size(); ++i) {
    const auto [drawing, printing, seconds] = outcomes[i].get();
    const Row& row = rows[i];
    EXPECT_EQ(drawing, row.expected.drawing) << row.reason;
    EXPECT_EQ(printing, row.expected.printing) << row.reason;
    EXPECT_GT(seconds, row.expected.seconds - 0.1) << row.reason;
    EXPECT_LT(seconds, row.expected.seconds + 3) << row.reason;
  }
}

TEST(OddServer, IsAskedAtTheFirstNeedOfAnObjectsOwnPrinters) {
  const IppServer server;
  UseServer(server.Address());
  PrintObject printer;
  EXPECT_EQ(printer.GETPaperSizeText(9), u"A4, 210 x 297 mm");
  EXPECT_EQ(server.Connections(), 0);
  EXPECT_EQ(printer.CheckPaperSize(), 11);
  const int asked = server.Connections();
  const PrintObject other({.printers = SystemPrinters()});
  EXPECT_GT(server.Connections(), asked);
}

/// What a process prints on a terminal of its own, up to the text `last`.
std::string PrintedOnTerminal(const std::function<void()>& process, const std::string& last) {
  fflush(nullptr);
  int terminal = 0;
  const pid_t child = forkpty(&terminal, nullptr, nullptr, nullptr);
  if (child == 0) {
    process();
    _exit(0);
  }
  std::string said;
  pollfd output{terminal, POLLIN, 0};
  for (char c = 0; said.find(last) == std::string::npos;) {
    if (poll(&output, 1, 5'000) != 1 || read(terminal, &c, 1) != 1) break;
    said += c;
  }
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  close(terminal);
  return said;
}

TEST(OddServer, HasNobodyAskedForAPassword) {
  const IppServer server(Fault::kWantsPassword);
  const auto print_then_ask = [&] {
    UseServer(server.Address());
    PrintObject printer;
    dprintf(STDOUT_FILENO, "%d, ", ErrorOf([&] { printer.PrintStart(); }));
    cupsGetPassword("by CUPS itself");
  };
  EXPECT_EQ(PrintedOnTerminal(print_then_ask, "self"), "482, by CUPS itself");
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
