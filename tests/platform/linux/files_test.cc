#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/file_contents.h>
#include <ZQ7Standard/platform/file_status.h>
#include <ZQ7Standard/platform/path_text.h>
#include <ZQ7Standard/platform/print_picture.h>
#include <fcntl.h>
#include <signal.h>
#include <stdlib.h>

#include "platform/linux/native_path.h"
#include "platform/linux/open_file.h"
#include "platform/linux/time_step.h"
#include "tests/support/ascii_files.h"
#include "tests/support/children.h"
#include "tests/support/row_tests.h"
#include "tests/support/temp_folder.h"

using namespace ZQ7Standard;

TEST(NativePath, DropsTheDriveAndTurnsTheSlashes) {
  const DriveMap drives = {{'D', "/srv/shop"}};
  // clang-format off
  ExpectRows<TextView>([&](TextView path) { return NativePath(path, drives); }, {
      {u"C:\\srv\\app\\set.ini", "/srv/app/set.ini"}, {u"c:", "/"}, {u"C:\\", "/"},
      {u"D:\\a", "/srv/shop/a"}, {u"d:a", "/srv/shop/a"}, {u"D:", "/srv/shop/"}, {u"", ""},
      {u"C:a\\b", "a/b"}, {u"\\\\srv\\share", "//srv/share"}, {u"a:b:c", "b:c"}, {u"1:\\a", "1:/a"},
      {u"D:\\..", "/srv/shop/"}, {u"d:..\\..\\etc\\passwd", "/srv/shop/etc/passwd"},
      {u"D:\\a\\..\\..\\b", "/srv/shop/b"}, {u"D:/../..\\b\\", "/srv/shop/b/"},
      {u"D:\\link\\..\\b", "/srv/shop/b", "a link may lead out of the drive"},
      {u"D:\\..a\\b..\\...", "/srv/shop/..a/b../..."}, {u"C:\\a\\..\\..\\b", "/a/../../b"},
      {u"ก/\\ข", "ก//ข"}, {TextView(u"a\0b", 3), "a\uFFFD" "b", "never cut short"}});
  // clang-format on
  // clang-format off
  ExpectRows<const char*>([](const char* path) { return PathText(path); }, {
      {"/srv/app/set.ini", "C:\\srv\\app\\set.ini"}, {"ก", "C:ก"}, {"/", "C:\\"}});
  // clang-format on
}

TEST(FileErrors, TellWhatIsMissingOrInTheWay) {
  AsciiFiles files;
  files.Write("x");
  const Text folder = PathText(files.Folder());
  const auto status = SystemFileStatus();
  const auto writer = SystemFileWriter();
  // clang-format off
  ExpectRows<TextView>([&](TextView name) { writer->Append(folder + Text(name), "y"); return 0; }, {
      {u"", "error 75", "a folder"}, {u"\\set.ini", "0"}, {u"\\none\\a", "error 76"},
      {u"\\set.ini\\a", "error 76", "a file as folder"}});
  // clang-format on
  // clang-format off
  ExpectRows<TextView>([&](TextView name) { status->ClearReadOnly(folder + Text(name)); return 0; }, {
      {u"\\none", "error 53"}, {u"\\none\\a", "error 76"}, {u"\\set.ini", "0"}});
  // clang-format on
}

TEST(FileErrors, ReachCallersAsEachOperationSays) {
  AsciiFiles files;
  EXPECT_EQ(ErrorOf([&] { files.object.GETAllTextFile(u"C:\\proc\\self\\mem"); }), 57);
  EXPECT_EQ(files.object.GetValue(u"C:\\proc\\self\\mem", u"A"), u"");
  EXPECT_EQ(files.TakeShown(), "Warning: Not found specified file");
  EXPECT_EQ(ErrorOf([] { PictureFromFile(u"C:\\dev\\null"); }), 75);
}

