#include "io/rewrite.h"

#include <ZQ7Standard/RunTimeError.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/support/ascii_files.h"
#include "tests/support/rows.h"

using namespace ZQ7Standard;
namespace fs = std::filesystem;

// clang-format off
// A rewrite of the machine's that fails at one step, counted from 0 = Begin.
struct FailingRewrite final : FileRewrite {
  FailingRewrite(int step, TextView path) : failing(step) {
    (Step(0), inner = SystemFileRewriter()->Begin(path));
  }
  void Write(std::string_view bytes) override {
    inner->Write(bytes.substr(0, bytes.size() / 2));
    (Step(1), inner->Write(bytes.substr(bytes.size() / 2)));
  }
  void Sync() override { (Step(2), inner->Sync()); }
  void Close() override { (Step(3), inner->Close()); }
  void Replace() override { (Step(4), inner->Replace()); }
  void SyncFolder() override { (Step(5), inner->SyncFolder()); }
  void Step(int step) const { if (step == failing) throw RunTimeError::DiskFull("step", "test"); }

  int failing;
  std::unique_ptr<FileRewrite> inner;
};

struct FailingRewriter final : FileRewriter {
  explicit FailingRewriter(int step) : failing(step) {}
  std::unique_ptr<FileRewrite> Begin(TextView path) override {
    return std::make_unique<FailingRewrite>(failing, path);
  }
  int failing;
};
// clang-format on

TEST(Rewrite, AFailureOfAnyStepLeavesTheOldFileOrTheNewOne) {
  const std::string old = "[A]=1\r\n[B]=2\r\n";
  const std::string failed = "Warning: Not found specified folder or no permission to write.";
  for (int step = 0; step <= 5; ++step) {
    AsciiFiles files(std::make_shared<FailingRewriter>(step));
    const auto erase = [&] { files.object.DeleteValue(files.Path(), u"A"); };
    const auto expect = [&](auto change, const std::string& replaced, const std::string& shown) {
      EXPECT_EQ(files.After(old, change), (step == 5 ? replaced : old) + shown) << step;
    };
    expect([&] { files.object.Setvalue(files.Path(), u"A", u"3"); }, "[A]=3\r\n[B]=2\r\n", failed);
    expect([&] { files.object.SaveStringToTextFile(files.Path(), u"x"); }, "x", failed);
    expect([&] { EXPECT_EQ(ErrorOf(erase), 61); }, "[B]=2\r\n", "");
    ASCIIObject().Setvalue(files.Path(), u"B", u"4");  // what is left does not stand in the way
    EXPECT_EQ(files.object.GetValue(files.Path(), u"B"), u"4");
    EXPECT_EQ(std::distance(fs::directory_iterator(files.Folder()), {}), 1) << "nothing is left";
  }
}

TEST(Rewrite, FollowsLinksAndKeepsOwnerAndRights) {
  AsciiFiles files;
  files.Write("[A]=1\r\n");
  permissions(files.File(), fs::perms(0450));
  const bool root = chown(files.File().c_str(), 1234, 5678) == 0;
  fs::create_directory(files.Folder() / "sub");
  fs::create_symlink("../set.ini", files.Folder() / "sub/link");
  fs::create_symlink("sub/victim", files.Folder() / "set.ini$$$$");
  files.object.Setvalue(PathText(files.Folder() / "sub/link"), u"A", u"2");
  EXPECT_EQ(files.Read(), "[A]=2\r\n");
  EXPECT_TRUE(is_symlink(files.Folder() / "sub/link"));
  EXPECT_FALSE(exists(files.Folder() / "sub/victim")) << "a link in the way is not followed";
  struct stat status {};
  EXPECT_EQ(stat(files.File().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & ALLPERMS, 0650U) << "no longer read-only";
  EXPECT_TRUE(!root || (status.st_uid == 1234 && status.st_gid == 5678));
  EXPECT_EQ(ErrorOf([] { SystemFileRewriter()->Begin(u"C:\\dev\\null"); }), 75) << "no file";
}

TEST(Rewrite, AnotherUsersFileIsReplacedOnlyWithTheFoldersRights) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can act for another user";
  AsciiFiles files;
  files.Write("[A]=1\r\n");
  permissions(files.File(), fs::perms(0664));
  const auto as_other = [&](fs::perms folder_rights, auto change) {
    permissions(files.Folder(), folder_rights);
    EXPECT_EQ(setegid(65534) + seteuid(65534), 0);
    change();
    EXPECT_EQ(seteuid(0) + setegid(0), 0);
  };
  const auto erase = [&] { files.object.DeleteValue(files.Path(), u"A"); };
  as_other(fs::perms(0755), [&] { EXPECT_EQ(ErrorOf(erase), 70); });
  as_other(fs::perms(0777), erase);
  EXPECT_EQ(files.Read(), "");
  EXPECT_EQ(fs::status(files.File()).permissions(), fs::perms(0644)) << "another group";
}

TEST(Rewrite, AFullDiskLeavesTheOldFile) {
  AsciiFiles files;
  if (mount("zq7", files.Folder().c_str(), "tmpfs", 0, "size=20k") != 0) {
    GTEST_SKIP() << "a small disk cannot be mounted here, which takes root";
  }
  const std::string bytes = "[A]=1\r\n" + std::string(12'000, 'x') + "\r\n";
  const auto erase = [&] { files.object.DeleteValue(files.Path(), u"A"); };
  EXPECT_EQ(files.After(bytes, [&] { EXPECT_EQ(ErrorOf(erase), 61); }), bytes);
  EXPECT_EQ(umount(files.Folder().c_str()), 0);
}

TEST(RewriteBreadth, AKillAtAnyMomentLeavesAWholeFile) {
  AsciiFiles files;
  constexpr std::size_t kSize = 10'000;
  files.Write("[A]=" + std::string(kSize, '0') + "\r\n");
  int left_halfway = 0;
  for (unsigned i = 0; i < 300; ++i) {
    const pid_t child = fork();
    for (char16_t digit = u'0'; child == 0; digit = digit == u'9' ? u'0' : digit + 1) {
      files.object.Setvalue(files.Path(), u"A", Text(kSize, digit));
    }
    usleep(500 + i * 5);
    kill(child, SIGKILL);
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    const std::string bytes = files.Read();
    ASSERT_EQ(bytes, "[A]=" + std::string(kSize, bytes.at(4)) + "\r\n") << "kill " << i;
    left_halfway += exists(files.Folder() / "set.ini$$$$") ? 1 : 0;
  }
  EXPECT_GT(left_halfway, 10) << "the kills missed the rewrites";
}
