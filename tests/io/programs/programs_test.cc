#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/platform/desktop.h>
#include <ZQ7Standard/platform/path_text.h>
#include <ZQ7Standard/platform/programs.h>
#include <ZQ7Standard/platform/time_zone.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>

#include "tests/support/row_tests.h"
#include "tests/support/temp_folder.h"
#include "tests/support/variable.h"

namespace ZQ7Standard {
namespace {

using std::filesystem::path;

constexpr double kEnough = 30;  // seconds

void Write(const path& file, const std::string& text) {
  std::ofstream(file) << text;
}

void WriteProgram(const path& file, const std::string& script) {
  Write(file, "#!/bin/sh\n" + script + "\n");
  std::filesystem::permissions(file, std::filesystem::perms::owner_all);
}

std::string Content(const path& file) {
  return (std::ostringstream() << std::ifstream(file).rdbuf()).str();
}

/// The content of a file that another process is about to write, up to its last line end.
std::string Awaited(const path& file) {
  for (int i = 0; i < 1000 && !Content(file).ends_with("\n"); ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return Content(file);
}

std::int32_t Shell(const Text& script, const std::vector<Text>& more = {},
                   double seconds = kEnough) {
  std::vector<Text> arguments = {u"-c", script, u"sh"};
  arguments.insert(arguments.end(), more.begin(), more.end());
  return StandardObject().ExecuteProgram(u"sh", arguments, seconds);
}

TEST(ExecuteProgram, ReturnsTheStatus) {
  EXPECT_EQ(Shell(u"exit 3"), 3);
  EXPECT_EQ(Shell(u"kill -KILL $$"), 128 + SIGKILL);
  EXPECT_EQ(Shell(u"[ \"$1\" = 'a b;$x\"ก' ] && [ $# = 2 ] && [ -z \"$2\" ]", {u"a b;$x\"ก", u""}),
            0)
      << "arguments reach the program as they are";
  EXPECT_EQ(Shell(u"read line"), 1) << "there is nothing to read";
  EXPECT_EQ(StandardObject().ExecuteProgram(u"sh", {u"-c", u"[ $PWD = /usr ]"}, kEnough, u"\\usr"),
            0);
}

TEST(ExecuteProgram, HandsOnNothingOfTheHost) {
  const int open_file = open("/dev/null", O_RDONLY);  // without O_CLOEXEC
  std::signal(SIGUSR1, SIG_IGN);
  sigset_t blocked;
  sigemptyset(&blocked);
  sigaddset(&blocked, SIGUSR2);
  pthread_sigmask(SIG_BLOCK, &blocked, nullptr);
  EXPECT_EQ(Shell(u"[ ! -e /proc/$$/fd/$1 ]", {FromUtf8(std::to_string(open_file))}), 0);
  EXPECT_EQ(Shell(u"exec grep -q 'SigIgn:.0000000000000000' /proc/self/status"), 0);
  EXPECT_EQ(Shell(u"exec grep -q 'SigBlk:.0000000000000000' /proc/self/status"), 0);
  pthread_sigmask(SIG_UNBLOCK, &blocked, nullptr);
  std::signal(SIGUSR1, SIG_DFL);
  close(open_file);
}

std::atomic<int> children_ended = 0;

TEST(ExecuteProgram, LeavesTheHostsChildrenAlone) {
  std::signal(SIGCHLD, [](int) { ++children_ended; });
  EXPECT_EQ(Shell(u"exit 0"), 0);
  const std::int32_t number = StandardObject().ExecuteProgram(u"sleep", {u"30"});
  EXPECT_EQ(kill(number, 0), 0);
  const std::string status = Content("/proc/" + std::to_string(number) + "/status");
  EXPECT_EQ(status.find("PPid:\t" + std::to_string(getpid()) + "\n"), std::string::npos);
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG | __WALL), -1) << "no child, no zombie";
  EXPECT_EQ(children_ended, 0);
  kill(number, SIGKILL);
  std::signal(SIGCHLD, SIG_DFL);
}

TEST(ExecuteProgram, EndsWhatTakesTooLong) {
  const TempFolder folder;
  const Text pid_file = FromUtf8((folder.Native() / "pid").string());
  EXPECT_EQ(ErrorOf([&] { Shell(u"sleep 60 & echo $! > \"$1\"; wait", {pid_file}, 0.3); }), 70);
  const int helper = std::stoi(Content(folder.Native() / "pid"));
  EXPECT_NE(Content("/proc/" + std::to_string(helper) + "/status").find("State:\tS"), 0U);
  EXPECT_EQ(ErrorOf([] { Shell(u"trap '' TERM; while :; do sleep 1; done", {}, 0.3); }), 70);
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG | __WALL), -1);
}

