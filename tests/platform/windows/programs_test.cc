#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/platform/programs.h>
#include <gtest/gtest.h>
// The others need the first.
// clang-format off
#include <windows.h>
#include <shellapi.h>
// clang-format on

#include <chrono>
#include <fstream>
#include <string>
#include <thread>

#include "platform/windows/handle.h"
#include "tests/support/row_tests.h"
#include "tests/support/temp_folder.h"
#include "tests/support/windows/child.h"

namespace ZQ7Standard {
namespace {

constexpr double kEnough = 60;  // seconds

std::int32_t RunSelf(const Text& test, const std::vector<Text>& more = {},
                     double seconds = kEnough) {
  return StandardObject().ExecuteProgram(OwnProgram(), ArgumentsFor(test, more), seconds);
}

const std::vector<Text>& HardArguments() {
  static const std::vector<Text> arguments = {
      u"",       u"a b;$x\"ก", u"\\\\share\\",    u"ends in \\\\", u"\"", u"\\\"", u"\\\\\"x",
      u"%PATH%", u"a&b|c>d^e", u"tab\tand\nline", u"日本",         u"'",  u"/c",   u"*"};
  return arguments;
}

// The parts of the test program that the tests below run as processes of their own.

TEST(ProgramChild, DISABLED_GetsItsArguments) {
  BeQuiet();
  int count = 0;
  wchar_t** const found = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<Text> last;
  for (int i = count - static_cast<int>(HardArguments().size()); i < count; ++i) {
    last.push_back(FromWide(found[i]));
  }
  EXPECT_EQ(last, HardArguments());
}

TEST(ProgramChild, DISABLED_HasNothingToRead) {
  BeQuiet();
  char byte = 0;
  DWORD count = 1;
  EXPECT_NE(ReadFile(GetStdHandle(STD_INPUT_HANDLE), &byte, 1, &count, nullptr), 0);
  EXPECT_EQ(count, 0U);
}

/// What follows `name` in the command line.
std::wstring Given(const std::wstring& name) {
  const std::wstring line = GetCommandLineW();
  return line.substr(line.find(name) + name.size());
}

/// Given the number of a handle that the host has open.
TEST(ProgramChild, DISABLED_HasNoHandleOfTheHost) {
  BeQuiet();
  const auto number = std::stoull(Given(L"handle="));
  DWORD flags = 0;
  EXPECT_EQ(GetHandleInformation(reinterpret_cast<HANDLE>(number), &flags), 0);
}

/// Given the file that gets the number of the process.
TEST(ProgramChild, DISABLED_Sleeps) {
  BeQuiet();
  std::ofstream(std::filesystem::path(Given(L"file="))) << GetCurrentProcessId() << "\n";
  Sleep(60'000);
}

TEST(ProgramChild, DISABLED_StartsAnotherAndSleeps) {
  BeQuiet();
  StandardObject().ExecuteProgram(
      OwnProgram(),
      ArgumentsFor(u"ProgramChild.DISABLED_Sleeps", {u"file=" + FromWide(Given(L"file="))}));
  Sleep(60'000);
}

/// The process whose number a test has written in the folder; null if it is gone.
Handle WrittenProcess(const TempFolder& folder) {
  DWORD number = 0;
  for (int i = 0; i < 1000 && number == 0; ++i) {
    std::ifstream(folder.Native() / "pid") >> number;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  EXPECT_NE(number, 0U);
  return Handle(
      OpenProcess(SYNCHRONIZE | PROCESS_TERMINATE | PROCESS_QUERY_INFORMATION, FALSE, number));
}

TEST(ExecuteProgram, ReturnsTheStatus) {
  const StandardObject standard;
  EXPECT_EQ(standard.ExecuteProgram(u"cmd", {u"/c", u"exit", u"3"}, kEnough), 3);
  EXPECT_EQ(standard.ExecuteProgram(u"cmd.exe", {u"/c", u"exit", u"-5"}, kEnough), -5);
  EXPECT_EQ(RunSelf(u"ProgramChild.DISABLED_GetsItsArguments", HardArguments()), 0);
  EXPECT_EQ(RunSelf(u"ProgramChild.DISABLED_HasNothingToRead"), 0);
}

TEST(ExecuteProgram, HandsOnNothingOfTheHost) {
  SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
  const Handle event(CreateEventW(&inherited, TRUE, FALSE, nullptr));
  const auto number = reinterpret_cast<std::uintptr_t>(event.get());
  EXPECT_EQ(RunSelf(u"ProgramChild.DISABLED_HasNoHandleOfTheHost",
                    {u"handle=" + FromUtf8(std::to_string(number))}),
            0);
}

TEST(ExecuteProgram, EndsTheWholeTreeAtTheLimit) {
  const TempFolder folder;
  const auto begin = std::chrono::steady_clock::now();
  std::thread limited([&folder] {
    EXPECT_EQ(ErrorOf([&folder] {
                RunSelf(u"ProgramChild.DISABLED_StartsAnotherAndSleeps",
                        {u"file=" + folder.Path("pid")}, 5);
              }),
              70);
  });
  const Handle grandchild = WrittenProcess(folder);
  ASSERT_TRUE(grandchild);
  EXPECT_EQ(WaitForSingleObject(grandchild.get(), 0), DWORD{WAIT_TIMEOUT}) << "runs until then";
  limited.join();
  EXPECT_EQ(WaitForSingleObject(grandchild.get(), 5'000), DWORD{WAIT_OBJECT_0});
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(30));
}

TEST(ExecuteProgram, StartsWithoutWaiting) {
  const TempFolder folder;
  const std::int32_t number = StandardObject().ExecuteProgram(
      OwnProgram(), ArgumentsFor(u"ProgramChild.DISABLED_Sleeps", {u"file=" + folder.Path("pid")}));
  const Handle process = WrittenProcess(folder);
  ASSERT_TRUE(process);
  EXPECT_EQ(GetProcessId(process.get()), static_cast<DWORD>(number));
  TerminateProcess(process.get(), 0);
  WaitForSingleObject(process.get(), 10'000);
}

TEST(ExecuteProgram, SaysWhatCannotBeStarted) {
  const TempFolder folder;
  std::filesystem::copy_file(Wide(OwnProgram()), Wide(folder.Path("own.exe")));
  for (const char* const file : {"text.exe", "text", "batch.bat"}) {
    std::ofstream(folder.Native() / file) << "no program";
  }
  const SetVariable path(L"PATH", L"\"" + folder.Native().native() + L"\";;C:\\windows\\system32");
  const auto result = [](const Text& program, const Text& where) {
    const std::vector<Text> arguments = {u"--gtest_filter=none"};
    return StandardObject().ExecuteProgram(program, arguments, kEnough, where);
  };
  ExpectRows<Text, Text>(result, {{{folder.Path("own"), u""}, "0"},
                                  {{folder.Path("own.exe"), folder.Path("")}, "0"},
                                  {{u"own", u""}, "0", "a quoted folder of PATH"},
                                  {{u"zq7-no-such-program", u""}, "error 53"},
                                  {{folder.Path("none"), u""}, "error 53"},
                                  {{folder.Path("none\\own.exe"), u""}, "error 53"},
                                  {{folder.Path(""), u""}, "error 53", "a folder"},
                                  {{folder.Path("text.exe"), u""}, "error 70"},
                                  {{folder.Path("text"), u""}, "error 70"},
                                  {{folder.Path("batch.bat"), u""}, "error 70"},
                                  {{u"own", folder.Path("none")}, "error 76"},
                                  {{u"own", folder.Path("text")}, "error 76"},
                                  {{u"", u""}, "error 5"}});
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(folder.Native());
  const SetVariable nowhere(L"PATH", L";;C:\\nowhere");
  EXPECT_EQ(ErrorOf([&] { result(u"own", u""); }), 53) << "PATH does not name this folder";
  std::filesystem::current_path(before);
}

}  // namespace
}  // namespace ZQ7Standard
