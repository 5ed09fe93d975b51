#include <ZQ7Standard/RegistryObject.h>
#include <ZQ7Standard/platform/registry.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sqlite3.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <fstream>
#include <functional>
#include <iterator>

#include "platform/linux/sqlite_connection.h"
#include "tests/support/children.h"
#include "tests/support/temp_folder.h"

namespace ZQ7Standard {
namespace {

using namespace std::string_literals;
namespace fs = std::filesystem;

constexpr std::int32_t kUser = HKEY_CURRENT_USER;

/// Tests a registry in its own folder, which every user may enter.
class SystemRegistryTest : public testing::Test {
 protected:
  SystemRegistryTest() { fs::permissions(folder_, fs::perms{0755}); }

  Services OwnServices() const {
    return {.registry = SystemRegistry({folder_ / "u", folder_ / "m"})};
  }
  RegistryObject Object() const { return RegistryObject(OwnServices()); }
  fs::path File() const { return folder_ / "u/registry.db"; }

  /// Does what another program might do to the user's database.
  void Run(const char* sql) const {
    sqlite3* db = nullptr;
    sqlite3_open(File().c_str(), &db);
    EXPECT_EQ(sqlite3_exec(db, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sql;
    sqlite3_close(db);
  }

  const TempFolder temporary_;
  const fs::path folder_ = temporary_.Native();
};

using SystemRegistryBreadth = SystemRegistryTest;

bool Update(const RegistryObject& object, int number, TextView name = u"V") {
  return object.UpdateKeyValueLong(kUser, u"Software\\App", name, number);
}
int Read(const RegistryObject& object, TextView name = u"V") {
  return object.GetKeyValueLong(kUser, u"software\\app", name);
}

std::string Content(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

TEST_F(SystemRegistryTest, KeepsKeysAsTheOneInMemoryDoes) {
  using Place = std::tuple<std::int32_t, Text, Text>;
  const Text deep = [] {
    Text path;
    for (int level = 0; level < 512; ++level) path += u"L\\";
    return path;
  }();
  const Text long_name(255, u'ก');
  const std::pair<Place, Place> same[] = {
      {{kUser, u"Soft\\ร้าน", u"เลขที่ No"}, {kUser, u"SOFT\\ร้าน\\", u"เลขที่ nO"}},
      {{HKEY_USERS, u"A\\B\\C", u""}, {HKEY_USERS, u"a\\b\\c", u""}},
      {{HKEY_CLASSES_ROOT, u"", u"x"}, {HKEY_CLASSES_ROOT, u"\0y"s, u"X\0"s}},
      {{HKEY_LOCAL_MACHINE, u"日", u"é"}, {HKEY_LOCAL_MACHINE, u"?", u"É"}},
      {{kUser, long_name + u"\\" + long_name, u"V"}, {kUser, long_name + u"\\" + long_name, u"v"}},
      {{kUser, deep, u"V"}, {kUser, deep.substr(0, deep.size() - 1), u"v"}},
  };
  const std::pair<std::int32_t, Text> never[] = {{HKEY_PERFORMANCE_DATA, u"K"},
                                                 {0, u"K"},
                                                 {kUser, u"K\\\\L"},
                                                 {kUser, u"\\K"},
                                                 {kUser, long_name + u"ก"},
                                                 {kUser, u"K\\" + long_name + u"ก\\"},
                                                 {kUser, deep + u"L"},
                                                 {kUser, Text(300'000, u'x')}};
  for (const Services& services : {OwnServices(), Services{.registry = MemoryRegistry()}}) {
    const RegistryObject object(services);
    for (const auto& [written, read] : same) {
      const auto& [root, path, name] = written;
      const auto& [same_root, same_path, same_name] = read;
      EXPECT_EQ(object.GetKeyValueLong(same_root, same_path, same_name), 0);
      EXPECT_FALSE(object.UpdateKeyValueLong(root, path, name, -7));
      EXPECT_EQ(object.GetKeyValueLong(same_root, same_path, same_name), -7) << Utf8(same_path);
      EXPECT_FALSE(object.UpdateKeyValueString(same_root, same_path, same_name, u""));
      EXPECT_FALSE(object.UpdateKeyValueString(same_root, same_path, same_name, u"ก5\0"s));
      EXPECT_EQ(object.GetKeyValueString(root, path, name), u"ก5");
    }
    for (const auto& [root, path] : never) {
      EXPECT_TRUE(object.UpdateKeyValueLong(root, path, u"V", 1))
          << root << Utf8(path.substr(0, 9));
      EXPECT_EQ(object.GetKeyValueString(root, path, u"V"), u"");
    }
    const auto is_there = [&](std::int32_t root, TextView path) {
      return services.registry->Open(root, path, kKeyAllAccess) != nullptr;
    };
    EXPECT_TRUE(is_there(HKEY_USERS, u"a\\b") && is_there(HKEY_LOCAL_MACHINE, u""));
    EXPECT_FALSE(is_there(HKEY_LOCAL_MACHINE, u"a\\b") || is_there(HKEY_USERS, u"\\"));
    const auto key = services.registry->Create(kUser, u"Ärger\\Σ", {});
    EXPECT_TRUE(key->Set(u"Д", 3, "data") && is_there(kUser, u"äRGER\\σ"));
    std::array<char, 4> buffer{};
    EXPECT_TRUE(key->Query(u"д", buffer) && !key->Query(u"д", std::span(buffer).first(3)));
  }
}

TEST_F(SystemRegistryTest, MakesNothingBeforeAnUpdate) {
  const RegistryObject object = Object();
  EXPECT_EQ(Read(object), 0);
  EXPECT_FALSE(fs::exists(File().parent_path()));
  EXPECT_FALSE(Update(object, 1));
  EXPECT_FALSE(fs::exists(folder_ / "m"));
  EXPECT_EQ(fs::status(File().parent_path()).permissions(), fs::perms{0700});
  for (const char* name : {"registry.db", "registry.db-wal", "registry.db-shm"}) {
    EXPECT_EQ(fs::status(File().parent_path() / name).permissions(), fs::perms{0600}) << name;
  }
  fs::remove_all(File().parent_path());
  EXPECT_FALSE(Update(object, 2)) << "a database that was removed while open is made again";
  EXPECT_EQ(Read(Object()), 2);
}

TEST_F(SystemRegistryTest, FollowsWhatOthersDoToItsKeys) {
  const RegistryObject object = Object();
  ASSERT_TRUE(!Update(object, 1) && Read(object) == 1);
  Run("PRAGMA foreign_keys = ON; DELETE FROM keys WHERE name = 'App'");
  EXPECT_FALSE(Object().UpdateKeyValueLong(kUser, u"Other", u"V", 5)) << "takes the key's number";
  EXPECT_EQ(Read(object), 0);
  EXPECT_FALSE(Update(object, 2));
  EXPECT_EQ(Read(Object()), 2);
}

TEST_F(SystemRegistryTest, LiesWhereTheEnvironmentSays) {
  const std::string folder = folder_.string();
  const std::tuple<std::string, std::string, std::string> rows[] = {
      {folder + "/data", folder, "data/zq7standard"},
      {"", folder + "/home", "home/.local/share/zq7standard"},
      {"relative", folder, ".local/share/zq7standard"},
      {"", "", ""},
  };
  for (const auto& [data, home, expected] : rows) {
    const auto update = [&data = data, &home = home] {
      setenv("XDG_DATA_HOME", data.c_str(), 1);
      setenv("HOME", home.c_str(), 1);
      return Update(RegistryObject(), 1) ? 1 : 0;
    };
    EXPECT_EQ(End(Begin(update)), expected.empty() ? 1 : 0) << data << home;
    EXPECT_TRUE(expected.empty() || fs::exists(folder_ / expected / "registry.db")) << expected;
  }
}

/// Whether the user's registry, in the folder `home` of the environment, can be updated.
bool CanUpdate(const fs::path& home) {
  const auto update = [&] {
    unsetenv("XDG_DATA_HOME");
    setenv("HOME", home.c_str(), 1);
    return Update(RegistryObject(), 7) || Read(RegistryObject()) != 7 ? 1 : 0;
  };
  return End(Begin(update)) == 0;
}

TEST_F(SystemRegistryTest, UsesNoFolderOfTheUsersThatOthersCanWrite) {
  const fs::path folder = folder_ / ".local/share/zq7standard";
  EXPECT_TRUE(CanUpdate(folder_));
  for (const auto& [mode, expected] : {std::pair{0755U, true}, {0720U, false}, {0702U, false}}) {
    fs::permissions(folder, fs::perms{mode});
    EXPECT_EQ(CanUpdate(folder_), expected) << std::oct << mode;
    EXPECT_FALSE(Update(RegistryObject({.registry = SystemRegistry({folder, ""})}), 7))
        << "a host's word";
  }
  fs::permissions(folder, fs::perms{0700});
  fs::rename(folder, folder_ / "elsewhere");
  fs::create_directory_symlink(folder_ / "elsewhere", folder);
  EXPECT_TRUE(CanUpdate(folder_));
}

TEST_F(SystemRegistryTest, FollowsNoLinkInPlaceOfTheDatabase) {
  ASSERT_FALSE(Update(Object(), 1));
  fs::rename(File(), folder_ / "other.db");
  fs::create_symlink(folder_ / "other.db", File());
  EXPECT_TRUE(Read(Object()) == 0 && Update(Object(), 2));
  fs::remove(folder_ / "other.db");
  EXPECT_TRUE(Update(Object(), 3) && !fs::exists(folder_ / "other.db")) << "a link to nothing";
}

TEST_F(SystemRegistryTest, RunsNothingThatIsKeptInADatabase) {
  ASSERT_FALSE(Update(Object(), 1));
  Run("CREATE TRIGGER t AFTER UPDATE ON entries BEGIN UPDATE entries SET data = x'07000000'; END;"
      "CREATE VIEW v AS SELECT 7");
  EXPECT_TRUE(!Update(Object(), 2) && Read(Object()) == 2);
  {
    SqliteConnection connection(File(), SqliteConnection::WhenMissing::kFail);
    EXPECT_EQ(connection.Number("SELECT * FROM v", -1), -1);
    EXPECT_FALSE(connection.Execute("PRAGMA writable_schema = ON; DELETE FROM sqlite_master"));
  }
  Run("ALTER TABLE entries RENAME TO old;"
      "CREATE TABLE entries(key, folded, name, type, data, depth DEFAULT (rtreedepth(x'0000')),"
      "                     PRIMARY KEY(key, folded)) WITHOUT ROWID;"
      "INSERT INTO entries SELECT *, 0 FROM old");
  EXPECT_TRUE(Read(Object()) == 0 && Update(Object(), 2)) << "a function that is not for this";
}

TEST(RootRegistry, UsesNoFolderOfAnotherUser) {
  if (geteuid() != 0) GTEST_SKIP() << "no right to give folders away";
  const TempFolder folder;
  ASSERT_TRUE(CanUpdate(folder.Native()));
  folder.Run("chown 65534 .local/share/zq7standard");
  EXPECT_FALSE(CanUpdate(folder.Native()));
}

TEST(RootRegistry, LetsAGroupHaveTheFolderOfTheMachine) {
  if (geteuid() != 0) GTEST_SKIP() << "no right to be another user";
  const TempFolder folder;
  folder.Run(
      "chmod 755 .; install -d -m 2770 -g 65534 var/lib/zq7standard; cd var/lib/zq7standard;"
      ">registry.db; chmod 660 registry.db");
  const auto update = [&] {
    if (chroot(folder.Native().c_str()) != 0 || chdir("/") != 0) return 2;
    if (setregid(kNobody, kNobody) != 0 || setreuid(kNobody, kNobody) != 0) return 2;
    return RegistryObject().UpdateKeyValueLong(HKEY_LOCAL_MACHINE, u"K", u"V", 1) ? 1 : 0;
  };
  EXPECT_EQ(End(Begin(update)), 0);
  folder.Run("chmod 2750 var/lib/zq7standard");
  EXPECT_EQ(End(Begin(update)), 1);
}

TEST_F(SystemRegistryTest, LeavesWhatIsNoRegistryOfItsVersionAsItIs) {
  ASSERT_FALSE(Update(Object(), 1));
  const std::string good = Content(File());
  const std::pair<const char*, std::function<void()>> cases[] = {
      {"no database", [&] { std::ofstream(File()) << "[settings]\nlast=7\n"; }},
      {"no header", [&] { std::ofstream(File()) << std::string(100, '\0') + good.substr(100); }},
      {"cut", [&] { fs::resize_file(File(), 5000); }},
      {"damaged pages",
       [&] {
         std::ofstream(File()) << good.substr(0, 4096) + std::string(good.size() - 4096, '\xA5');
       }},
      {"of another program", [&] { Run("PRAGMA application_id = 7"); }},
      {"unmarked", [&] { Run("PRAGMA application_id = 0; PRAGMA user_version = 0"); }},
      {"a later version", [&] { Run("PRAGMA user_version = 2"); }},
      {"other tables", [&] { Run("PRAGMA journal_mode = DELETE; DROP TABLE entries"); }},
  };
  for (const auto& [reason, damage] : cases) {
    std::ofstream(File()) << good;
    damage();
    const std::string before = Content(File());
    ASSERT_NE(before, good) << reason;
    EXPECT_EQ(Read(Object()), 0) << reason;
    EXPECT_TRUE(Update(Object(), 2)) << reason;
    EXPECT_EQ(Content(File()), before) << reason;
  }
  fs::resize_file(File(), 0);
  EXPECT_EQ(Read(Object()), 0);
  EXPECT_EQ(fs::file_size(File()), 0);
  EXPECT_FALSE(Update(Object(), 3)) << "an empty file is no database yet";
  EXPECT_EQ(Read(Object()), 3);
}

TEST_F(SystemRegistryTest, TakesFilePermissionsAsRights) {
  ASSERT_FALSE(Update(Object(), 1));
  const std::tuple<unsigned, unsigned, bool> rows[] = {
      {0777, 0444, false}, {0555, 0666, false}, {0777, 0666, true}};
  for (const auto& [folder_mode, file_mode, granted] : rows) {
    fs::permissions(File().parent_path(), fs::perms{folder_mode});
    fs::permissions(File(), fs::perms{file_mode});
    const auto use = [this] {
      if (geteuid() == 0 && setuid(kNobody) != 0) return 9;
      return Read(Object()) + (Update(Object(), 1) ? 2 : 0);
    };
    EXPECT_EQ(End(Begin(use)), granted ? 1 : 2) << std::oct << folder_mode << " " << file_mode;
  }
  fs::permissions(File().parent_path(), fs::perms{0700});
}

TEST_F(SystemRegistryBreadth, LosesNothingOfEightProcessesThatBeginAtOnce) {
  const RegistryObject object = Object();
  std::vector<pid_t> writers;
  for (char16_t writer = u'a'; writer < u'i'; ++writer) {
    writers.push_back(Begin([&] {
      int failures = 0;
      for (char16_t i = u'a'; i <= u'z'; ++i) {
        failures += Update(object, i, Text{writer, i}) ? 1 : 0;
        failures += object.UpdateKeyValueLong(HKEY_USERS, Text{i}, Text{writer}, i) ? 1 : 0;
      }
      return failures;
    }));
  }
  for (const pid_t writer : writers) EXPECT_EQ(End(writer), 0);
  for (char16_t writer = u'a'; writer < u'i'; ++writer) {
    for (char16_t i = u'a'; i <= u'z'; ++i) {
      ASSERT_EQ(Read(object, Text{writer, i}), i);
      ASSERT_EQ(object.GetKeyValueLong(HKEY_USERS, Text{i}, Text{writer}), i);
    }
  }
}

TEST_F(SystemRegistryBreadth, LosesNothingToKills) {
  const RegistryObject object = Object();
  int last = 0;
  for (int round = 1; round <= 200; ++round) {
    const pid_t child = Begin([&] {
      for (int i = last + 1; !Update(object, i, u"A") && !Update(object, i, u"B"); ++i) {
      }
      return 1;
    });
    int seen = last;  // certainly committed, since another process saw it
    while (seen < last + round % 3) seen = Read(object, u"B");
    usleep(static_cast<useconds_t>(round * 137 % 1000));
    kill(child, SIGKILL);
    EXPECT_EQ(End(child), -SIGKILL);
    last = Read(Object(), u"B");
    const int first = Read(object, u"A");
    ASSERT_TRUE(seen <= last && last <= first && first <= last + 1) << seen << last << first;
  }
}

// SQLite takes a parent's locks for the child's own. Unaware of that, a child would go on writing
// to a log that the parent, closing last, removes.
TEST_F(SystemRegistryTest, SurvivesAFork) {
  auto object = std::make_unique<RegistryObject>(Object());
  auto unused = std::make_unique<RegistryObject>(Object());
  ASSERT_FALSE(Update(*object, 1) || Update(*unused, 1));
  std::array<int, 2> ends{};
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()), 0);
  char byte = 0;
  const pid_t child = Begin([&] {
    if (Read(*object) != 1 || Update(*object, 2, u"W") || Read(*object, u"W") != 2) return 1;
    unused.reset();
    if (write(ends[1], &byte, 1) != 1 || read(ends[1], &byte, 1) != 1) return 2;
    return Update(*object, 3) ? 3 : 0;
  });
  ASSERT_EQ(read(ends[0], &byte, 1), 1);
  EXPECT_TRUE(Read(*object, u"W") == 2 && !Update(*object, 4, u"X"));
  object.reset();
  unused.reset();
  ASSERT_EQ(write(ends[0], &byte, 1), 1);
  EXPECT_EQ(End(child), 0);
  EXPECT_EQ(Read(Object()), 3);
  EXPECT_TRUE(Read(Object(), u"W") == 2 && Read(Object(), u"X") == 4);
}

}  // namespace
}  // namespace ZQ7Standard
