// Fills the templates of what is installed beside the tool:
//
//     zq7_write_pages MAN_TEMPLATE MAN_PAGE BASH_TEMPLATE COMPLETION

#include <fstream>
#include <iostream>
#include <sstream>

#include "pages.h"

namespace ZQ7Tool {
namespace {

bool Write(const char* template_name, const char* output_name, const Fields& fields) {
  std::ostringstream text;
  text << std::ifstream(template_name).rdbuf();
  std::string page = text.str();
  for (const auto& [name, value] : fields) {
    const std::string field = "@" + name + "@";
    const std::size_t found = page.find(field);
    if (found == std::string::npos) return false;
    page.replace(found, field.size(), value);
  }
  return static_cast<bool>(std::ofstream(output_name) << page << std::flush);
}

}  // namespace
}  // namespace ZQ7Tool

int main(int argc, char** argv) {
  using namespace ZQ7Tool;
  const bool written = argc == 5 && Write(argv[1], argv[2], ManPageFields()) &&
                       Write(argv[3], argv[4], CompletionFields());
  if (!written)
    std::cerr << "usage: zq7_write_pages MAN_TEMPLATE MAN_PAGE BASH_TEMPLATE COMPLETION\n";
  return written ? 0 : 1;
}
