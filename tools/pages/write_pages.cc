// Makes the files of the source that come from the catalogue:
//
//     zq7_write_pages SOURCE            writes them
//     zq7_write_pages --check SOURCE    fails if any of them holds anything else

#include <exception>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string_view>
#include <vector>

#include "page.h"
#include "writers.h"

namespace ZQ7Pages {
namespace {

using Path = std::filesystem::path;

std::vector<Page> Pages() {
  const Path reference = "docs/reference";
  const Path windows = "bindings/windows";
  std::vector<Page> pages = {
      {"tools/zq7/zq7.1", "tools/zq7/zq7.1.in", ManPageFields},
      {"tools/zq7/zq7.bash", "tools/zq7/zq7.bash.in", CompletionFields},
      {reference / "README.md", "tools/pages/index.md.in", IndexFields},
      {reference / "enumerations.md", "tools/pages/enumerations.md.in", EnumerationsFields},
      {"bindings/csharp/ZQ7Standard.cs", "bindings/csharp/ZQ7Standard.cs.in", CSharpFields},
      {"bindings/postgresql/zq7standard--" ZQ7_SOVERSION ".sql",
       "bindings/postgresql/zq7standard.sql.in", PostgresqlFields},
      {"bindings/postgresql/functions.inc", "bindings/postgresql/functions.inc.in",
       PostgresqlFields},
      {"tests/bindings/postgresql/examples.sql", "tests/bindings/postgresql/examples.sql.in",
       PostgresqlFields},
      {windows / "zq7standard.idl", windows / "zq7standard.idl.in", WindowsFields},
      {windows / "classes.inc", windows / "classes.inc.in", WindowsFields},
      {windows / "zq7standard.manifest", windows / "zq7standard.manifest.in", WindowsFields},
  };
  for (const auto& owner : ZQ7Standard::Automation::Classes()) {
    pages.push_back({reference / (std::string(owner.name) + ".md"), "tools/pages/class.md.in",
                     [&owner] { return ClassFields(owner); }});
  }
  return pages;
}

bool Check(const Path& file, const std::string& text) {
  if ((std::ostringstream() << std::ifstream(file).rdbuf()).str() == text) return true;
  std::cerr << file.string() << " is out of date: run scripts/pages.\n";
  return false;
}

bool Write(const Path& file, const std::string& text) {
  create_directories(file.parent_path());
  return static_cast<bool>(std::ofstream(file) << text << std::flush);
}

}  // namespace
}  // namespace ZQ7Pages

int main(int argc, char** argv) {
  using namespace ZQ7Pages;
  const bool check = argc == 3 && std::string_view(argv[1]) == "--check";
  if (argc != 2 && !check) {
    std::cerr << "usage: zq7_write_pages [--check] SOURCE\n";
    return 2;
  }
  const Path source = argv[argc - 1];
  const auto act = check ? Check : Write;
  bool done = true;
  try {
    for (const Page& page : Pages()) {
      done &= act(source / page.file, Filled(source / page.template_file, page.fields()));
    }
  } catch (const std::exception& error) {
    std::cerr << "zq7_write_pages: " << error.what() << '\n';
    return 1;
  }
  return done ? 0 : 1;
}
