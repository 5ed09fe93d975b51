#include "platform/linux/file_rewrite.h"

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/file_contents.h>
#include <ZQ7Standard/platform/file_rewrite.h>
#include <ZQ7Standard/platform/message_box.h>
#include <fcntl.h>
#include <grp.h>
#include <sched.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/mount.h>

#include <algorithm>
#include <set>

#include "platform/linux/descriptor.h"
#include "tests/support/ascii_files.h"
#include "tests/support/children.h"
#include "tests/support/hooked_calls.h"
#include "tests/support/row_tests.h"

using namespace ZQ7Standard;
namespace fs = std::filesystem;

constexpr const char* kOld = "[A]=1\r\n[B]=2\r\n";
constexpr const char* kFailed = "Warning: Not found specified folder or no permission to write.";

/// Makes one call of `kHookedCalls` fail: the one with a number, counted from 0, among all or those
/// of one kind.
struct Fault {
  explicit Fault(int number, const void* kind = nullptr, int error = EIO) {
    call_hook = [this, number, kind, error, count = 0](const void* call) mutable {
      const bool fails = (kind == nullptr || call == kind) && count++ == number;
      if (fails) failed = call;
      if (failed == nullptr && call == &kSystemCalls.renameat) renamed = true;
      return fails ? error : 0;
    };
  }
  const void* failed = nullptr;
  bool renamed = false;
};

/// Whether anybody holds the lock of a file.
bool IsLocked(const fs::path& file) {
  const Descriptor opened(open(file.c_str(), O_RDONLY));
  return flock(opened.Number(), LOCK_EX | LOCK_NB) != 0;
}

// Writes happen in halves, so that one failure leaves a half-written file.
TEST(Rewrite, AFailureOfAnyCallLeavesTheOldFileOrTheNewOne) {
  const std::set<const void*> dispensable = {&kSystemCalls.flock, &kSystemCalls.fgetxattr,
                                             &kSystemCalls.unlinkat, &kSystemCalls.fchown};
  AsciiFiles files(FileRewriterBy(kHookedCalls));
  const auto expect = [&](const std::string& replaced, const std::string& failure, auto change) {
    int closes = 0;
    for (int number = 0;; ++number) {
      const Fault fault(number);
      int error = 0;
      std::string result = files.After(kOld, [&] { error = ErrorOf(change); });
      if (error != 0) result += std::to_string(error);
      const bool done = fault.failed == nullptr || dispensable.contains(fault.failed);
      const bool ignored = fault.failed == &kSystemCalls.close && result == replaced;
      const std::string expected = done || ignored ? replaced
                                   : fault.renamed ? replaced + failure
                                                   : kOld + failure;
      EXPECT_EQ(result, expected) << number;
      closes += fault.failed == &kSystemCalls.close && !ignored ? 1 : 0;
      ASCIIObject().Setvalue(files.Path(), u"B", u"4");  // leftovers do not get in the way
      EXPECT_EQ(files.object.GetValue(files.Path(), u"B"), u"4");
      EXPECT_EQ(std::distance(fs::directory_iterator(files.Folder()), {}), 1) << number;
      if (fault.failed == nullptr) break;
    }
    EXPECT_EQ(closes, 1) << "of the temporary file";
  };
  expect("[A]=3\r\n[B]=2\r\n", kFailed, [&] { files.object.Setvalue(files.Path(), u"A", u"3"); });
  expect("x", kFailed, [&] { files.object.SaveStringToTextFile(files.Path(), u"x"); });
  expect("[B]=2\r\n", "57", [&] { files.object.DeleteValue(files.Path(), u"A"); });
}

