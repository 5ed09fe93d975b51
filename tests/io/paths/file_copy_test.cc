#include <ZQ7Standard/DiskObject.h>
#include <ZQ7Standard/platform/file_copier.h>
#include <ZQ7Standard/platform/file_status.h>
#include <ZQ7Standard/platform/folders.h>
#include <sched.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/resource.h>

#include "tests/support/children.h"
#include "tests/support/row_tests.h"
#include "tests/support/temp_folder.h"

using namespace ZQ7Standard;

// The file "to", or everything in the folder: content, mode and year of the last-modified time.
constexpr const char* kTarget =
    "find to \\( -type d -printf ' %P/\\n' -o -printf ' %P=' -exec cat {} \\; "
    "-printf ',%m,%TY\\n' \\) 2>&- | LC_ALL=C sort | tr -d '\\n'";

TEST(CopyFileCheck, CopiesWhatHasAnotherTime) {
  const auto call = [](const std::string& change, bool overwrite) {
    const TempFolder folder;
    folder.Run(
        "printf new >from; touch -d '2001-01-01 00:00:00.123456789' from;"
        "printf older >to; touch -r from to; chmod 600 *;" +
        change);
    const Text to = folder.Path("to");
    const int result = DiskObject().CopyFileCheck(folder.Path("from"), to, overwrite);
    return Shown(result) + folder.Run(kTarget);
  };
  // clang-format off
  ExpectRows<std::string, bool>(call, {
      {{"rm from; chmod 400 to", true}, "0 =older,400,2001"}, {{"rm to", false}, "1 =new,600,2001"},
      {{"rm from; mkdir from; chmod 400 to", true}, "0 =older,400,2001"},
      {{"rm to; mkdir to", true}, "1 /"}, {{"chmod 400 to", false}, "0 =older,600,2001"},
      {{"touch -d 2002-01-01 to; chmod 440 to", false}, "1 =older,640,2002"},
      {{"touch -d 2002-01-01 to; chmod 440 to", true}, "1 =new,640,2001"},
      {{"touch -d '2001-01-01 00:00:00.123456788' to", true}, "1 =new,600,2001"}});
  // clang-format on
}

/// The machine's files, on a file system that keeps times in steps.
struct SteppedTimes final : FileStatusSource {
  explicit SteppedTimes(std::chrono::nanoseconds in_steps_of) : step(in_steps_of) {}
  std::optional<FileStatus> StatusOf(TextView path) override { return real->StatusOf(path); }
  void ClearReadOnly(TextView path) override { real->ClearReadOnly(path); }
  std::chrono::nanoseconds TimeStep(TextView) override { return step; }

  std::shared_ptr<FileStatusSource> real = SystemFileStatus();
  std::chrono::nanoseconds step;
};

