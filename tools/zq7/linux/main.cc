// The command-line tool: calls the library's classes by name.

#include <iostream>

#include "program.h"

int main(int argc, char** argv) {
  // Without sharing buffers with C, input is read in blocks, and read errors are distinguished from
  // the end.
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  return ZQ7Tool::RunProgram({argv + 1, argv + argc}, std::cin, std::cout, std::cerr);
}
