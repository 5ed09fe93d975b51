#include "markdown.h"

#include <regex>

#include "layout.h"
#include "names.h"
#include "signature.h"

namespace ZQ7Pages {
namespace {

using namespace ZQ7Standard::Automation;

/// A character outside backticks, escaped if Markdown would interpret it.
std::string Plain(char c) {
  constexpr std::string_view kSpecial = "\\*<[]";
  return kSpecial.find(c) == std::string_view::npos ? std::string(1, c) : std::string{'\\', c};
}

std::string Paragraph(std::string_view text, const Addresses& addresses) {
  if (text.starts_with("  ")) return "```text\n" + std::string(text) + "```\n";
  std::string markdown;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::size_t end = text[i] == '`' ? text.find('`', i + 1) : std::string_view::npos;
    if (end == std::string_view::npos) {
      markdown += Plain(text[i]);
      continue;
    }
    const std::string_view word = text.substr(i + 1, end - i - 1);
    const std::string address = addresses ? addresses(word) : "";
    markdown += address.empty() ? Code(word) : Link(Code(word), address);
    i = end;
  }
  static const std::regex page(R"(docs/(\w+\.md))");
  return std::regex_replace(markdown, page, "[$&](../$1)");
}

/// The content of a cell: a "|" would end it, a line break the table.
std::string Escaped(std::string_view cell) {
  std::string escaped;
  for (const char c : cell) {
    if (c == '|') escaped += '\\';
    escaped += c == '\n' ? ' ' : c;
  }
  return escaped;
}

}  // namespace

std::string Code(std::string_view text) {
  const bool backtick = text.find('`') != std::string_view::npos;
  return (backtick ? "`` " : "`") + std::string(text) + (backtick ? " ``" : "`");
}

std::string Link(std::string_view text, std::string_view target) {
  return std::string("[").append(text).append("](").append(target).append(")");
}

std::string Anchor(std::string_view heading) {
  std::string anchor = "#";
  for (const char c : heading) {
    if (c == ' ') anchor += '-';
    if (ZQ7Tool::IsIdentifierCharacter(c) || c == '-') anchor += ZQ7Tool::Lower(c);
  }
  return anchor;
}

std::string Address(const ClassInfo& owner, std::string_view member) {
  return std::string(owner.name) + ".md" + Anchor(member);
}

std::string TypeLink(const TypeInfo& type) {
  const std::string name = ZQ7Tool::TypeName(type);
  if (type.enumeration != nullptr) return Link(name, "enumerations.md" + Anchor(name));
  return type.object_class.empty() ? name : Link(name, name + ".md");
}

std::string Prose(std::string_view documentation, const Addresses& addresses) {
  std::string markdown;
  for (const std::string& paragraph : ZQ7Tool::SplitParagraphs(documentation)) {
    markdown.append(markdown.empty() ? "" : "\n").append(Paragraph(paragraph, addresses));
  }
  if (!markdown.empty()) markdown.pop_back();
  return markdown;
}

std::string Block(const std::string& markdown) {
  return markdown.empty() ? "" : "\n" + markdown + "\n";
}

std::string Row(const std::vector<std::string>& cells) {
  std::string row = "|";
  for (const std::string& cell : cells) row += (cell.empty() ? "" : " " + Escaped(cell)) + " |";
  return row + "\n";
}

std::string Table(const std::vector<std::string>& head, const std::string& rows) {
  if (rows.empty()) return "";
  std::string rule = "|";
  for (std::size_t i = 0; i < head.size(); ++i) rule += "---|";
  return "\n" + Row(head) + rule + "\n" + rows;
}

}  // namespace ZQ7Pages
