#include "io/rewrite.h"

#include <ZQ7Standard/RunTimeError.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <random>

#include "tests/support/ascii_files.h"
#include "tests/support/rows.h"

using namespace ZQ7Standard;
namespace fs = std::filesystem;

// A rewrite of the machine's that fails at the step with that name.
class FailingRewriter final : public FileRewriter {
 public:
  explicit FailingRewriter(std::string step) : step_(std::move(step)) {}

  std::unique_ptr<FileRewrite> Begin(TextView path) override {
    FailAt("begin");
    return std::make_unique<Rewrite>(*this, system_->Begin(path));
  }

 private:
  class Rewrite final : public FileRewrite {
   public:
    Rewrite(FailingRewriter& steps, std::unique_ptr<FileRewrite> inner)
        : steps_(steps), inner_(std::move(inner)) {}
    void Write(std::string_view bytes) override {
      inner_->Write(bytes.substr(0, bytes.size() / 2));
      steps_.FailAt("write");
      inner_->Write(bytes.substr(bytes.size() / 2));
    }
    void Sync() override { (steps_.FailAt("sync"), inner_->Sync()); }
    void Close() override { (steps_.FailAt("close"), inner_->Close()); }
    void Replace() override { (steps_.FailAt("replace"), inner_->Replace()); }
    void SyncFolder() override { (steps_.FailAt("sync folder"), inner_->SyncFolder()); }

   private:
    FailingRewriter& steps_;
    std::unique_ptr<FileRewrite> inner_;
  };

  void FailAt(const std::string& step) const {
    if (step == step_) throw RunTimeError::DiskFull(step, "test");
  }

  std::string step_;
  std::shared_ptr<FileRewriter> system_ = SystemFileRewriter();
};

TEST(Rewrite, AFailureOfAnyStepLeavesTheOldFileOrTheNewOne) {
  const std::string failed = "[Warning: Not found specified folder or no permission to write.]";
  for (const char* step : {"begin", "write", "sync", "close", "replace", "sync folder"}) {
    AsciiFiles files(std::make_shared<FailingRewriter>(step));
    const bool replaced = step == std::string("sync folder");
    const auto after = [&](auto change) { return files.After("[A]=1\r\n[B]=2\r\n", change); };
    const std::string old = "[A]=1\r\n[B]=2\r\n";
    EXPECT_EQ(after([&] { files.object.Setvalue(files.Path(), u"A", u"3"); }),
              (replaced ? "[A]=3\r\n[B]=2\r\n" : old) + failed)
        << step;
    EXPECT_EQ(after([&] { files.object.SaveStringToTextFile(files.Path(), u"x"); }),
              (replaced ? "x" : old) + failed)
        << step;
    EXPECT_EQ(after([&] {
                const auto erase = [&] { files.object.DeleteValue(files.Path(), u"A"); };
                EXPECT_EQ(ErrorOf(erase), 61) << step;
              }),
              replaced ? "[B]=2\r\n" : old)
        << step;
    ASCIIObject().Setvalue(files.Path(), u"B", u"4");  // what was left does not stand in the way
    EXPECT_EQ(files.object.GetValue(files.Path(), u"B"), u"4") << step;
    EXPECT_FALSE(exists(files.Folder() / "set.ini$$$$")) << step;
  }
}