TEST(CopyFileCheck, ComparesTimesAsTheTargetKeepsThem) {
  const auto call = [](int step, const auto& from, const auto& to) {
    const TempFolder folder;
    folder.Run("touch -d @" + from + " from; touch -d @" + to + " to");
    const auto status = std::make_shared<SteppedTimes>(std::chrono::nanoseconds(step));
    return DiskObject({.file_status = status})
        .CopyFileCheck(folder.Path("from"), folder.Path("to"));
  };
  // clang-format off
  ExpectRows<int, std::string, std::string>(call, {
      {{1, "61.5", "61.5"}, "0"}, {{1, "61.500000001", "61.5"}, "1"},
      {{2'000'000'000, "61.999999999", "60"}, "0"}, {{2'000'000'000, "62", "60"}, "1"},
      {{2'000'000'000, "60", "62"}, "1"}, {{2'000'000'000, "61.5", "61.5"}, "0", "not cut yet"},
      {{100, "61.123456789", "61.1234567"}, "0"}, {{10'000'000, "61.129999999", "61.12"}, "0"},
      {{100, "61.123456789", "61.123456788"}, "1", "no time of the target's"},
      {{2'000'000'000, "-0.5", "-2"}, "0", "before 1970"}, {{2'000'000'000, "-2", "-2"}, "0"},
      {{2'000'000'000, "-0.5", "0"}, "1"}, {{0, "61.5", "61"}, "1", "a step that is none"}});
  // clang-format on
}

TEST(XCopyFile, CopiesATreeAndCountsIt) {
  const auto call = [](const std::string& change, const std::string& to) {
    const TempFolder folder;
    folder.Run(
        "mkdir -p from/c; printf one >from/a; printf two >from/.b; printf three >from/c/d;"
        "touch -d 2001-01-01 from/a from/.b from/c/d; chmod 400 from/a;"
        "chmod 600 from/.b from/c/d;" +
        change);
    const int count = DiskObject().XCopyFile(folder.Path("from"), folder.Path(to));
    return Shown(count) + folder.Run(kTarget);
  };
  // clang-format off
  ExpectRows<std::string, std::string>(call, {
      {{"", "to\\"}, "5 .b=two,600,2001 / a=one,400,2001 c/ c/d=three,600,2001"},
      {{"mkdir to; printf older >to/a; chmod 644 to/a", "from\\..\\to"},
      "5 .b=two,600,2001 / a=one,644,2001 c/ c/d=three,600,2001"},
      {{"rm from/a from/.b; ln -s c from/l", "to"},
      "5 / c/ c/d=three,600,2001 l/ l/d=three,600,2001"},
      {{"rm -r from; mkdir from", "to"}, "1 /"}, {{"rm -r from; mkdir from", "no/to"}, "0"},
      {{"rm -r from; >from", "to"}, "0"}, {{"rm -r from", "to"}, "0"}, {{"", "no/to"}, "error 76"},
      {{"mkdir -p to/c", "to"}, "error 75"}, {{"mkdir -p to/a", "to"}, "error 75"},
      {{"mkdir to; >to/.b; chmod 400 to/.b", "to"}, "error 70"}, {{"", "from/to"}, "error 75"},
      {{"rm -r from/c", "from"}, "error 70"}, {{"ln -s gone from/l", "to"}, "error 53"},
      {{"mkfifo from/p", "to"}, "error 75"}, {{"touch 'from/..\\x'", "to"}, "error 75"},
      {{"touch from/$(printf '\\377')", "to"}, "error 75"}});
  // clang-format on
}

// Copies that would never end. "@" in a path is the folder of the test.
TEST(XCopyFile, RefusesATargetInTheSourceByWhateverName) {
  const auto current = std::filesystem::current_path();
  const auto call = [&](const std::string& change, const std::string& from, const std::string& to) {
    const TempFolder folder;
    folder.Run("mkdir -p t/c out; printf one >t/a; " + change);
    std::filesystem::current_path(folder.Native());
    const auto path = [&](std::string text) {
      if (const auto at = text.find('@'); at != std::string::npos)
        text.replace(at, 1, Utf8(folder.Path("")).substr(2));
      return FromUtf8(text);
    };
    const std::string before = folder.Run("find");
    const DiskObject disk({.drives = {{'T', folder.Native() / "t"}}});
    const std::string result = ResultOf([&] { return disk.XCopyFile(path(from), path(to)); });
    std::filesystem::current_path(current);
    return result + (folder.Run("find") == before ? "" : " and more");
  };
  // clang-format off
  ExpectRows<std::string, std::string, std::string>(call, {
      {{"", "C:@t", "C:@t\\x"}, "error 75"}, {{"", "C:@t", "c:@t\\x"}, "error 75"},
      {{"", "C:@t", "E:@t\\c\\x"}, "error 75"}, {{"", "@t\\", "C:@t\\c"}, "error 75"},
      {{"", "t", ".\\t\\x"}, "error 75"}, {{"", ".\\t", "C:@t\\x"}, "error 75"},
      {{"", ".", "x"}, "error 75"}, {{"", "C:@t", "t\\c\\..\\x"}, "error 75"},
      {{"", "t", "out\\..\\t\\x"}, "error 75"}, {{"", "C:@t", "T:\\x"}, "error 75"},
      {{"", "t", "t\\no\\none\\x"}, "error 75", "the nearest folder that is there counts"},
      {{"ln -s t l", "t", "l\\x"}, "error 75"}, {{"ln -s t l", "l", "t\\x"}, "error 75"},
      {{"ln -s ../t/c out/l", "t", "out\\l\\x"}, "error 75"},
      {{"", "t", "t"}, "error 75", "its own folder c is there"}, {{"rm -r t/c", "t", "t\\."}, "error 70"},
      {{"mkdir tt", "t", "tt"}, "3 and more", "no part of a name counts"},
      {{"ln -s ../out t/l; rm -r t/[ac]", "t", "t\\l"}, "error 75", "a link in it leads there"}});
  // clang-format on
}

TEST(XCopyFile, StopsAtALinkThatWouldGoOnForEver) {
  const auto call = [](const std::string& change) {
    const TempFolder folder;
    folder.Run("mkdir -p t/c out/d; " + change);
    const std::string error =
        ResultOf([&] { return DiskObject().XCopyFile(folder.Path("t"), folder.Path("to")); });
    return error + ", " + folder.Run("find to -mindepth 1 | LC_ALL=C sort | tr '\\n' ' '");
  };
  // clang-format off
  ExpectRows<std::string>(call, {
      {{"rmdir t/c; ln -s . t/l"}, "error 75, "}, {{"rmdir t/c; ln -s .. t/l"}, "error 75, "},
      {{"rmdir t/c; ln -s ../to t/l"}, "error 75, ", "the target itself"},
      {{"ln -s .. t/c/l"}, "error 75, to/c "}, {{"ln -s .. t/c/l; ln -s .. t/c/m"}, "error 75, to/c "},
      {{"rmdir t/c; ln -s ../out t/l; ln -s ../../t out/d/m"}, "error 75, to/l to/l/d "},
      {{"ln -s ../../out t/c/l; ln -s ../../out t/c/m"},
      "6, to/c to/c/l to/c/l/d to/c/m to/c/m/d ", "one folder twice"}});
  // clang-format on
}

// The first two folders have the same number, on different devices.
TEST(RootXCopyFile, TellsTheFoldersOfMountsApart) {
  constexpr int kNoMounts = 255;
  const std::pair<const char*, int> rows[] =
      // clang-format off
      {
      {"mount -t tmpfs none a; mount -t tmpfs none b", 1},
      {"mkdir a/c; mount --bind a b", 75}, {"mkdir a/c; mount --bind a/c b", 75}}  // clang-format on
  ;
  for (const auto& [mounts, expected] : rows) {
    const TempFolder folder;
    folder.Run("mkdir a b");
    const int result = End(Begin([&, script = std::string(mounts) + " && echo done"] {
      if (unshare(CLONE_NEWNS) != 0) return kNoMounts;
      if (mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) return kNoMounts;
      if (folder.Run(script) != "done\n") return kNoMounts;
      int count = 0;
      const int error =
          ErrorOf([&] { count = DiskObject().XCopyFile(folder.Path("a"), folder.Path("b/x")); });
      return error == 0 ? count : error;
    }));
    if (result == kNoMounts) GTEST_SKIP() << "no right to mount";
    EXPECT_EQ(result, expected) << mounts;
    EXPECT_EQ(folder.Run("find a b -mindepth 3"), "") << mounts;
  }
}

TEST(RootXCopyFile, NeedsNoRightToTheFoldersAboveTheCurrentOne) {
  if (geteuid() != 0) GTEST_SKIP() << "no right to be another user";
  const TempFolder folder;
  folder.Run("mkdir -p locked/t/c; chown -R 65534 locked/t");
  const auto copy = [&](const char* to) {
    return End(Begin([&] {
      if (chdir((folder.Native() / "locked/t").c_str()) != 0) return 255;
      if (chmod("..", 0600) != 0 || setreuid(kNobody, kNobody) != 0) return 255;
      int count = 0;
      const int error = ErrorOf([&] { count = DiskObject().XCopyFile(u"c", FromUtf8(to)); });
      return error == 0 ? count : error;
    }));
  };
  EXPECT_EQ(copy("d"), 1);
  EXPECT_EQ(copy("c\\x"), 75);
}

TEST(FileCopier, CopiesWholeFilesOrNone) {
  const TempFolder folder;
  folder.Run("head -c 3000001 /dev/urandom >large");
  const auto copy = [&](TextView from, const char* to) {
    return ErrorOf(
        [&] { SystemFileCopier()->Copy(from, folder.Path(to), ExistingTarget::kReplace); });
  };
  EXPECT_EQ(copy(folder.Path("large"), "copy"), 0);
  EXPECT_EQ(copy(u"C:\\proc\\version", "by_reading"), 0);
  EXPECT_EQ(folder.Run("cmp large copy && cmp /proc/version by_reading && echo same"), "same\n");
  rlimit limit{};
  getrlimit(RLIMIT_FSIZE, &limit);
  const rlimit full_disk{1'000'000, limit.rlim_max};
  setrlimit(RLIMIT_FSIZE, &full_disk);
  signal(SIGXFSZ, SIG_IGN);
  EXPECT_EQ(copy(folder.Path("large"), "new"), 61);
  setrlimit(RLIMIT_FSIZE, &limit);
  EXPECT_EQ(folder.Run("ls"), "by_reading\ncopy\nlarge\n");
}