TEST(FileContents, AreThoseOfRegularFilesThatAreNotReadOnly) {
  const auto reader = SystemFileReader();
  const auto writer = SystemFileWriter();
  const auto call = [&](const std::string& commands) {
    const TempFolder folder;
    folder.Run(commands);
    const Text path = folder.Path("f");
    std::string start(2, '-');
    std::string results = "read " + ResultOf([&] { return reader->ReadAll(path); });
    results += ", start " + ResultOf([&] { return reader->ReadStart(path, start); });
    results += ", append " + ResultOf([&] { return writer->Append(path, "z"), 0; });
    results += ", create " + ResultOf([&] { return writer->Create(path, "new"); });
    return results + ", " + folder.Run("[ -f f ] && cat f; true");
  };
  // clang-format off
  ExpectRows<std::string>(call, {
      {{"printf xyz >f"}, "read xyz, start 2, append 0, create no, xyzz"},
      {{""}, "read none, start 0, append 0, create no, z"},
      {{"printf xyz >f; chmod 444 f"}, "read xyz, start error 70, append error 70, create no, xyz"},
      {{"printf xyz >f; chmod 466 f"}, "read xyz, start error 70, append error 70, create no, xyz"},
      {{"mkfifo f"}, "read error 75, start error 75, append error 75, create no, "},
      {{"mkfifo f; sleep 1 <>f >/dev/null &"}, "read error 75, start error 75, append error 75, create no, "},
      {{"ln -s /dev/zero f"}, "read error 75, start error 75, append 0, create no, "},
      {{"mkdir f"}, "read none, start error 75, append error 75, create error 75, "},
      {{"ln -s f f"}, "read none, start error 75, append error 75, create error 53, "},
      {{"ln -s none/f f"}, "read none, start error 53, append error 53, create error 53, "}});
  // clang-format on
  const auto second_call = [&](const std::string& commands) {
    const TempFolder folder;
    folder.Run(commands);
    const std::string created = ResultOf([&] { return writer->Create(folder.Path("f"), "new"); });
    return created + ", " + folder.Run("cat f; ls -A | wc -l");
  };
  // clang-format off
  ExpectRows<std::string>(second_call, {
      {{""}, "yes, new1\n"}, {{"mkdir d; ln -s d/g f"}, "yes, new2\n", "the file that a link names"},
      {{"printf old >f"}, "no, old1\n"}, {{"printf old >g; ln -s g f"}, "no, old2\n"}});
  // clang-format on
  EXPECT_EQ(ErrorOf([&] { writer->Create(u"C:\\tmp\\none\\a", "x"); }), 76);
}

TEST(FileContents, GoToATerminalAsFastAsItTakesThem) {
  const OpenFile screen(u"", "/dev/ptmx", O_RDWR);
  ASSERT_EQ(grantpt(screen.Descriptor()) + unlockpt(screen.Descriptor()), 0);
  const std::string name = ptsname(screen.Descriptor());
  const OpenFile kept(u"", name, O_RDWR);
  const pid_t writer = Begin([&] {
    return ErrorOf([&] { SystemFileWriter()->Append(PathText(name), std::string(100'000, 'x')); });
  });
  usleep(50'000);
  std::string buffer(100'000, ' ');
  for (std::size_t shown = 0; shown < buffer.size();) shown += screen.Read(buffer);
  EXPECT_EQ(End(writer), 0);
}

TEST(FileContents, WaitForALeaseToBeGivenBack) {
  AsciiFiles files;
  files.Write("x");
  const pid_t holder = Begin([&] {
    const OpenFile file(files.Path(), files.File(), O_RDWR);
    return fcntl(file.Descriptor(), F_SETLEASE, F_WRLCK) == 0 ? pause() : 0;
  });
  usleep(50'000);
  EXPECT_EQ(SystemFileReader()->ReadAll(files.Path()), "x");
  EXPECT_EQ(End(holder), -SIGIO) << "when it was asked to";
}

TEST(FileStatus, TellsFoldersRightsAndTimes) {
  AsciiFiles files;
  files.Write("x");
  permissions(files.File(), std::filesystem::perms(0470));
  const auto status = SystemFileStatus({{'D', files.Folder()}});
  const auto shown = [&](TextView path) -> std::string {
    const auto found = status->StatusOf(path);
    return !found ? "none" : found->is_folder ? "folder" : found->read_only ? "read-only" : "file";
  };
  // clang-format off
  ExpectRows<TextView>(shown, {
      {u"D:", "folder"}, {u"D:\\set.ini", "read-only", "for root too"},
      {u"D:\\none", "none"}, {u"", "none"}, {u"D:\\set.ini\\a", "none"}});
  // clang-format on
  status->ClearReadOnly(u"D:\\set.ini");
  EXPECT_EQ(std::filesystem::status(files.File()).permissions(), std::filesystem::perms(0670));
  EXPECT_EQ(status->StatusOf(u"D:\\set.ini")->last_modified,
            std::chrono::file_clock::to_sys(last_write_time(files.File())));
}

TEST(TimeStep, IsThatOfTheFileSystem) {
  // clang-format off
  ExpectRows<unsigned>([](unsigned type) { return TimeStepOf(type).count(); }, {
      {0x4D44, "2000000000", "FAT"}, {0x2011BAB0, "10000000", "exFAT"}, {0x517B, "100", "SMB 1"},
      {0xFF534D42, "100", "CIFS"}, {0xFE534D42, "100", "SMB 2"}, {0xEF53, "1", "ext4"}, {0, "1"}});
  // clang-format on
  const TempFolder folder;
  const auto status = SystemFileStatus();
  EXPECT_EQ(status->TimeStep(folder.Path("none")), std::chrono::nanoseconds(1));
}