TEST(Rewrite, KeepsLinksAndRightsAndThrowsAwayWhatIsLeft) {
  AsciiFiles files;
  files.Write("[A]=1\r\n");
  permissions(files.File(), fs::perms(0450));
  fs::create_directory(files.Folder() / "sub");
  fs::create_symlink("../set.ini", files.Folder() / "sub" / "link");
  const auto temporary = files.Folder() / "set.ini$$$$";
  fs::create_symlink("victim", temporary);
  std::ofstream(files.Folder() / "victim") << "whole";
  const bool root = geteuid() == 0 && chown(files.File().c_str(), 1234, 5678) == 0;
  files.object.Setvalue(PathText(files.Folder() / "sub" / "link"), u"A", u"2");
  EXPECT_EQ(files.Read(), "[A]=2\r\n");
  EXPECT_TRUE(is_symlink(files.Folder() / "sub" / "link") && !exists(symlink_status(temporary)));
  EXPECT_EQ(fs::file_size(files.Folder() / "victim"), 5U);
  struct stat status {};
  ASSERT_EQ(stat(files.File().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & ALLPERMS, 0650U) << "no longer read-only";
  EXPECT_TRUE(!root || (status.st_uid == 1234 && status.st_gid == 5678));
  EXPECT_EQ(ErrorOf([] { SystemFileRewriter()->Begin(u"C:\\dev\\null"); }), 75) << "no file";
  fs::create_directory(temporary);
  EXPECT_EQ(ErrorOf([&] { files.object.DeleteValue(files.Path(), u"A"); }), 75);
}

TEST(Rewrite, AUserWithoutRightsTakesNothingFromOthers) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can act for another user";
  AsciiFiles files;
  files.Write("[A]=1\r\n");
  permissions(files.File(), fs::perms(0664));
  ASSERT_EQ(setegid(65534) + seteuid(65534), 0);
  EXPECT_EQ(ErrorOf([&] { files.object.DeleteValue(files.Path(), u"A"); }), 70);
  EXPECT_EQ(seteuid(0), 0);
  permissions(files.Folder(), fs::perms(0777));
  EXPECT_EQ(seteuid(65534), 0);
  files.object.Setvalue(files.Path(), u"A", u"2");
  EXPECT_EQ(seteuid(0) + setegid(0), 0);
  struct stat status {};
  EXPECT_EQ(stat(files.File().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & ALLPERMS, 0644U) << "the new group could not write before";
  EXPECT_EQ(status.st_uid, 65534U);
  EXPECT_EQ(files.Read(), "[A]=2\r\n");
}

// 12 KiB of 20, so that a second file does not fit.
TEST(Rewrite, AFullDiskLeavesTheOldFile) {
  AsciiFiles files;
  const std::string bytes = "[A]=1\r\n" + std::string(12'000, 'x') + "\r\n";
  const auto erase = [&] {
    EXPECT_EQ(ErrorOf([&] { files.object.DeleteValue(files.Path(), u"A"); }), 61);
  };
  rlimit old{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old), 0);
  signal(SIGXFSZ, SIG_IGN);
  files.Write(bytes);
  const rlimit limit{.rlim_cur = 5'000, .rlim_max = old.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
  erase();
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &old), 0);
  signal(SIGXFSZ, SIG_DFL);
  EXPECT_EQ(files.Read(), bytes);
  fs::remove(files.Folder() / "set.ini$$$$");
  if (mount("zq7", files.Folder().c_str(), "tmpfs", 0, "size=20k") != 0) {
    GTEST_SKIP() << "a small disk could not be mounted, which takes root";
  }
  EXPECT_EQ(files.After(bytes, erase), bytes);
  EXPECT_EQ(umount(files.Folder().c_str()), 0);
}

TEST(RewriteBreadth, AKillAtAnyMomentLeavesAWholeFile) {
  AsciiFiles files;
  constexpr std::size_t kSize = 10'000;
  files.Write("[A]=" + std::string(kSize, '0') + "\r\n");
  std::mt19937 random;  // the same waits on each run
  int left_halfway = 0;
  for (int i = 0; i < 300; ++i) {
    const pid_t child = fork();
    if (child == 0) {
      for (char16_t digit = u'0';; digit = digit == u'9' ? u'0' : digit + 1) {
        files.object.Setvalue(files.Path(), u"A", Text(kSize, digit));
      }
    }
    usleep(500 + static_cast<unsigned>(random() % 1500));
    kill(child, SIGKILL);
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    const std::string bytes = files.Read();
    ASSERT_EQ(bytes, "[A]=" + std::string(kSize, bytes.at(4)) + "\r\n") << "kill " << i;
    left_halfway += exists(files.Folder() / "set.ini$$$$") ? 1 : 0;
  }
  EXPECT_GT(left_halfway, 10) << "the kills missed the rewrites";
}
