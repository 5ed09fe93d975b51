#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/platform/desktop.h>
#include <ZQ7Standard/platform/message_box.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>

#include "platform/windows/command_line.h"
#include "tests/support/row_tests.h"
#include "tests/support/temp_folder.h"
#include "tests/support/windows/child.h"

namespace ZQ7Standard {
namespace {

Text AddressOf(Text path) {
  std::ranges::replace(path, u'\\', u'/');
  return u"file:///" + path;
}

std::string Content(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(OpenBrowser, RefusesWhatIsNoDocument) {
  const TempFolder folder;
  for (const char* const name : {"a.exe", "a.js", "a.lnk", "a.txt.BAT"}) {
    std::ofstream(folder.Native() / name) << "text";
  }
  const auto open = [&](const char* name) {
    return ErrorOf([&] { StandardObject().OpenBrowser(AddressOf(folder.Path(name))); });
  };
  for (const char* const name : {"a.exe", "a.js", "a.lnk", "a.txt.BAT", "a.exe.", "a.exe%20"}) {
    EXPECT_EQ(open(name), 5) << name;
  }
  EXPECT_EQ(open("none.txt"), 5);
  EXPECT_EQ(ErrorOf([] { StandardObject().OpenBrowser(u"file://server/share/a.txt"); }), 5);
  EXPECT_EQ(
      ErrorOf([&] { StandardObject().OpenMail(u"a@b", u"", u"", {folder.Path("none.pdf")}); }), 53);
}

/// Documents ending in ".zq7test", whose program is the test program.
class DocumentTest : public testing::Test {
 protected:
  void SetUp() override {
    const std::wstring own = Wide(OwnProgram());
    const std::wstring command =
        CommandLine(own, ArgumentsFor(u"DocumentChild.DISABLED_Opens",
                                      {u"into=" + folder_.Path("opened") + u";", u"from=%1"}));
    if (!SetDefault(L".zq7test", L"zq7test") ||
        !SetDefault(L"zq7test\\shell\\open\\command", command)) {
      GTEST_SKIP() << "the user may not register documents";
    }
  }
  void TearDown() override {
    RegDeleteTreeW(HKEY_CLASSES_ROOT, L".zq7test");
    RegDeleteTreeW(HKEY_CLASSES_ROOT, L"zq7test");
  }

  static bool SetDefault(const std::wstring& key, const std::wstring& value) {
    return RegSetKeyValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, REG_SZ, value.c_str(),
                           static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t))) ==
           ERROR_SUCCESS;
  }
  /// What the program was given, once it has ended.
  std::string Opened() const {
    for (int i = 0; i < 1000 && !std::filesystem::exists(folder_.Native() / "opened"); ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return Content(folder_.Native() / "opened");
  }

  const TempFolder folder_;
};

/// Given the document and the file to copy it to.
TEST(DocumentChild, DISABLED_Opens) {
  BeQuiet();
  const std::wstring line = GetCommandLineW();
  const auto given = [&line](const std::wstring& name, wchar_t end) {
    const std::size_t begin = line.find(name) + name.size();
    return std::filesystem::path(line.substr(begin, line.find(end, begin) - begin));
  };
  const std::filesystem::path copy = given(L"into=", L';');
  const std::filesystem::path part = copy.native() + L".part";
  std::filesystem::copy_file(given(L"from=", L'"'), part);
  std::filesystem::rename(part, copy);
}

TEST_F(DocumentTest, OpensInTheUsersProgram) {
  std::ofstream(folder_.Native() / "a b.zq7test") << "document";
  StandardObject().OpenBrowser(AddressOf(folder_.Path("a b.zq7test")));
  EXPECT_EQ(Opened(), "document");
}

TEST_F(DocumentTest, OpensNewOnes) {
  SystemDesktop()->OpenDocument("appointment.zq7test", "BEGIN:VCALENDAR\r\n");
  EXPECT_EQ(Opened(), "BEGIN:VCALENDAR\r\n");
  EXPECT_EQ(ErrorOf([] { SystemDesktop()->OpenDocument("a.zq7-none", "text"); }), 429);
}

TEST(DesktopChild, DISABLED_IsNotSeen) {
  BeQuiet();
  const HWINSTA station = CreateWindowStationW(nullptr, 0, MAXIMUM_ALLOWED, nullptr);
  ASSERT_NE(SetProcessWindowStation(station), 0);
  EXPECT_EQ(ErrorOf([] { StandardObject().OpenBrowser(u"https://shop.example/"); }), 429);
  EXPECT_EQ(ErrorOf([] { SystemDesktop()->OpenDocument("a.zq7test", "text"); }), 429);
}

TEST(Desktop, NeedsAUserWhoSeesIt) {
  EXPECT_EQ(StandardObject().ExecuteProgram(OwnProgram(),
                                            ArgumentsFor(u"DesktopChild.DISABLED_IsNotSeen"), 60),
            0);
}

TEST(SystemMessageBox, IsTheErrorStreamInProgramsOfTheCommandLine) {
  testing::internal::CaptureStderr();
  SystemMessageBox()->Show({.title = u"title", .text = u"ข้อความ"});
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "title: ข้อความ\n");
}

}  // namespace
}  // namespace ZQ7Standard
