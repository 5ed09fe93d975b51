#include <ZQ7Standard/DiskObject.h>
#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/file_contents.h>
#include <ZQ7Standard/platform/file_copier.h>
#include <ZQ7Standard/platform/file_rewrite.h>
#include <ZQ7Standard/platform/file_status.h>
#include <ZQ7Standard/platform/folders.h>
#include <windows.h>

#include <algorithm>
#include <thread>

#include "platform/windows/handle.h"
#include "platform/windows/native_path.h"
#include "platform/windows/wide_text.h"
#include "tests/support/ascii_files.h"
#include "tests/support/read_only.h"
#include "tests/support/row_tests.h"
#include "tests/support/temp_folder.h"

using namespace ZQ7Standard;

TEST(NativePath, IsThePathTextBeyondMappedDrivesAndLongPaths) {
  const DriveMap drives = {{'D', L"C:\\srv\\shop"}};
  // clang-format off
  ExpectRows<Text>([&](const Text& path) { return FromWide(NativePath(path, drives)); }, {
      {{u"C:\\app\\set.ini"}, "C:\\app\\set.ini"}, {{u"a/b"}, "a\\b"}, {{u""}, ""},
      {{u"D:\\a"}, "C:\\srv\\shop\\a"}, {{u"d:a"}, "C:\\srv\\shop\\a"}, {{u"D:"}, "C:\\srv\\shop\\"},
      {{u"D:\\..\\..\\windows"}, "C:\\srv\\shop\\windows", "never out of the drive"},
      {{u"D:\\a\\..\\b"}, "C:\\srv\\shop\\b"}, {{u"\\\\srv\\share"}, "\\\\srv\\share"},
      {{Text(u"a\0b", 3)}, "a\uFFFD" "b", "never cut short"}});
  // clang-format on
  const Text name(300, u'x');
  const auto native = [](const Text& path) { return FromWide(NativePath(path, {})); };
  EXPECT_EQ(native(u"C:\\" + name), u"\\\\?\\C:\\" + name);
  EXPECT_EQ(native(u"C:\\a\\..\\" + name), u"\\\\?\\C:\\" + name);
  EXPECT_EQ(native(u"\\\\srv\\" + name), u"\\\\?\\UNC\\srv\\" + name);
}

/// A folder with the file "f" of "old", for one row.
struct Place {
  Place() { Write("f", "old"); }
  void Write(const std::string& name, std::string_view bytes) const {
    std::ofstream(folder.Native() / name, std::ios::binary) << bytes;
  }
  std::string Read(const std::string& name) const {
    std::ifstream file(folder.Native() / name, std::ios::binary);
    return {std::istreambuf_iterator(file), {}};
  }
  /// The names in the folder, in order.
  std::string Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Native())) {
      names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    std::string text;
    for (const std::string& name : names) text += name + " ";
    return text;
  }

  TempFolder folder;
};

TEST(FileErrors, TellWhatIsMissingOrInTheWay) {
  const Place place;
  std::filesystem::create_directory(place.folder.Native() / "d");
  const ReadOnly locked(place.folder.Native() / "f");
  place.Write("g", "x");
  const auto reader = SystemFileReader();
  const auto writer = SystemFileWriter();
  const auto status = SystemFileStatus();
  const auto in = [&](const std::string& name) { return place.folder.Path(name); };
  // clang-format off
  ExpectRows<std::string>([&](const auto& name) { writer->Append(in(name), "y"); return place.Read(name); }, {
      {{"d"}, "error 75"}, {{"f"}, "error 70"}, {{"g"}, "xy"}, {{"new"}, "y"}, {{"no\\a"}, "error 76"},
      {{"g\\a"}, "error 76"}, {{"a<b"}, "error 75"}});
  ExpectRows<std::string>([&](const auto& name) { std::array<char, 2> start{}; return reader->ReadStart(in(name), start); }, {
      {{"g"}, "2"}, {{"made"}, "0"}, {{"d"}, "error 75"}, {{"f"}, "error 70"}, {{"no\\a"}, "error 76"}});
  ExpectRows<std::string>([&](const auto& name) { return reader->ReadAll(in(name)).value_or("none"); }, {
      {{"g"}, "xy"}, {{"f"}, "old"}, {{"d"}, "none"}, {{"no"}, "none"}, {{"no\\a"}, "none"}});
  ExpectRows<std::string>([&](const auto& name) { return writer->Create(in(name), "new") ? place.Read(name) : "there"; }, {
      {{"c"}, "new"}, {{"f"}, "there"}, {{"d"}, "error 75"}, {{"no\\a"}, "error 76"}});
  ExpectRows<std::string>([&](const auto& name) { status->ClearReadOnly(in(name)); return 0; }, {
      {{"no"}, "error 53"}, {{"no\\a"}, "error 76"}, {{"f"}, "0"}});
  // clang-format on
  EXPECT_FALSE(status->StatusOf(in("f"))->read_only);
  EXPECT_EQ(ErrorOf([&] { reader->ReadAll(u"\\\\.\\NUL"); }), 75);
  EXPECT_EQ(place.Names(), "c d f g made new ");
}

