#include <ZQ7Standard/ASCIIObject.h>
#include <ZQ7Standard/platform/path_text.h>

#include "tests/support/ascii_files.h"
#include "tests/support/read_only.h"
#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

TEST(KeyValueFile, GetValueReadsTheFirstLineOfTheKeyWithAnEqualsSign) {
  AsciiFiles files;
  const auto call = [&](const std::string& bytes, TextView key) {
    files.Write(bytes);
    return Utf8(files.object.GetValue(files.Path(), key)) + files.TakeShown();
  };
  // clang-format off
  ExpectRows<std::string, TextView>(call, {
      {{"[A]=1\r\n[B]=2\r\n", u"B"}, "2"}, {{"[port]=5", u"PORT"}, "5", "no end of line"},
      {{"  [Port]=5\r\n", u"pORT"}, "5", "indented"}, {{"\t[A]=1", u"A"}, "", "a tab is no blank"},
      {{"[A] = abc  \r\n", u"A"}, " abc  ", "blanks after the = stay"},
      {{"[A]=1\r\n[A]=2", u"A"}, "1", "the first wins"},
      {{"[A]x\r\n[A]=y", u"A"}, "y"}, {{"[A]  x \r\n", u"A"}, "x ", "no = at all"},
      {{"[A]x\n[A]z\n[B]=1", u"A"}, "z", "the last without ="},
      {{"[A]x\n[A]\n", u"A"}, "", "the last is empty"},
      {{"[AB]=1", u"A"}, ""}, {{"[A]=1", u"AB"}, ""}, {{"x[A]=1\n;[A]=2\n[B][A]=3", u"A"}, ""},
      {{"[A]=1\r[B]=2\n[C]=3", u"B"}, "2", "lone CR and LF"}, {{"[]=e", u""}, "e"},
      {{"[ a]=1\n[a]=2", u" A"}, "1", "blanks of the key count"}, {{"", u"A"}, ""},
      {{"[A]==", u"A"}, "="}, {{"[A]=1\x1A" "2", u"A"}, "1\x1A" "2", "no end of file"},
      {{"[\xA1]=\xE0\xA1\x80", u"ก"}, "เก€"}, {{"[?]=1", u"é"}, "", "not in the code page"},
      {{"[S]=1", u"ſ"}, "1", "upper case of a letter outside the page"},
      {{"[A\r\nB]=1", u"A\r\nB"}, "", "no line holds a line end"}});
  // clang-format on
  EXPECT_EQ(files.object.GetValue(PathText(files.Folder() / "none" / "x"), u"A"), u"");
  EXPECT_EQ(files.object.GetValue(PathText(files.Folder()), u"A") + FromUtf8(files.TakeShown()),
            u"");
}

TEST(KeyValueFile, SetvalueReplacesEveryLineOfTheKeyOrAppendsOne) {
  AsciiFiles files;
  using Bytes = std::optional<std::string>;
  const auto call = [&](const Bytes& bytes, TextView key, TextView value) {
    return files.After(bytes, [&] { files.object.Setvalue(files.Path(), key, value); });
  };
  // clang-format off
  ExpectRows<Bytes, TextView, TextView>(call, {
      {{std::nullopt, u"Port", u"9600"}, "[Port]=9600\r\n", "as typed in a new file"},
      {{"[Port]=9600\r\n", u"port", u"1"}, "[PORT]=1\r\n", "in upper case afterwards"},
      {{"[A]=1\r\n  [b]x\r\n", u"a", u""}, "[A]=\r\n[b]x\r\n", "indentation goes"},
      {{"[A]=1\n\n ;c \r[a]y", u"A", u"2"}, "[A]=2\r\n\r\n;c \r\n[A]=2\r\n", "both, CR LF"},
      {{"", u"K", u"v"}, "[K]=v\r\n"}, {{"x", u"K", u" v "}, "x\r\n[K]= v \r\n"},
      {{"[AB]=1\r\n", u"A", u"é"}, "[AB]=1\r\n[A]=?\r\n"}, {{"", u"ก", u"฿"}, "[\xA1]=\xDF\r\n"},
      {{"[?]=1\r\n", u"é", u"2"}, "[?]=1\r\n[?]=2\r\n", "one more each time"},
      {{"", u"A", u"1\r\n[B]=2"}, "[A]=1\r\n[B]=2\r\n", "a value of two lines"}});
  // clang-format on
}

TEST(KeyValueFile, DeleteValueDropsEveryLineOfTheKey) {
  AsciiFiles files;
  const auto call = [&](const auto& bytes) {
    return files.After(bytes, [&] { files.object.DeleteValue(files.Path(), u"a"); });
  };
  // clang-format off
  ExpectRows<std::optional<std::string>>(call, {
      {{"[A]=1\r\n [B]=2\n[a]x"}, "[B]=2\r\n"}, {{"[A]=1"}, ""}, {{" x"}, "x\r\n"},
      {{std::nullopt}, ""}});
  // clang-format on
}

// The messages of writing operations about a new file in folders of all kinds.
TEST(WriteMessages, TellAMissingFolderFromAReadOnlyOne) {
  AsciiFiles files;
  const auto folder = files.Folder() / "sub";
  const auto expect_shown = [&](const std::string& name, const std::string& shown,
                                const std::string& shown_by_log) {
    const Text path = PathText(folder / name);
    files.object.Setvalue(path, u"K", u"v");
    files.object.SaveStringToTextFile(path, u"x");
    EXPECT_EQ(files.TakeShown(), shown + shown);
    files.object.AddLog(path, u"o", u"t", u"Y", u"d");
    EXPECT_EQ(files.TakeShown(), shown_by_log);
  };
  const std::string missing = "Warning: Not found specified folder.";
  const std::string failed = "Warning: Not found specified folder or no permission to write.";
  expect_shown("a", missing, missing);
  create_directories(folder);
  expect_shown("a", "", "");
  expect_shown("a\\b", missing, missing);  // in a file
  expect_shown(std::string(300, 'a'), failed, failed);
  const ReadOnly locked(folder);
  // Wine does not keep the attribute of a folder.
  if (IsReadOnly(folder)) {
    expect_shown("b", "Warning: Specified folder can not write.",
                 "Warning: Specified folder or no permission to updated.");
  }
  files.object.SetDisableMsgLevel(0);
  expect_shown("none\\a", "", "");
}
