#include <ZQ7Standard/DiskObject.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <algorithm>

#include "tests/support/rows.h"
#include "tests/support/temp_folder.h"

using namespace ZQ7Standard;
namespace fs = std::filesystem;

namespace {

const auto kTime = fs::file_time_type::clock::now() - std::chrono::hours(5);

/// Writes a file, or makes a folder where `content` ends in "/", last modified
/// `nanoseconds` after `kTime`.
void Make(const TempFolder& folder, const std::string& name, const std::string& content,
          int nanoseconds = 0) {
  if (content == "/")
    fs::create_directories(folder.Native(name));
  else
    folder.Write(name, content);
  fs::last_write_time(folder.Native(name), kTime + std::chrono::nanoseconds(nanoseconds));
}

void MakeReadOnly(const TempFolder& folder, const std::string& name) {
  fs::permissions(folder.Native(name), fs::perms::owner_read);
}

/// All that a folder holds, in the order of names: "a=one b/ b/c=two", "!" behind
/// what is read-only and "*" behind another time than `kTime`.
std::string Contents(const TempFolder& folder, const std::string& name) {
  std::vector<std::string> lines;
  for (const auto& entry : fs::recursive_directory_iterator(folder.Native(name))) {
    const std::string path = entry.path().lexically_relative(folder.Native("")).native();
    const bool read_only =
        (entry.status().permissions() & fs::perms::owner_write) == fs::perms::none;
    lines.push_back(entry.path().lexically_relative(folder.Native(name)).native() +
                    (entry.is_directory() ? "/" : "=" + folder.Read(path)) +
                    (read_only ? "!" : "") +
                    (entry.is_directory() || entry.last_write_time() == kTime ? "" : "*"));
  }
  std::ranges::sort(lines);
  std::string contents;
  for (const auto& line : lines) contents += (contents.empty() ? "" : " ") + line;
  return contents;
}

}  // namespace

// clang-format off
TEST(CreateFullPath, MakesEachFolderThatIsMissing) {
  const TempFolder folder;
  const DiskObject disk;
  folder.Write("file", "");
  const fs::path old_current = fs::current_path();
  fs::current_path(folder.Native(""));
  const Text root = folder.Path("");
  ExpectRows<Text>([&](const Text& path) { return disk.CreateFullPath(path); }, {
      {{root + u"x\\y\\z\\\\"}, "-1"}, {{root + u"x\\y"}, "-1", "there already"},
      {{root + u"x\\\\w"}, "-1", "doubled separator"}, {{u"C:"}, "-1"}, {{u"C:\\"}, "-1"},
      {{u"\\\\srv\\share"}, "-1", "a network path is relative"}, {{u""}, "0"}, {{u"\\\\"}, "0"},
      {{root + u"file"}, "error 75"}, {{root + u"file\\x"}, "error 75"}, {{root + Text(300, u'x')}, "error 75"}});
  fs::current_path(old_current);
  EXPECT_EQ(Contents(folder, ""), "file=* srv/ srv/share/ x/ x/w/ x/y/ x/y/z/");
  const DriveMap drives = {{'D', folder.Native("shop")}};
  const DiskObject mapped({.status = SystemFileStatus(drives), .folders = SystemFolders(drives)});
  EXPECT_EQ(mapped.CreateFullPath(u"d:\\data"), -1);
  EXPECT_EQ(Contents(folder, "shop"), "data/");
}

TEST(CopyFileCheck, CopiesWhatHasAnotherTime) {
  constexpr int kNone = 0;
  constexpr int kLater = 1'000'000'000;
  const struct {
    const char* reason;
    const char* from;
    const char* to;
    int difference;  // of the times, in nanoseconds
    bool read_only;
    bool overwrite;
    int result;
    const char* contents;
  } rows[] = {
      {"no source", "", "old", kLater, true, true, 0, "to=old!*"},
      {"a folder as source", "/", "old", kNone, true, true, 0, "from/ to=old!"},
      {"no target", "new", "", kNone, false, false, 1, "from=new to=new"},
      {"a folder as target", "new", "/", kLater, false, true, 1, "from=new to/"},
      {"equal times", "new", "old", kNone, false, true, 0, "from=new to=old"},
      {"equal times, read-only", "new", "old", kNone, true, false, 0, "from=new to=old"},
      {"later, not overwritten", "new", "old", kLater, true, false, 1, "from=new to=old*"},
      {"later", "new", "old", kLater, false, true, 1, "from=new to=new"},
      {"earlier and longer", "new", "older", -kLater, true, true, 1, "from=new to=new"},
      {"a moment earlier", "new", "old", -1, false, true, 1, "from=new to=new"}};
  const DiskObject disk;
  for (const auto& row : rows) {
    const TempFolder folder;
    if (*row.from) Make(folder, "from", row.from);
    if (*row.to) Make(folder, "to", row.to, row.difference);
    if (row.read_only) MakeReadOnly(folder, "to");
    EXPECT_EQ(disk.CopyFileCheck(folder.Path("from"), folder.Path("to"), row.overwrite), row.result) << row.reason;
    EXPECT_EQ(Contents(folder, ""), row.contents) << row.reason;
  }
  EXPECT_EQ(disk.CopyFileCheck(u"C:\\proc\\version", u"C:\\no such folder\\version"), 1);
}