TEST(Rewrite, TakesEachErrorForWhatItMeans) {
  AsciiFiles files(FileRewriterBy(kHookedCalls));
  const auto& calls = kSystemCalls;
  const std::tuple<const void*, int, int, const char*> rows[] =
      // clang-format off
      {
      {&calls.flock, 0, EBADF, "0, new"}, {&calls.flock, 0, ENOLCK, "0, new"},
      {&calls.flock, 0, EOPNOTSUPP, "0, new"}, {&calls.flock, 0, EACCES, "0, new"},
      {&calls.flock, 0, EINTR, "0, new"}, {&calls.flock, 0, EWOULDBLOCK, "0, new"},
      {&calls.openat, 1, EACCES, "70, old"}, {&calls.openat, 1, EWOULDBLOCK, "0, new"},
      {&calls.fsync, 0, ENOSPC, "61, old"}, {&calls.fsync, 0, EINTR, "0, new"},
      {&calls.renameat, 0, EROFS, "70, old"}, {&calls.openat, 3, EACCES, "0, new"},
      {&calls.openat, 3, EPERM, "0, new"}, {&calls.openat, 3, EIO, "57, new"},
      {&calls.fsync, 1, EIO, "57, new"}, {&calls.fsync, 1, EINVAL, "0, new"}}
  // clang-format on
  ;
  for (const auto& [call, number, error, expected] : rows) {
    const Fault fault(number, call, error);
    files.Write(kOld);
    const auto erase = [&] { files.object.DeleteValue(files.Path(), u"A"); };
    const std::string result = ResultOf([&] { return ErrorOf(erase); });
    EXPECT_EQ(result + (files.Read() == kOld ? ", old" : ", new"), expected) << strerror(error);
  }
}

