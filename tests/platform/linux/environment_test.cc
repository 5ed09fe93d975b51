#include <ZQ7Standard/PrintObject.h>
#include <ZQ7Standard/RegistryObject.h>
#include <stdlib.h>

#include "tests/support/children.h"
#include "tests/support/row_tests.h"
#include "tests/support/temp_folder.h"

using namespace ZQ7Standard;

// The programs run below; status 0 means success.
TEST(EnvironmentProbe, DISABLED_Update) {
  exit(RegistryObject().UpdateKeyValueLong(HKEY_CURRENT_USER, u"K", u"V", 1) ? 1 : 0);
}
TEST(EnvironmentProbe, DISABLED_Print) {
  PrintObject printer;
  const int error = ErrorOf([&] {
    printer.PrintGraphicText(u"x", 20, 30);
    printer.PrintOut();
  });
  exit(error == 482 ? 1 : error);
}

// The user who starts a setgid program makes its environment, but lacks its rights. A program
// started with a different primary group counts as setgid.
TEST(RootEnvironment, NamesNoFolderToAProgramWithMoreRights) {
  if (geteuid() != 0) GTEST_SKIP() << "no right to change groups";
  const TempFolder folder;
  for (const char* variable : {"HOME", "XDG_DATA_HOME"}) {
    for (const std::string probe : {"Update", "Print"}) {
      for (const gid_t group : {getegid(), kNobody}) {
        const auto run = [&] {
          for (const char* other : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"}) unsetenv(other);
          setenv(variable, folder.Native().c_str(), 1);
          setenv("CUPS_SERVER", "/nonexistent/cups.sock", 1);
          if (setregid(group, getegid()) != 0) return 2;
          return execl("/proc/self/exe", "zq7_tests", "--gtest_also_run_disabled_tests",
                       "--gtest_brief=1", ("--gtest_filter=*Probe.*" + probe).c_str(), nullptr);
        };
        EXPECT_EQ(End(Begin(run)), group == kNobody ? 1 : 0) << variable << " " << probe;
      }
    }
  }
}
