#include "tests/support/temp_folder.h"

#include <stdio.h>

namespace ZQ7Standard {

std::string TempFolder::Run(const std::string& command) const {
  std::string output;
  FILE* const pipe = popen(("cd " + native_.native() + "\n" + command).c_str(), "r");
  for (int c = fgetc(pipe); c != EOF; c = fgetc(pipe)) output.push_back(static_cast<char>(c));
  pclose(pipe);
  return output;
}

}  // namespace ZQ7Standard
