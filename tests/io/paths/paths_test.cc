#include <ZQ7Standard/DiskObject.h>
#include <ZQ7Standard/platform/file_status.h>
#include <ZQ7Standard/platform/folders.h>

#include "tests/support/row_tests.h"
#include "tests/support/temp_folder.h"

using namespace ZQ7Standard;

TEST(Paths, AreSplitTrimmedAndShortened) {
  const DiskObject disk;
  // clang-format off
  ExpectRows<TextView>([&](auto it) { return disk.Pathname(it) + u"|" + disk.FileName(it); }, {
      {{u"C:\\a\\b.txt"}, "C:\\a|b.txt"}, {{u"C:\\b.txt"}, "C:|b.txt"}, {{u"b.txt"}, "|b.txt"},
      {{u"\\b.txt"}, "|b.txt"}, {{u"C:\\a\\"}, "C:\\a|"}, {{u"a/b"}, "|a/b"}, {{u""}, "|"}});
  // clang-format on
  // clang-format off
  ExpectTexts([&](TextView path) { return disk.trimPath(path); }, {
      {"C:\\a", {u"C:\\a", u"C:\\a\\\\\\"}}, {"\\a/", {u"\\a/"}}, {"", {u"", u"\\\\"}}});
  // clang-format on
  // Spaces around the path are removed, but its name keeps its own, and they count in its length.
  // clang-format off
  ExpectRows<TextView>([&](TextView path) { return disk.ScaleFullPath(path, 500); }, {
      {{u"C:\\Data\\Sales\\2024\\report.xls"}, "C:\\Data\\...\\report.xls"},
      {{u" C:\\Data\\report.xls"}, "C:\\Data\\report.xls"}, {{u"C:\\f.txt"}, "C:\\f.txt"},
      {{u"C:\\Data\\f.txt "}, "C:\\Data\\...\\f.txt "}, {{u"   a\\b   "}, "a\\b\\...\\b   "},
      {{u"\\\\srv\\share\\a\\b\\f.txt"}, "\\\\srv\\share\\...\\f.txt"}, {{u""}, "\\...\\"},
      {{u"\\\\srv\\share\\f.txt"}, "\\\\srv\\share\\f.txt"}, {{u"f.txt"}, "\\...\\f.txt"},
      {{u"\\a\\b\\f.txt"}, "\\a\\...\\f.txt"}, {{u"C:\\Data\\Sales\\"}, "C:\\Data\\...\\"}});
  // clang-format on
}

/// Another process creates each folder on the machine just before.
struct OvertakenFolders final : Folders {
  void Create(TextView path) override {
    real->Create(path);
    real->Create(path);
  }
  std::vector<FolderEntry> List(TextView path) override { return real->List(path); }
  std::vector<FolderIdentity> Enclosing(TextView path) override { return real->Enclosing(path); }

  std::shared_ptr<Folders> real = SystemFolders();
};

TEST(CreateFullPath, TakesAFolderThatAnotherProcessMade) {
  const TempFolder folder;
  const DiskObject disk({.folders = std::make_shared<OvertakenFolders>()});
  EXPECT_EQ(disk.CreateFullPath(folder.Path("x/y")), -1);
  EXPECT_EQ(disk.XCopyFile(folder.Path("x/y"), folder.Path("to")), 1);
}
