#include <ZQ7Standard/DiskObject.h>
#include <ZQ7Standard/platform/folders.h>

#include "tests/support/row_tests.h"
#include "tests/support/temp_folder.h"

using namespace ZQ7Standard;

TEST(CreateFullPath, MakesEachFolderThatIsMissing) {
  const TempFolder folder;
  const DriveMap drives = {{'D', folder.Native()}, {'E', folder.Native() / "new"}};
  const DiskObject disk({.drives = drives});
  const auto current = std::filesystem::current_path();
  std::filesystem::current_path(folder.Native());
  // clang-format off
  ExpectRows<Text>([&](const Text& path) { return disk.CreateFullPath(path); }, {
      {{u"D:\\x\\y\\z\\\\"}, "-1"}, {{u"d:\\x\\y"}, "-1"}, {{u"D:\\x\\\\w"}, "-1"}, {{u"C:"}, "-1"},
      {{u"\\\\srv\\share"}, "-1"}, {{u"E:\\a"}, "-1"}, {{u""}, "0"}, {{u"\\\\"}, "0"},
      {{u"C:\\etc\\passwd\\x"}, "error 75"}, {{u"D:\\" + Text(300, u'x')}, "error 75"}});
  // clang-format on
  std::filesystem::current_path(current);
  EXPECT_EQ(folder.Run("find -mindepth 1 -printf '%P\n' | sort | tr '\n' ' '"),
            "new new/a srv srv/share x x/w x/y x/y/z ");
}
