#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/file_contents.h>
#include <ZQ7Standard/platform/file_status.h>
#include <ZQ7Standard/platform/time_text.h>

#include "platform/linux/native_path.h"
#include "tests/support/ascii_files.h"
#include "tests/support/environment.h"
#include "tests/support/rows.h"

using namespace ZQ7Standard;

// clang-format off
TEST(NativePath, DropsTheDriveAndTurnsTheSlashes) {
  const DriveMap drives = {{'D', "/srv/shop"}};
  ExpectRows<TextView>([&](TextView path) { return NativePath(path, drives); }, {
      {u"C:\\srv\\app\\set.ini", "/srv/app/set.ini"}, {u"c:", "/"}, {u"C:\\", "/"},
      {u"D:\\a", "/srv/shop//a"}, {u"d:a", "/srv/shop/a"}, {u"D:", "/srv/shop/"}, {u"", ""},
      {u"C:a\\b", "a/b"}, {u"\\\\srv\\share", "//srv/share"}, {u"a:b:c", "b:c"}, {u"1:\\a", "1:/a"},
      {u"ก/\\ข", "ก//ข"}, {TextView(u"a\0b", 3), "a\uFFFD" "b", "never cut short"}});
  ExpectRows<const char*>([](const char* path) { return PathText(path); }, {
      {"/srv/app/set.ini", "C:\\srv\\app\\set.ini"}, {"ก", "C:ก"}, {"/", "C:\\"}});
}

TEST(FileErrors, TellWhatIsMissingOrInTheWay) {
  AsciiFiles files;
  files.Write("x");
  const Text folder = PathText(files.Folder());
  const auto status = SystemFileStatus();
  const auto writer = SystemFileWriter();
  ExpectRows<TextView>([&](TextView name) { writer->Append(folder + Text(name), "y"); return 0; }, {
      {u"", "error 75", "a folder"}, {u"\\set.ini", "0"}, {u"\\none\\a", "error 76"},
      {u"\\set.ini\\a", "error 76", "a file as folder"}});
  ExpectRows<TextView>([&](TextView name) { status->ClearReadOnly(folder + Text(name)); return 0; }, {
      {u"\\none", "error 53"}, {u"\\none\\a", "error 76"}, {u"\\set.ini", "0"}});
  try {
    writer->Create(u"C:\\none\\ก", "");
  } catch (const RunTimeError& error) {
    EXPECT_STREQ(error.what(), "open: path not found (error 76): \"C:\\none\\ก\"");
  }
}

TEST(FileStatus, TellsFoldersRightsAndTimes) {
  AsciiFiles files;
  files.Write("x");
  permissions(files.File(), std::filesystem::perms(0470));
  const auto status = SystemFileStatus({{'D', files.Folder()}});
  EXPECT_TRUE(status->StatusOf(u"D:")->is_folder && !status->StatusOf(u"D:")->read_only);
  EXPECT_TRUE(!status->StatusOf(u"D:\\set.ini")->is_folder && status->StatusOf(u"D:\\set.ini")->read_only);
  status->ClearReadOnly(u"D:\\set.ini");
  EXPECT_FALSE(status->StatusOf(u"D:\\set.ini")->read_only);
  EXPECT_EQ(std::filesystem::status(files.File()).permissions(), std::filesystem::perms(0670));
  EXPECT_EQ(status->StatusOf(u"D:\\set.ini")->last_modified,
            std::chrono::file_clock::to_sys(last_write_time(files.File())));
  EXPECT_FALSE(status->StatusOf(u"D:\\none") || status->StatusOf(u"") || status->StatusOf(u"D:\\set.ini\\a"));
}

TEST(FileReader, ReadsTheStartAndMakesWhatIsMissing) {
  AsciiFiles files;
  files.Write("abc");
  std::array<char, 2> buffer{};
  EXPECT_EQ(SystemFileReader()->ReadStart(files.Path(), buffer), 2U);
  EXPECT_EQ(std::string_view(buffer.data(), 2), "ab");
  std::filesystem::remove(files.File());
  EXPECT_EQ(SystemFileReader()->ReadStart(files.Path(), buffer), 0U);
  EXPECT_TRUE(exists(files.File()));
  const std::string large(200'000, 'x');
  files.Write(large);
  EXPECT_EQ(SystemFileReader()->ReadAll(files.Path()), large);
}

TEST(SystemTimeText, IsTheLocalesOwn) {
  Environment environment;
  ExpectRows<const char*>([&](const char* locale) {
    environment.SetLocale(locale);
    return SystemTimeText()->LongTime(OleDate::FromParts(2024, 3, 7, 9, 5, 7));
  }, {{"en_US.UTF-8", "09:05:07 AM"}, {"th_TH.UTF-8", "09:05:07"}, {"ja_JP.EUC-JP", "09時05分07秒"},
      {"xx_YY", "09:05:07"}, {"", "09:05:07"}});
}
// clang-format on
