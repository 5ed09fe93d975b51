// Tests the printing module in a process that uses the shared library like a host.

#include <ZQ7Standard/Modules.h>
#include <ZQ7Standard/PrintObject.h>
#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/printers.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <string>
#include <thread>
#include <vector>

namespace ZQ7Standard {
namespace {

const int kNoServer = setenv("CUPS_SERVER", "/none", 1);

bool IsCairoLoaded() {
  std::ifstream maps("/proc/self/maps");
  for (std::string line; std::getline(maps, line);) {
    if (line.find("libcairo") != std::string::npos) return true;
  }
  return false;
}

/// Whether the machine's printers can be used, and their errors caught as the core's.
bool Prints() {
  PrintObject printer;
  try {
    printer.PrintGraphicText(u"text", 0, 0, 1, 0, 0, u"", 1e300);
  } catch (const RunTimeError& error) {
    return error.Number() == static_cast<int>(Error::kPrinterError) && printer.PrintStart() == 0 &&
           printer.PrintCancel() == 0;
  }
  return false;
}

// One test, because a process loads a module once.
TEST(Module, IsLoadedOnceAtItsFirstUse) {
  PrintObject printer;
  EXPECT_EQ(printer.GETPaperBinText(1), u"Upper Bin");
  EXPECT_FALSE(IsCairoLoaded()) << "a host that does not print";

  std::vector<std::thread> threads;
  std::vector<int> prints(4, 0);
  for (int& result : prints) threads.emplace_back([&result] { result = Prints() ? 1 : 0; });
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(prints, std::vector<int>(4, 1));
  EXPECT_TRUE(IsCairoLoaded());
  EXPECT_EQ(Modules().front().problem, "");

  const pid_t child = fork();
  if (child == 0) _exit(Prints() ? 0 : 1);
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0) << "after fork";
}

}  // namespace
}  // namespace ZQ7Standard
