#include "page.h"

#include <fstream>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace ZQ7Pages {

std::string Filled(const std::filesystem::path& template_file, const Fields& fields) {
  std::ostringstream content;
  if (!(content << std::ifstream(template_file).rdbuf())) {
    throw std::runtime_error(template_file.string() + " cannot be read");
  }
  const std::string text = content.str();
  const std::regex field("@([A-Z_]+)@");
  std::string filled;
  auto end = text.cbegin();
  for (std::sregex_iterator found(text.cbegin(), text.cend(), field), none; found != none;
       ++found) {
    const auto value = fields.find(found->str(1));
    if (value == fields.end()) {
      throw std::runtime_error(template_file.string() + " has the unknown field " + found->str());
    }
    filled.append(end, (*found)[0].first).append(value->second);
    end = (*found)[0].second;
  }
  return filled.append(end, text.cend());
}

}  // namespace ZQ7Pages
