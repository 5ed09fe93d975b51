#include <ZQ7Standard/ASCIIObject.h>
#include <ZQ7Standard/platform/path_text.h>

#include <limits>

#include "tests/support/ascii_files.h"
#include "tests/support/read_only.h"
#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

TEST(TextFile, GETLineTextFileReadsTheFirstLinesAndOverflowsBehindThem) {
  AsciiFiles files;
  constexpr int kMost = std::numeric_limits<std::int32_t>::max();
  const auto call = [&](const std::string& bytes, int from, int to) {
    files.Write(bytes);
    return files.object.GETLineTextFile(files.Path(), from, to);
  };
  // clang-format off
  ExpectRows<std::string, int, int>(call, {
      {{"a\r\nb\r\nc\r\n", 3, 0}, "a\r\nb\r\nc", "no line is skipped"},
      {{"a\nb\rc", 0, 0}, "a\r\nb\r\nc"}, {{"a\r\nb", 1, 2}, "a\r\nb"},
      {{"a\r\nb\r\nc", 1, 2}, "error 6", "passes without an end"}, {{"a\nb", 3, 4}, "a\r\nb"},
      {{"a\nb", 2, 2}, "error 6"}, {{"a", 2, 1}, "error 6"}, {{"a", 1, -1}, "error 6"},
      {{"", 2, 1}, ""}, {{"a\nb", kMost - 1, 0}, "a\r\nb"}, {{"a\nb", kMost, 0}, "error 6"},
      {{"a\nb", -5, 2}, "a\r\nb"}, {{"\n\n\na\n\nb\n\n", 1, 0}, "a\r\n\r\nb\r\n"},
      {{"\n\n", 1, 0}, ""}, {{"\xA1\x1A\xFF", 1, 0}, "ก\x1A\uF8C8"}});
  // clang-format on
  EXPECT_EQ(files.object.GETAllTextFile(files.Path()), u"ก\x1A\uF8C8");
  EXPECT_EQ(files.object.GETAllTextFile(u"C:\\none\\x"), u"");
}

TEST(TextFile, SaveStringWritesTheTextAsItIs) {
  AsciiFiles files;
  ExpectRows<std::optional<std::string>, bool>(
      [&](const auto& bytes, bool append) {
        const Text path = files.Path();
        return files.After(bytes,
                           [&] { files.object.SaveStringToTextFile2(path, u"ก\nd", append); });
      },
      {{{"abc", true}, "abc\xA1\nd"},
       {{"abc", false}, "\xA1\nd"},
       {{std::nullopt, true}, "\xA1\nd"}});
  create_directory(files.Folder() / "DeskTop");
  const ReadOnly desktop(files.Folder() / "DeskTop");
  files.object.SaveStringToTextFile(PathText(files.Folder() / "DeskTop/a"), u"x");
  EXPECT_EQ(files.TakeShown().find("can not write"), std::string::npos) << "as the user may";
}

TEST(Log, AddLogAppendsALineOfSemicolons) {
  AsciiFiles files;
  const auto add = [&] { files.object.AddLog(files.Path(), u"ADMIN", u"a;b", u"Y", u"ก"); };
  const std::string line = "1/15/2024;time 2024-01-15 09:30:00;ADMIN;a;b;Y;\xA1\r\n";
  EXPECT_EQ(files.After(std::nullopt, add), line);
  EXPECT_EQ(files.After("x", add), "x" + line);
  files.object.AddLog(u"bare.log", u"", u"", u"", u"");
  EXPECT_EQ(files.TakeShown(), "Warning: Not found specified folder.");
}