TEST(XCopyFile, CopiesATreeAndCountsIt) {
  const struct {
    const char* reason;
    std::function<void(const TempFolder&)> make;
    const char* result;
    const char* contents;  // of the target
  } rows[] = {
      {"into a new folder", [](const auto&) {}, "5", ".b=two a=one! c/ c/d=three"},
      {"into one that is there", [](const auto& f) { Make(f, "to/x", "/"); }, "5", ".b=two a=one! c/ c/d=three x/"},
      {"files are replaced", [](const auto& f) { Make(f, "to", "/"); f.Write("to/a", "older"); }, "5", ".b=two a=one c/ c/d=three"},
      {"links are followed", [](const auto& f) { fs::create_directory_symlink("c", f.Native("from/l")); }, "7", ".b=two a=one! c/ c/d=three l/ l/d=three"},
      {"a plain file", [](const auto& f) { fs::remove_all(f.Native("from")); f.Write("from", ""); }, "0", "none"},
      {"no source", [](const auto& f) { fs::remove_all(f.Native("from")); }, "0", "none"},
      {"an empty folder", [](const auto& f) { fs::remove_all(f.Native("from")); Make(f, "from", "/"); }, "1", ""},
      {"a subfolder that is there", [](const auto& f) { Make(f, "to/c", "/"); }, "error 75", nullptr},
      {"a read-only target", [](const auto& f) { Make(f, "to", "/"); Make(f, "to/.b", "old"); MakeReadOnly(f, "to/.b"); }, "error 70", nullptr},
      {"a target that is a file", [](const auto& f) { f.Write("to", ""); }, "error 76", nullptr},
      {"a folder where a file goes", [](const auto& f) { Make(f, "to/a", "/"); }, "error 75", nullptr},
      {"a pipe", [](const auto& f) { mkfifo(f.Native("from/p").c_str(), 0600); }, "error 75", nullptr},
      {"a link to nothing", [](const auto& f) { fs::create_symlink("gone", f.Native("from/l")); }, "error 53", nullptr},
      {"a name with a separator", [](const auto& f) { f.Write("from/..\\..\\x", ""); }, "error 75", nullptr},
      {"a name out of UTF-8", [](const auto& f) { f.Write("from/\xFF", ""); }, "error 75", nullptr}};
  const DiskObject disk;
  for (const auto& row : rows) {
    const TempFolder folder;
    Make(folder, "from/c", "/");
    for (const auto& [name, content] : {std::pair("a", "one"), {".b", "two"}, {"c/d", "three"}}) Make(folder, std::string("from/") + name, content);
    MakeReadOnly(folder, "from/a");
    row.make(folder);
    EXPECT_EQ(ResultOf([&] { return disk.XCopyFile(folder.Path("from"), folder.Path("to") + u"\\"); }), row.result) << row.reason;
    if (row.contents == nullptr) continue;
    EXPECT_EQ(fs::exists(folder.Native("to")) ? Contents(folder, "to") : "none", row.contents) << row.reason;
  }
}

TEST(XCopyFile, HarmsNoSourceThatIsItsTarget) {
  const TempFolder folder;
  const DiskObject disk;
  Make(folder, "from", "/");
  Make(folder, "from/a", "one");
  ExpectRows<Text>([&](const Text& to) { return disk.XCopyFile(folder.Path("from"), to); }, {
      {{folder.Path("from")}, "error 70"}, {{folder.Path("from/in")}, "error 75"}, {{folder.Path("no/to")}, "error 76"}});
  EXPECT_EQ(Contents(folder, "from"), "a=one");
}

TEST(FileCopier, CopiesWholeFilesOrNone) {
  const TempFolder folder;
  const auto copier = SystemFileCopier();
  std::string bytes(3'000'001, '\0');
  std::ranges::generate(bytes, [i = 0U]() mutable { return static_cast<char>((i++ * 2654435761U) >> 24U); });
  folder.Write("large", bytes);
  copier->Copy(folder.Path("large"), folder.Path("copy"), ExistingTarget::kReplace);
  EXPECT_TRUE(folder.Read("copy") == bytes);
  // No file system copies these itself.
  copier->Copy(u"C:\\proc\\version", folder.Path("copy"), ExistingTarget::kReplace);
  EXPECT_TRUE(folder.Read("copy").starts_with("Linux"));

  signal(SIGXFSZ, SIG_IGN);
  rlimit old_limit{};
  getrlimit(RLIMIT_FSIZE, &old_limit);
  const rlimit limit{1'000'000, old_limit.rlim_max};
  setrlimit(RLIMIT_FSIZE, &limit);
  EXPECT_EQ(ErrorOf([&] { copier->Copy(folder.Path("large"), folder.Path("new"), ExistingTarget::kRefuse); }), 61);
  setrlimit(RLIMIT_FSIZE, &old_limit);
  EXPECT_FALSE(fs::exists(folder.Native("new")));
}
// clang-format on
