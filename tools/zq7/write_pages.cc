// Fills the templates zq7.1.in and zq7.bash.in in a folder:
//
//     zq7_write_pages FOLDER            writes zq7.1 and zq7.bash beside them
//     zq7_write_pages --check FOLDER    fails where these hold anything else

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string_view>

#include "pages.h"

namespace ZQ7Tool {
namespace {

using Path = std::filesystem::path;

std::string Content(const Path& path) {
  return (std::ostringstream() << std::ifstream(path).rdbuf()).str();
}

/// The template of a page with its fields filled.
std::string Filled(Path page, const Fields& fields) {
  std::string text = Content(page += ".in");
  for (const auto& [name, value] : fields) {
    const std::string field = "@" + name + "@";
    const std::size_t found = text.find(field);
    if (found != std::string::npos) text.replace(found, field.size(), value);
  }
  return text;
}

bool Check(const Path& page, const Fields& fields) {
  if (Content(page) == Filled(page, fields)) return true;
  std::cerr << page.string() << " is out of date: run scripts/pages.\n";
  return false;
}

bool Write(const Path& page, const Fields& fields) {
  return static_cast<bool>(std::ofstream(page) << Filled(page, fields) << std::flush);
}

}  // namespace
}  // namespace ZQ7Tool

int main(int argc, char** argv) {
  using namespace ZQ7Tool;
  const bool check = argc == 3 && std::string_view(argv[1]) == "--check";
  if (argc != 2 && !check) {
    std::cerr << "usage: zq7_write_pages [--check] FOLDER\n";
    return 2;
  }
  const Path folder = argv[argc - 1];
  const auto act = check ? Check : Write;
  const bool man_page = act(folder / "zq7.1", ManPageFields());
  const bool completion = act(folder / "zq7.bash", CompletionFields());
  return man_page && completion ? 0 : 1;
}
