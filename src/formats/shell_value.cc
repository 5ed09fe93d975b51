#include "formats/shell_value.h"

#include <algorithm>
#include <utility>

#include "formats/lines.h"

namespace ZQ7Standard {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kHome = "\"$HOME";

std::string_view TrimmedFront(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return text;
}

/// The text up to an `end` that no backslash precedes; nullopt if there is none.
std::optional<std::string> Unescaped(std::string_view text, char end) {
  std::string unescaped;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == end) return unescaped;
    if (text[i] == '\\' && end == '"' && ++i == text.size()) break;
    unescaped += text[i];
  }
  return std::nullopt;
}

/// The value of XDG_<name>_DIR on a line; nullopt if the line sets something else.
std::optional<std::string_view> FolderValue(std::string_view line, std::string_view name) {
  line = TrimmedFront(line);
  const std::string variable = std::string("XDG_").append(name).append("_DIR");
  if (!line.starts_with(variable)) return std::nullopt;
  line = TrimmedFront(line.substr(variable.size()));
  if (!line.starts_with('=')) return std::nullopt;
  return TrimmedFront(line.substr(1));
}

/// The path of a value; nullopt for one that is neither absolute nor below the home folder.
std::optional<std::string> PathOf(std::string_view value, std::string_view home) {
  std::string before;
  if (value.starts_with(kHome)) {
    before = home;
    value.remove_prefix(kHome.size());
    if (!value.starts_with('/') && !value.starts_with('"')) return std::nullopt;
  } else if (value.starts_with("\"/")) {
    value.remove_prefix(1);
  } else {
    return std::nullopt;
  }
  auto path = Unescaped(value, '"');
  if (!path) return std::nullopt;
  path->insert(0, before);
  while (path->size() > 1 && path->ends_with('/')) path->pop_back();
  return path;
}

}  // namespace

std::optional<std::string> ShellValue(std::string_view value) {
  value = TrimmedFront(value);
  if (value.starts_with('"') || value.starts_with('\'')) {
    return Unescaped(value.substr(1), value.front());
  }
  return std::string(value.substr(0, value.find_first_of(kBlanks)));
}

std::optional<std::string> UserFolder(std::string_view settings, std::string_view name,
                                      std::string_view home) {
  std::optional<std::string> found;
  while (!settings.empty()) {
    const auto value = FolderValue(TakeLine(settings), name);
    if (!value) continue;
    if (auto path = PathOf(*value, home)) found = std::move(path);
  }
  return found;
}

}  // namespace ZQ7Standard