TEST(FileCopier, KeepsTimesAndRefusesWhatItWouldDestroy) {
  const Place place;
  place.Write("to", "older");
  place.Write("locked", "x");
  const ReadOnly locked(place.folder.Native() / "locked");
  std::filesystem::create_directory(place.folder.Native() / "d");
  const std::filesystem::file_time_type past =
      std::filesystem::last_write_time(place.folder.Native() / "f") - std::chrono::hours(72);
  std::filesystem::last_write_time(place.folder.Native() / "f", past);
  const auto call = [&](const std::string& from, const std::string& to, bool replace) {
    const auto existing = replace ? ExistingTarget::kReplace : ExistingTarget::kRefuse;
    SystemFileCopier()->Copy(place.folder.Path(from), place.folder.Path(to), existing);
    const bool same = std::filesystem::last_write_time(place.folder.Native() / to) == past;
    return place.Read(to) + (same ? "" : " at another time");
  };
  // clang-format off
  ExpectRows<std::string, std::string, bool>(call, {
      {{"f", "new", false}, "old"}, {{"f", "to", false}, "error 75"}, {{"f", "to", true}, "old"},
      {{"f", "locked", true}, "error 70"}, {{"f", "f", true}, "error 70"},
      {{"f", "d", true}, "error 75"}, {{"d", "x", false}, "error 75"},
      {{"no", "x", false}, "error 53"}, {{"f", "no\\x", false}, "error 76"}});
  // clang-format on
  EXPECT_EQ(place.Read("locked"), "x");
}

