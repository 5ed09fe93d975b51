#include "platform/linux/program_search.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <string_view>

#include "platform/linux/native_path.h"

namespace ZQ7Standard {
namespace {

bool IsProgram(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
         access(path.c_str(), X_OK) == 0;
}

}  // namespace

std::string ProgramPath(TextView program, const DriveMap& drives) {
  if (program.find_first_of(u"\\/:") != TextView::npos) return NativePath(program, drives);
  const char* const variable = std::getenv("PATH");
  std::string_view folders = variable == nullptr ? "/usr/bin:/bin" : variable;
  const std::string name = std::string("/").append(NativePath(program, {}));
  while (!folders.empty()) {
    const std::string_view folder = folders.substr(0, folders.find(':'));
    folders.remove_prefix(std::min(folders.size(), folder.size() + 1));
    // An empty entry would be the current folder, where anybody may have put a program.
    if (folder.empty()) continue;
    if (std::string path = std::string(folder) + name; IsProgram(path)) return path;
  }
  return {};
}

}  // namespace ZQ7Standard
