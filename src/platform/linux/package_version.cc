#include "platform/linux/package_version.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <vector>

#include "formats/lines.h"
#include "platform/linux/program_output.h"

namespace ZQ7Standard {
namespace {

constexpr TextView kQuery = u"dpkg-query";
constexpr std::chrono::milliseconds kLimit{2000};  // for each of two questions
constexpr std::string_view kUsr = "/usr";
constexpr std::string_view kPatternCharacters = "*?[\\";

/// The path as packages may have it: folders of /usr have links in the root, under which older
/// packages know their files.
std::vector<std::string> NamesOf(const std::string& path) {
  std::error_code error;
  std::vector<std::string> names = {std::filesystem::path(path).lexically_normal()};
  const std::string resolved = std::filesystem::canonical(path, error);
  if (!error && resolved != names.front()) names.push_back(resolved);
  for (std::size_t i = 0, count = names.size(); i < count; ++i) {
    const bool in_usr = names[i].starts_with("/usr/");
    names.push_back(in_usr ? names[i].substr(kUsr.size()) : std::string(kUsr) + names[i]);
  }
  return names;
}

std::string Escaped(const std::string& name) {
  std::string pattern;
  for (const char c : name) {
    if (kPatternCharacters.find(c) != std::string_view::npos) pattern += '\\';
    pattern += c;
  }
  return pattern;
}

/// The first package of a line such as "libc6:amd64, libc6:i386: /usr/share/doc/libc6"; empty for
/// other lines, such as those about files that a package moved away.
std::string PackageOn(std::string_view line, const std::string& name) {
  if (!line.ends_with(": " + name)) return {};
  const std::string_view packages = line.substr(0, line.size() - name.size() - 2);
  const std::string_view first = packages.substr(0, packages.find(','));
  return first.find(' ') == std::string_view::npos ? std::string(first) : std::string();
}

std::string PackageOf(const std::string& path) {
  const std::vector<std::string> names = NamesOf(path);
  std::vector<std::string> arguments = {"-S", "--"};
  std::ranges::transform(names, std::back_inserter(arguments), Escaped);
  const std::string found = ProgramOutput(kQuery, arguments, kLimit).value_or("");
  for (const std::string& name : names) {
    for (std::string_view rest = found; !rest.empty();) {
      if (std::string package = PackageOn(TakeLine(rest), name); !package.empty()) return package;
    }
  }
  return {};
}

}  // namespace

std::string PackageVersion(const std::string& path) {
  const std::string package = PackageOf(path);
  if (package.empty()) return {};
  return ProgramOutput(kQuery, {"-W", "-f", "${Version}", "--", package}, kLimit).value_or("");
}

}  // namespace ZQ7Standard