TEST(FileRewriter, ReplacesFilesWholeAndInTurn) {
  const Place place;
  const auto rewriter = SystemFileRewriter();
  const Text path = place.folder.Path("f");
  const ReadOnly locked(place.folder.Native() / "f");
  place.Write("f$$$$", "left by a killed process");
  EXPECT_TRUE(
      rewriter->Rewrite(path, [](const OldBytes& old) { return std::string(old()) + "!"; }));
  EXPECT_EQ(place.Read("f") + " " + place.Names(), "old! f ");
  EXPECT_FALSE(SystemFileStatus()->StatusOf(path)->read_only);
  EXPECT_FALSE(rewriter->Rewrite(place.folder.Path("no"), [](const OldBytes&) { return "x"; }));
  EXPECT_FALSE(rewriter->Rewrite(place.folder.Path(""), [](const OldBytes&) { return "x"; }));
  EXPECT_EQ(ErrorOf([&] {
              rewriter->Rewrite(path, [](const OldBytes&) -> std::string {
                throw RunTimeError(Error::kOverflow);
              });
            }),
            6);
  EXPECT_EQ(place.Read("f") + " " + place.Names(), "old! f ");

  constexpr int kTimes = 50;
  std::vector<std::thread> threads;
  for (int id = 0; id < 4; ++id) {
    threads.emplace_back([&] {
      const auto mine = SystemFileRewriter();
      for (int i = 0; i < kTimes; ++i) {
        mine->Rewrite(path, [](const OldBytes& old) { return std::string(old()) + "x"; });
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(place.Read("f"), "old!" + std::string(4 * kTimes, 'x'));
  EXPECT_EQ(place.Names(), "f ");
}

TEST(FileRewriter, WaitsForThoseWhoHoldTheFile) {
  const Place place;
  const auto native = place.folder.Native() / "f";
  Handle held = FileHandle(CreateFileW(native.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                       OPEN_EXISTING, 0, nullptr));
  std::thread holder([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    EXPECT_EQ(place.Read("f"), "old");
    held.reset();
  });
  const auto rewrite = [&] {
    return SystemFileRewriter()->Rewrite(place.folder.Path("f"),
                                         [](const OldBytes&) { return "new"; });
  };
  EXPECT_TRUE(rewrite());
  holder.join();
  EXPECT_EQ(place.Read("f"), "new");
  held = FileHandle(CreateFileW(native.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                OPEN_EXISTING, 0, nullptr));
  EXPECT_EQ(ErrorOf(rewrite), 70) << "after ten seconds";
  EXPECT_EQ(place.Read("f") + " " + place.Names(), "new f ");
}

TEST(Files, MayHaveThaiNamesAndLongPaths) {
  const TempFolder folder;
  const DiskObject disk;
  Text path = PathText(folder.Native());
  for (int i = 0; i < 8; ++i) path += u"\\" + Text(60, u'ก');
  EXPECT_EQ(disk.CreateFullPath(path), -1);
  const Text file = path + u"\\ชื่อไฟล์.txt";
  EXPECT_TRUE(SystemFileWriter()->Create(file, "ไทย"));
  EXPECT_EQ(SystemFileReader()->ReadAll(file), "ไทย");
  EXPECT_TRUE(SystemFileRewriter()->Rewrite(file, [](const OldBytes&) { return "ใหม่"; }));
  SystemFileCopier()->Copy(file, path + u"\\copy", ExistingTarget::kRefuse);
  EXPECT_EQ(SystemFileReader()->ReadAll(path + u"\\copy"), "ใหม่");
  const auto entries = SystemFolders()->List(path);
  ASSERT_EQ(entries.size(), 2U);
  EXPECT_TRUE(std::ranges::any_of(
      entries, [](const FolderEntry& entry) { return entry.name == u"ชื่อไฟล์.txt"; }));
  EXPECT_EQ(SystemFolders()->Enclosing(path + u"\\none\\x").size(),
            SystemFolders()->Enclosing(PathText(folder.Native())).size() + 8);
  // The folder's own destructor knows no long paths.
  DeleteFileW(NativePath(file, {}).c_str());
  DeleteFileW(NativePath(path + u"\\copy", {}).c_str());
  for (; path.ends_with(u'ก'); path.erase(path.rfind(u'\\'))) {
    EXPECT_NE(RemoveDirectoryW(NativePath(path, {}).c_str()), 0);
  }
}

TEST(XCopyFile, CopiesATreeAndRefusesOneIntoItself) {
  const Place place;
  const DiskObject disk;
  const auto in = [&](const std::string& name) { return place.folder.Path(name); };
  EXPECT_EQ(disk.CreateFullPath(in("t\\c")), -1);
  place.Write("t\\a", "one");
  place.Write("t\\c\\d", "two");
  EXPECT_EQ(disk.XCopyFile(in("t"), in("to\\")), 4);
  EXPECT_EQ(place.Read("to\\a") + place.Read("to\\c\\d"), "onetwo");
  // clang-format off
  ExpectRows<std::string, std::string>([&](const auto& from, const auto& to) { return disk.XCopyFile(in(from), in(to)); }, {
      {{"t", "t\\x"}, "error 75"}, {{"t", "T\\C\\x"}, "error 75"}, {{"t", "to\\..\\t\\x"}, "error 75"},
      {{"no", "x"}, "0"}});
  // clang-format on
}
