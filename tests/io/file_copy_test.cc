#include <ZQ7Standard/DiskObject.h>
#include <signal.h>
#include <sys/resource.h>

#include "tests/support/rows.h"
#include "tests/support/temp_folder.h"

using namespace ZQ7Standard;

// The file "to", or all in the folder: content, mode and year of the last-modified time.
constexpr const char* kTarget =
    "find to \\( -type d -printf ' %P/\\n' -o -printf ' %P=' -exec cat {} \\; "
    "-printf ',%m,%TY\\n' \\) 2>&- | LC_ALL=C sort | tr -d '\\n'";

// clang-format off
TEST(CopyFileCheck, CopiesWhatHasAnotherTime) {
  ExpectRows<std::string, bool>([](const std::string& change, bool overwrite) {
    const TempFolder folder;
    folder.Run("printf new >from; touch -d '2001-01-01 00:00:00.123456789' from;"
               "printf older >to; touch -r from to; chmod 600 *;" + change);
    const Text to = folder.Path("to");
    const int result = DiskObject().CopyFileCheck(folder.Path("from"), to, overwrite);
    return Shown(result) + folder.Run(kTarget);
  }, {
      {{"rm from; chmod 400 to", true}, "0 =older,400,2001"}, {{"rm to", false}, "1 =new,600,2001"},
      {{"rm from; mkdir from; chmod 400 to", true}, "0 =older,400,2001"},
      {{"rm to; mkdir to", true}, "1 /"}, {{"chmod 400 to", false}, "0 =older,600,2001"},
      {{"touch -d 2002-01-01 to; chmod 440 to", false}, "1 =older,640,2002"},
      {{"touch -d 2002-01-01 to; chmod 440 to", true}, "1 =new,640,2001"},
      {{"touch -d '2001-01-01 00:00:00.123456788' to", true}, "1 =new,600,2001"}});
}

TEST(XCopyFile, CopiesATreeAndCountsIt) {
  ExpectRows<std::string, std::string>([](const std::string& change, const std::string& to) {
    const TempFolder folder;
    folder.Run("mkdir -p from/c; printf one >from/a; printf two >from/.b; printf three >from/c/d;"
               "touch -d 2001-01-01 from/a from/.b from/c/d; chmod 400 from/a;"
               "chmod 600 from/.b from/c/d;" + change);
    const int count = DiskObject().XCopyFile(folder.Path("from"), folder.Path(to));
    return Shown(count) + folder.Run(kTarget);
  }, {
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
}
// clang-format on

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
