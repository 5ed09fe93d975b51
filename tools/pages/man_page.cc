#include <ZQ7Standard/automation/catalogue.h>

#include <string_view>

#include "commands.h"
#include "writers.h"

namespace ZQ7Pages {
namespace {

using namespace ZQ7Standard::Automation;
using namespace ZQ7Tool;

/// `text` with everything escaped that the formatter would interpret.
std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    const bool line_begins = escaped.empty() || escaped.back() == '\n';
    if (line_begins && (c == '.' || c == '\'')) escaped += "\\&";
    if (c == '\\') {
      escaped += "\\e";
    } else if (c == '-') {
      escaped += "\\-";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

std::string Paragraph(const std::string& name, std::string_view text) {
  return ".TP\n" + name + "\n" + Escaped(text) + "\n";
}

std::string Bold(std::string_view text) {
  return "\\fB" + Escaped(text) + "\\fR";
}

std::string Italic(std::string_view text) {
  return "\\fI" + Escaped(text) + "\\fR";
}

bool IsMany(const CLI::Option& option) {
  return option.get_items_expected_max() > 1;
}

/// " [CLASS]" for each positional of a subcommand.
std::string Positionals(const CLI::App& subcommand) {
  std::string text;
  for (const CLI::Option* option : subcommand.get_options()) {
    if (!option->get_positional()) continue;
    const std::string name = Italic(option->get_name(true)) + (IsMany(*option) ? "\\ ..." : "");
    text += option->get_required() ? " " + name : " [" + name + "]";
  }
  return text;
}

std::string OptionParagraphs(const CLI::App& app) {
  std::string paragraphs;
  for (const CLI::Option* option : app.get_options()) {
    const bool value = option->get_items_expected_max() > 0;
    const std::string name = option->get_positional()
                                 ? Italic(option->get_name(true))
                                 : Bold(option->get_name(false, true)) +
                                       (value ? " " + Italic(option->get_type_name()) : "");
    if (option != app.get_help_ptr() || app.get_parent() == nullptr) {
      paragraphs += Paragraph(name, option->get_description());
    }
  }
  return paragraphs;
}

std::string Synopsis(const CLI::App& app) {
  std::string lines;
  for (const CLI::App* subcommand : app.get_subcommands({})) {
    lines += Bold("zq7 " + subcommand->get_name()) + " [" + Italic("OPTIONS") + "]" +
             Positionals(*subcommand) + "\n.br\n";
  }
  return lines + Bold("zq7 --help") + "\n";
}

std::string Subcommands(const CLI::App& app) {
  std::string lines;
  for (const CLI::App* subcommand : app.get_subcommands({})) {
    lines += ".SS zq7 " + subcommand->get_name() + "\n" + Escaped(subcommand->get_description()) +
             "\n" + OptionParagraphs(*subcommand);
  }
  return lines;
}

std::string ClassSections() {
  std::string lines;
  for (const ClassInfo& owner : Classes()) {
    lines += ".SS " + std::string(owner.name) + "\n" + Escaped(owner.help) + "\n";
    for (const OperationInfo& operation : owner.operations) {
      lines += Paragraph(Bold(operation.name), operation.help);
    }
    for (const PropertyInfo& property : owner.properties) {
      lines += Paragraph(Bold(property.name) + " (property)", property.help);
    }
    for (const EventInfo& event : owner.events) {
      lines += Paragraph(Bold(event.name) + " (event)", event.help);
    }
  }
  return lines;
}

}  // namespace

Fields ManPageFields() {
  const Commands commands;
  return {{"VERSION", ZQ7_VERSION},
          {"SYNOPSIS", Synopsis(commands.App())},
          {"OPTIONS", OptionParagraphs(commands.App())},
          {"SUBCOMMANDS", Subcommands(commands.App())},
          {"CLASSES", ClassSections()}};
}

}  // namespace ZQ7Pages