TEST(ExecuteProgram, SaysWhatCannotBeStarted) {
  const TempFolder folder;
  const Text in_folder = PathText(folder.Native()) + u"\\";
  Write(folder.Native() / "text", "no program");
  WriteProgram(folder.Native() / "own", "exit 0");
  const StandardObject standard;
  const auto error = [&](const Text& program, double seconds = kEnough, const Text& where = u"") {
    return ErrorOf([&] { standard.ExecuteProgram(program, {}, seconds, where); });
  };
  EXPECT_EQ(error(u"zq7-no-such-program"), 53);
  EXPECT_EQ(error(in_folder + u"none"), 53);
  EXPECT_EQ(error(in_folder + u"text"), 70);
  EXPECT_EQ(error(in_folder + u"own"), 0);
  EXPECT_EQ(error(in_folder + u"none", 0), 53) << "without waiting too";
  EXPECT_EQ(error(u"true", kEnough, in_folder + u"none"), 76);
  EXPECT_EQ(error(u""), 5);
  EXPECT_EQ(error(u"true", -1), 5);
  EXPECT_EQ(error(u"true", kNan), 5);
  const Variable search("PATH", ":" + folder.Native().string());
  EXPECT_EQ(error(u"own"), 0);
  const path before = std::filesystem::current_path();
  std::filesystem::current_path(folder.Native());
  const Variable here("PATH", "::/nowhere");
  EXPECT_EQ(error(u"own"), 53) << "an empty entry of PATH is not the current folder";
  std::filesystem::current_path(before);
}

/// A desktop whose programs write down what they are asked to open.
class DesktopTest : public ::testing::Test {
 protected:
  DesktopTest() {
    for (const char* const name : {"xdg-open", "xdg-email"}) {
      WriteProgram(folder_.Native() / name,
                   "{ echo " + std::string(name) + "; printf '%s\\n' \"$@\"; } > '" +
                       (folder_.Native() / "partial").string() + "'; mv '" +
                       (folder_.Native() / "partial").string() + "' '" + opened_.string() + "'");
    }
  }

  std::string Opened() {
    const std::string opened = Awaited(opened_);
    std::filesystem::remove(opened_);
    return opened;
  }

  TempFolder folder_;
  path opened_ = folder_.Native() / "opened";
  Variable path_ = Variable("PATH", folder_.Native().string() + ":/usr/bin:/bin");
  Variable display_ = Variable("DISPLAY", ":99");
  Variable private_ = Variable("XDG_RUNTIME_DIR", folder_.Native().string());
  StandardObject standard_;
};

TEST_F(DesktopTest, OpensAddresses) {
  standard_.OpenBrowser(u"https://shop.example/ก");
  EXPECT_EQ(Opened(), "xdg-open\nhttps://shop.example/%E0%B8%81\n");
  Write(folder_.Native() / "a b.txt", "text");
  const Text document = FromUtf8("file://" + (folder_.Native() / "a b.txt").string());
  standard_.OpenBrowser(document);
  EXPECT_EQ(Opened(), "xdg-open\nfile://" + folder_.Native().string() + "/a%20b.txt\n");
  for (const char* const refused : {"xdg-open", "none", "x.desktop"}) {
    Write(folder_.Native() / "x.desktop", "");
    const Text address = FromUtf8("file://" + (folder_.Native() / refused).string());
    EXPECT_EQ(ErrorOf([&] { standard_.OpenBrowser(address); }), 5) << refused;
  }
  EXPECT_EQ(ErrorOf([&] { standard_.OpenBrowser(u"file://server/share/a.txt"); }), 5);
}

TEST_F(DesktopTest, BeginsMessages) {
  standard_.OpenMail(u"a@shop.example", u"ใบเสร็จ");
  EXPECT_EQ(Opened().substr(0, 48), "xdg-open\nmailto:a@shop.example?subject=%E0%B9%83");
  Write(folder_.Native() / "bill.pdf", "%PDF");
  const Text bill = PathText(folder_.Native() / "bill.pdf");
  standard_.OpenMail(u"--attach=/etc/passwd", u"", u"", {bill});
  EXPECT_EQ(Opened(), "xdg-email\n--utf8\n--attach\n" + folder_.Native().string() +
                          "/bill.pdf\nmailto:--attach%3D%2Fetc%2Fpasswd\n");
  EXPECT_EQ(ErrorOf([&] { standard_.OpenMail(u"a@b", u"", u"", {bill + u"x"}); }), 53);
}

TEST_F(DesktopTest, OpensAppointments) {
  const Variable zone("TZ", "Asia/Bangkok");
  standard_.OpenCalendar(u"นับสินค้า", OleDate::FromParts(2024, 1, 16, 9, 0),
                         OleDate::FromParts(2024, 1, 16, 10, 0));
  const std::string opened = Opened();
  const path file = opened.substr(9, opened.size() - 10);
  const std::string text = Content(file);
  EXPECT_NE(text.find("DTSTART:20240116T020000Z\r\nDTEND:20240116T030000Z\r\n"), std::string::npos)
      << opened << text;
  struct stat status {};
  stat(file.c_str(), &status);
  EXPECT_EQ(status.st_mode & 0777U, 0600U);
  stat(file.parent_path().c_str(), &status);
  EXPECT_EQ(status.st_mode & 0777U, 0700U);
}

TEST_F(DesktopTest, NeedsADisplayAndAProgram) {
  const auto error = [&] { return ErrorOf([&] { standard_.OpenBrowser(u"http://a.example"); }); };
  {
    const Variable no_display("DISPLAY", "");
    const Variable no_wayland("WAYLAND_DISPLAY", "");
    EXPECT_EQ(error(), 429);
  }
  const Variable no_programs("PATH", "/nowhere");
  EXPECT_EQ(error(), 429);
  const OleDate now = TestNow();
  EXPECT_EQ(ErrorOf([&] { standard_.OpenCalendar(u"a", now, now); }), 429);
  for (const auto& entry : std::filesystem::directory_iterator(folder_.Native())) {
    EXPECT_FALSE(entry.is_directory()) << "nothing is left behind";
  }
}

}  // namespace
}  // namespace ZQ7Standard
