#include "platform/linux/new_file.h"

#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include <system_error>

#include "tests/support/denied_calls.h"
#include "tests/support/row_tests.h"
#include "tests/support/temp_folder.h"

namespace ZQ7Standard {
namespace {

constexpr DeniedCall kNoUnnamed = {SYS_openat, EOPNOTSUPP, O_TMPFILE & ~O_DIRECTORY};

/// File systems, from one that supports everything to one without unnamed files, links and
/// non-replacing moves.
const std::vector<DeniedCall> kLackings[] = {
    {},
    {kNoUnnamed},
    {kNoUnnamed, {SYS_linkat, EPERM}},
    {kNoUnnamed, {SYS_linkat, EPERM}, {SYS_renameat2, EINVAL}},
    {{SYS_linkat, ENOENT}},  // no /proc
};

/// Creates a file in `folder` under the first free one of three names, of which "a" is taken and
/// "b" is a dangling link.
void Make(const TempFolder& folder, std::string_view bytes) {
  const Descriptor opened(open(folder.Native().c_str(), O_PATH | O_DIRECTORY));
  NewFile file(opened.Number(), bytes, 0640);
  for (const char* const name : {"a", "b", "c"}) {
    if (file.TakeName(name)) return;
  }
}

TEST(NewFile, TakesTheFirstFreeNameOnEveryFileSystem) {
  for (const auto& lacking : kLackings) {
    const TempFolder folder;
    folder.Run("printf old >a; ln -s gone b");
    EXPECT_EQ(RunDenied(lacking, [&] { umask(0022), Make(folder, "new"); }), 0);
    EXPECT_EQ(folder.Run("ls -A | tr '\\n' ' '; cat a c; stat -c ,%a c"), "a b c oldnew,640\n");
  }
}

TEST(NewFile, LeavesNothingWhenItCannotBeWritten) {
  const auto fill = [](const TempFolder& folder) {
    const rlimit full_disk{1'000, 1'000};
    setrlimit(RLIMIT_FSIZE, &full_disk);
    signal(SIGXFSZ, SIG_IGN);
    Make(folder, std::string(2'000, 'x'));
  };
  for (const auto& lacking : kLackings) {
    const TempFolder folder;
    EXPECT_EQ(RunDenied(lacking, [&] { fill(folder); }), 1);
    EXPECT_EQ(folder.Run("ls -A"), "");
  }
}

TEST(NewFile, LeavesNothingWhenTheProcessIsKilled) {
  const TempFolder folder;
  EXPECT_EQ(RunDenied({{SYS_fsync, 0}}, [&] { Make(folder, "new"); }), -SIGSYS);
  EXPECT_EQ(RunDenied({{SYS_linkat, 0}}, [&] { Make(folder, "new"); }), -SIGSYS);
  EXPECT_EQ(folder.Run("ls -A"), "");
}

}  // namespace
}  // namespace ZQ7Standard
