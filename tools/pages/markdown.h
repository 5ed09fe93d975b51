#ifndef ZQ7STANDARD_TOOLS_PAGES_MARKDOWN_H_
#define ZQ7STANDARD_TOOLS_PAGES_MARKDOWN_H_

#include <ZQ7Standard/automation/catalogue.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// Texts of the catalogue as Markdown.
namespace ZQ7Pages {

/// `text` as code, whatever it contains.
std::string Code(std::string_view text);

std::string Link(std::string_view text, std::string_view target);

/// The address of a heading on its page.
std::string Anchor(std::string_view heading);

/// The address of a member from another page: "StandardObject.md#ctdate".
std::string Address(const ZQ7Standard::Automation::ClassInfo& owner, std::string_view member);

/// The name of a type, linked if it is an enumeration or a class.
std::string TypeLink(const ZQ7Standard::Automation::TypeInfo& type);

/// The address of what a word in backticks names; empty if it names nothing.
using Addresses = std::function<std::string(std::string_view)>;

/// Paragraphs of documentation, without a line break at the end. Words in backticks and pages of
/// docs/ become links; a paragraph that begins with two blanks is kept as it is.
std::string Prose(std::string_view documentation, const Addresses& addresses = {});

/// A paragraph or table after what stands before it: nothing if it is empty.
std::string Block(const std::string& markdown);

/// A line of a table.
std::string Row(const std::vector<std::string>& cells);

/// A table with those lines; empty if there are none.
std::string Table(const std::vector<std::string>& head, const std::string& rows);

}  // namespace ZQ7Pages

#endif  // ZQ7STANDARD_TOOLS_PAGES_MARKDOWN_H_