TEST(Rewrite, WaitsTenSecondsForAnother) {
  AsciiFiles files(FileRewriterBy(kHookedCalls));
  files.Write(kOld);
  pauses.clear();
  call_hook = [](const void* call) { return call == &kSystemCalls.flock ? EWOULDBLOCK : 0; };
  EXPECT_EQ(ErrorOf([&] { files.object.DeleteValue(files.Path(), u"A"); }), 70);
  files.object.Setvalue(files.Path(), u"A", u"3");
  EXPECT_EQ(files.Read() + files.TakeShown(), std::string(kOld) + kFailed);
  const auto waited = TimeOfPauses().time_since_epoch();
  EXPECT_TRUE(waited >= std::chrono::seconds(20) && waited < std::chrono::milliseconds(20'064));
  EXPECT_GE(*std::ranges::min_element(pauses), std::chrono::milliseconds(1));
  EXPECT_LE(*std::ranges::max_element(pauses), std::chrono::milliseconds(32));
}

TEST(Rewrite, KeepsEverySettingOfFourWriters) {
  const TempFolder folder("/dev/shm");
  const Text path = folder.Path("set.ini");
  const auto key = [](int writer, int i) { return FromUtf8(Shown(writer) + " " + Shown(i)); };
  std::vector<pid_t> writers;
  for (int writer = 0; writer < 4; ++writer) {
    writers.push_back(Begin([&] {
      const auto box = std::make_shared<RecordingMessageBox>();
      ASCIIObject object({.message_box = box});
      object.SetDisableMsgLevel(1);
      for (int i = 0; i < 200; ++i) object.Setvalue(path, key(writer, i), u"x");
      return static_cast<int>(box->Take().size());
    }));
  }
  for (const pid_t writer : writers) EXPECT_EQ(End(writer), 0) << "messages";
  int kept = 0;
  for (int i = 0; i < 800; ++i) kept += ASCIIObject().GetValue(path, key(i / 200, i % 200)) == u"x";
  EXPECT_EQ(kept, 800);
}

// What another program does during a call of a rewrite, and the outcome.
TEST(Rewrite, BeginsAgainWhenTheFileIsNotTheOneThatItFound) {
  const std::tuple<const void*, int, const char*, const char*> rows[] = {
      {&kSystemCalls.flock, 0, "printf '[C]=5' >n; mv n set.ini", "[C]=5\r\n[A]=3\r\n"},
      {&kSystemCalls.flock, 0, "rm set.ini", "[a]=3\r\n"},
      {&kSystemCalls.openat, 1, "rm set.ini", "[a]=3\r\n"},
      {&kSystemCalls.openat, 1, "mv set.ini l; ln -s l set.ini", "[A]=3\r\n[B]=2\r\n"},
      {&kSystemCalls.flock, 0, "mkdir f; mv set.ini f; ln -s f/set.ini .", "[A]=3\r\n[B]=2\r\n"},
      {&kSystemCalls.fsync, 0, "rm 'set.ini$$$$'", "[A]=3\r\n[B]=2\r\n"},
      {&kSystemCalls.fsync, 0, "rm 'set.ini$$$$'; printf '[A' >'set.ini$$$$'",
       "[A]=3\r\n[B]=2\r\n"},
      {&kSystemCalls.fsync, 0, "rm 'set.ini$$$$'; ln -s / 'set.ini$$$$'", "[A]=3\r\n[B]=2\r\n"}};
  for (const auto& [call, number, commands, expected] : rows) {
    const TempFolder folder;
    folder.Run("printf '[A]=1\\r\\n[B]=2\\r\\n' >set.ini");
    call_hook = [&, count = 0, call = call, number = number,
                 commands = commands](const void* made) mutable {
      if (made == call && count++ == number) folder.Run(commands);
      return 0;
    };
    const ASCIIObject object({.file_rewriter = FileRewriterBy(kHookedCalls)});
    object.Setvalue(folder.Path("set.ini"), u"a", u"3");
    EXPECT_EQ(folder.Run("cat set.ini"), expected) << commands;
    EXPECT_EQ(folder.Run("ls | grep '[$]'"), "") << commands;
  }
}

TEST(Rewrite, StaysInItsFolderWhateverBecomesOfThePath) {
  const TempFolder folder;
  folder.Run("mkdir sub victim; printf '[A]=1' | tee sub/set.ini >victim/set.ini");
  call_hook = [&](const void* call) {
    if (call == &kSystemCalls.flock) folder.Run("mv -n sub was && ln -sn victim sub");
    return 0;
  };
  const ASCIIObject object({.file_rewriter = FileRewriterBy(kHookedCalls)});
  object.Setvalue(folder.Path("sub/set.ini"), u"A", u"2");
  EXPECT_EQ(folder.Run("cat was/set.ini victim/set.ini"), "[A]=2\r\n[A]=1");
}

TEST(Rewrite, UnlocksOnEveryWay) {
  AsciiFiles files;
  files.Write(kOld);
  const auto rewriter = SystemFileRewriter();
  pid_t child = 0;
  const auto fork_and_fail = [&](const auto&) -> std::string {
    child = Begin([] { return pause(); });
    throw RunTimeError(Error::kOverflow);
  };
  EXPECT_EQ(ErrorOf([&] { rewriter->Rewrite(files.Path(), fork_and_fail); }), 6);
  EXPECT_FALSE(IsLocked(files.File())) << "also for the child";
  kill(child, SIGKILL);
  EXPECT_EQ(End(child), -SIGKILL);
  rewriter->Rewrite(files.Path(), [&](const auto& old_bytes) {
    EXPECT_TRUE(IsLocked(files.File()));
    EXPECT_EQ(old_bytes(), old_bytes()) << "as often as it is asked for them";
    return std::string(old_bytes());
  });
  EXPECT_FALSE(IsLocked(files.File()));
  struct LookingBox final : MessageBox {
    void Show(const Message&) override { locked = IsLocked(file); }
    fs::path file;
    bool locked = true;
  };
  const auto box = std::make_shared<LookingBox>();
  box->file = files.File();
  const Fault fault(0, &kSystemCalls.renameat);
  ASCIIObject object({.file_rewriter = FileRewriterBy(kHookedCalls), .message_box = box});
  object.SetDisableMsgLevel(1);
  object.Setvalue(files.Path(), u"A", u"2");
  EXPECT_FALSE(box->locked) << "while the message is shown";
}

TEST(Rewrite, WritesAFileThatAppearsInBetween) {
  struct LateRewriter final : FileRewriter {
    bool Rewrite(TextView path, const FileChange& change) override {
      return !SystemFileWriter()->Create(path, kOld) && real->Rewrite(path, change);
    }
    std::shared_ptr<FileRewriter> real = SystemFileRewriter();
  };
  AsciiFiles files(std::make_shared<LateRewriter>());
  files.object.Setvalue(files.Path(), u"a", u"3");
  EXPECT_EQ(files.Read(), "[A]=3\r\n[B]=2\r\n");
}

TEST(Rewrite, AppendsToAFileThatAppearsInBetween) {
  struct LateWriter final : FileWriter {
    bool Create(TextView path, std::string_view /*bytes*/) override {
      return real->Create(path, "theirs") && false;
    }
    void Append(TextView path, std::string_view bytes) override { real->Append(path, bytes); }
    std::shared_ptr<FileWriter> real = SystemFileWriter();
  };
  const AsciiFiles files;
  const ASCIIObject object({.file_writer = std::make_shared<LateWriter>()});
  object.SaveStringToTextFile2(files.Path(), u", mine", true);
  EXPECT_EQ(files.Read(), "theirs, mine");
}

TEST(Rewrite, FollowsLinksAndReplacesFilesAlone) {
  const auto call = [](const std::string& commands) {
    const TempFolder folder;
    folder.Run("printf '[A]=1' >set.ini; mkdir sub; " + commands);
    const int error = ErrorOf([&] { ASCIIObject().DeleteValue(folder.Path("l"), u"a"); });
    ASCIIObject().Setvalue(folder.Path("l"), u"a", u"2");
    return Shown(error) +
           folder.Run(": ; [ -h l ] && printf ' link'; [ -f l ] && printf ' ' && cat l set.ini");
  };
  // clang-format off
  ExpectRows<std::string>(call, {
      {{"ln -s set.ini l"}, "0 link [A]=2\r\n[A]=2\r\n"}, {{"ln set.ini l"}, "0 [A]=2\r\n[A]=1"},
      {{"ln -s sub/m l; ln -s ../set.ini sub/m"}, "0 link [A]=2\r\n[A]=2\r\n"},
      {{"ln -s $PWD/set.ini l; ln -s sub 'set.ini$$$$'"}, "0 link [A]=2\r\n[A]=2\r\n", "one in the way"},
      {{"ln -s sub/new l"}, "0 link [a]=2\r\n[A]=1", "its file is made"},
      {{"ln -s none/new l"}, "0 link"}, {{"ln -s l l"}, "0 link"}, {{"mkdir l"}, "0"},
      {{"ln -s sub/ l"}, "0 link"}, {{"mkfifo l"}, "75"}, {{"ln -s /dev/zero l"}, "75 link"},
      {{"ln -s set.ini/ l"}, "0 link", "a file as a folder"}});
  // clang-format on
}

/// Does `work` as a user without rights, whose status is the result.
int AsNobody(const std::function<int()>& work) {
  return End(Begin([&] {
    const bool is_nobody =
        setgroups(0, nullptr) == 0 && setgid(kNobody) == 0 && setuid(kNobody) == 0;
    return is_nobody ? work() : 99;
  }));
}

// What a rewrite by root or by a user without rights raises and leaves, after commands run by root.
TEST(RootRewrite, NeverWidensRights) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can act for another user";
  const auto call = [](const std::string& who, const std::string& commands) {
    const TempFolder folder;
    folder.Run("umask 22; chmod 777 .; printf '[A]=1' >set.ini; " + commands);
    const ASCIIObject object;
    const Text path = folder.Path("set.ini");
    const auto erase = [&] { return ErrorOf([&] { object.DeleteValue(path, u"a"); }); };
    const auto save = [&] { return object.SaveStringToTextFile(path, u"x"), 0; };
    const int error = who == "root" ? erase() : who == "save" ? AsNobody(save) : AsNobody(erase);
    return Shown(error) + folder.Run(
                              "stat -Lc ' %a %u:%g' set.ini | tr '\\n' ' '; "
                              "getfacl -cEsn set.ini | tr -s '\\n' ' '");
  };
  // clang-format off
  ExpectRows<std::string, std::string>(call, {
      {{"root", "chmod 450 set.ini; chown 1234:5678 set.ini"}, "0 650 1234:5678 ", "read-only"},
      {{"nobody", "chmod 755 ."}, "70 644 0:0 "}, {{"nobody", ""}, "0 644 65534:65534 "},
      {{"nobody", "chmod 664 set.ini"}, "0 644 65534:65534 ", "another group"},
      {{"nobody", "chmod 604 set.ini"}, "0 600 65534:65534 ", "the old group is denied"},
      {{"nobody", "chmod 664 set.ini; chgrp 65534 set.ini"}, "0 664 65534:65534 "},
      {{"nobody", "chmod 600 set.ini"}, "70 600 0:0 "},
      {{"save", "chmod 622 set.ini; chgrp 65534 set.ini"}, "0 600 65534:65534 ", "read by nobody"},
      {{"nobody", "chown 65534:65534 . set.ini; chmod 300 ."}, "0 644 65534:65534 ", "no list of names"},
      {{"root", "setfacl -m u:1:rw,u:2:-,g:3:r,m::r set.ini"},
      "0 644 0:0 user::rw- user:1:rw- user:2:--- group::r-- group:3:r-- mask::r-- other::r-- "},
      {{"root", "setfacl -dm u:1:rwx,o::rwx ."}, "0 644 0:0 ", "the folder's default is not the file's"},
      {{"root", "chmod 600 set.ini; setfacl -dm u:1:rwx ."}, "0 600 0:0 "},
      {{"root", "setfacl -dm u:1:rwx .; setfacl -m u:2:r set.ini"},
      "0 644 0:0 user::rw- user:2:r-- group::r-- mask::r-- other::r-- "},
      {{"nobody", "setfacl -dm u:1:rwx ."}, "0 644 65534:65534 "},
      {{"nobody", "chgrp 65534 set.ini; setfacl -m u:1:rw set.ini"}, "0 644 65534:65534 ", "not the mask"},
      {{"nobody", "chgrp 65534 set.ini; setfacl -m u:1:r,g::rw,m::r set.ini"}, "0 644 65534:65534 "},
      {{"nobody", "chgrp 65534 set.ini; setfacl -m u:1:- set.ini"}, "0 600 65534:65534 ", "not user 1"},
      {{"nobody", "chgrp 65534 set.ini; setfacl -m g:1:- set.ini"}, "0 640 65534:65534 ", "nor group 1"},
      {{"nobody", "chown 65534 set.ini; setfacl -m g:1:r,g::rw set.ini"}, "0 644 65534:65534 ", "another group"},
      {{"nobody", "mv set.ini f; ln -s f set.ini; chown 65534 f; chmod 1777 ."}, "0 644 65534:65534 "},
      {{"nobody", "mv set.ini f; ln -s f set.ini; chown 65534 f; chown -h 1 set.ini; chmod 1777 ."},
      "70 644 65534:0 ", "a stranger's link"}});
  // clang-format on
}

TEST(RootRewrite, AFullDiskLeavesTheOldFileAndNoNewOne) {
  const TempFolder folder;
  const int result = End(Begin([&] {
    if (unshare(CLONE_NEWNS) != 0 || mount("", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("zq7", folder.Native().c_str(), "tmpfs", 0, "size=80k") != 0)
      return 99;
    folder.Run("printf '[A]=1\\r\\n' >set.ini; head -c50000 /dev/zero >>set.ini");
    const auto erase = [&] { ASCIIObject().DeleteValue(folder.Path("set.ini"), u"A"); };
    EXPECT_EQ(ErrorOf(erase), 61);
    const auto create = [&] {
      SystemFileWriter()->Create(folder.Path("new"), std::string(100'000, 'x'));
    };
    EXPECT_EQ(ErrorOf(create), 61);
    EXPECT_EQ(folder.Run("rm 'set.ini$$$$'; ls; head -c5 set.ini; stat -c ,%s set.ini"),
              "set.ini\n[A]=1,50007\n");
    return testing::Test::HasFailure() ? 1 : 0;
  }));
  if (result == 99) GTEST_SKIP() << "no right to mount";
  EXPECT_EQ(result, 0);
}

TEST(RewriteBreadth, AKillAtAnyMomentLeavesAWholeFile) {
  AsciiFiles files;
  constexpr std::size_t kSize = 10'000;
  files.Write("[A]=" + std::string(kSize, '0') + "\r\n");
  int left_halfway = 0;
  for (unsigned i = 0; i < 300; ++i) {
    const pid_t child = Begin([&] {
      for (char16_t digit = u'0';; digit = digit == u'9' ? u'0' : digit + 1) {
        files.object.Setvalue(files.Path(), u"A", Text(kSize, digit));
      }
      return 0;
    });
    usleep(500 + i * 5);
    kill(child, SIGKILL);
    ASSERT_EQ(End(child), -SIGKILL);
    const std::string bytes = files.Read();
    ASSERT_EQ(bytes, "[A]=" + std::string(kSize, bytes.at(4)) + "\r\n") << "kill " << i;
    left_halfway += exists(files.Folder() / "set.ini$$$$") ? 1 : 0;
  }
  EXPECT_GT(left_halfway, 10) << "the kills missed the rewrites";
}
