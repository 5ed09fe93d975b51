#include <ZQ7Standard/DiskObject.h>

#include "tests/support/rows.h"

using namespace ZQ7Standard;

// clang-format off
TEST(Paths, AreSplitAtTheLastBackslash) {
  const DiskObject disk;
  ExpectRows<TextView>([&](TextView path) { return disk.Pathname(path) + u" | " + disk.FileName(path); }, {
      {{u"C:\\a\\b.txt"}, "C:\\a | b.txt"}, {{u"C:\\b.txt"}, "C: | b.txt"}, {{u"C:\\a\\"}, "C:\\a | "},
      {{u"\\b.txt"}, " | b.txt"}, {{u"b.txt"}, " | b.txt"}, {{u"a/b"}, " | a/b"}, {{u"a\\\\"}, "a\\ | "},
      {{u"\\"}, " | "}, {{u""}, " | "}});
  ExpectTexts([&](TextView path) { return disk.trimPath(path); }, {
      {"C:\\a", {u"C:\\a", u"C:\\a\\", u"C:\\a\\\\\\"}}, {"\\a/", {u"\\a/"}}, {"", {u"", u"\\", u"\\\\"}}});
}

TEST(Paths, AreShownWithTheirFirstFolderAndTheFile) {
  const DiskObject disk;
  ExpectRows<TextView>([&](TextView path) { return disk.ScaleFullPath(path, 500); }, {
      {{u"C:\\Data\\Sales\\2024\\report.xls"}, "C:\\Data\\...\\report.xls"},
      {{u"C:\\Data\\report.xls"}, "C:\\Data\\report.xls"},
      {{u"C:\\report.xls"}, "C:\\report.xls"},
      {{u" C:\\Data\\report.xls"}, "C:\\Data\\report.xls", "spaces go"},
      {{u"C:\\Data\\report.xls "}, "C:\\Data\\...\\report.xls ", "but not those of the name"},
      {{u"\\\\srv\\share\\a\\b\\f.txt"}, "\\\\srv\\share\\...\\f.txt"},
      {{u"\\\\srv\\share\\f.txt"}, "\\\\srv\\share\\f.txt"},
      {{u"\\a\\b\\f.txt"}, "\\a\\...\\f.txt", "the leading one is counted"},
      {{u"   a\\b   "}, "a\\b\\...\\b   ", "the path is scanned by its length with the spaces"},
      {{u"C:\\Data\\Sales\\"}, "C:\\Data\\...\\"},
      {{u"f.txt"}, "\\...\\f.txt", "no folder"}, {{u""}, "\\...\\"}});
  EXPECT_EQ(disk.ScaleFullPath(u"C:\\a\\b\\c.txt"), u"C:\\a\\...\\c.txt");
}
// clang-format on
