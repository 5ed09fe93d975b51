#include "commands.h"

#include <ZQ7Standard/Modules.h>
#include <ZQ7Standard/platform/date_convention.h>

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>
#include <string_view>
#include <utility>

#include "call_words.h"
#include "names.h"
#include "wrong_use.h"

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard;

constexpr int kMostJobs = 1024;
constexpr const char* kMoreHelp = R"( "zq7 --help" shows the usage.)";

OleDate Moment(const std::string& text) {
  if (const auto now = OleDate::FromIso(text)) return *now;
  throw WrongUse("--now " + Quoted(text) + R"( is not a date such as "2024-01-15 09:30:00".)");
}

DateConvention ConventionNamed(const std::string& name) {
  if (const auto convention = DateConventionNamed(name)) return *convention;
  throw WrongUse("--convention " + Quoted(name) +
                 " is not one of mdy, dmy, mdy-buddhist and dmy-buddhist.");
}

Dates DatesNamed(const std::string& name) {
  if (name == "iso") return Dates::kIso;
  if (name == "typed") return Dates::kTyped;
  throw WrongUse("--dates " + Quoted(name) + " is not one of iso and typed.");
}

Encoding EncodingOf(const std::string& name) {
  if (const auto encoding = EncodingNamed(name)) return *encoding;
  throw WrongUse("--encoding " + Quoted(name) + " is not one of utf-8 and windows-874.");
}

char DelimiterNamed(const std::string& text) {
  constexpr std::string_view kImpossible = "\"\r\n";
  if (text == "tab" || text == "\\t") return '\t';
  const bool possible = text.size() == 1 && kImpossible.find(text.front()) == std::string::npos &&
                        static_cast<unsigned char>(text.front()) < 0x80;
  if (possible) return text.front();
  throw WrongUse("--delimiter " + Quoted(text) + R"( is not a character such as ";", or "tab".)");
}

void AddOptionNames(std::vector<std::string>& names, const CLI::App& app) {
  for (const CLI::Option* option : app.get_options()) {
    if (!option->get_positional()) names.push_back(option->get_name());
  }
}

/// The option that a word is.
const CLI::Option& OptionOf(const std::string& word, const CLI::App& root,
                            const CLI::App* subcommand) {
  const std::string name = word.substr(0, word.find('='));
  std::vector<std::string> names;
  for (const CLI::App* app : {&root, subcommand}) {
    if (app == nullptr) continue;
    if (const CLI::Option* option = app->get_option_no_throw(name)) return *option;
    AddOptionNames(names, *app);
  }
  throw WrongUse("There is no option " + Quoted(word) + "." + Hint(name, names) +
                 R"( Arguments that begin with "--" go after "--".)");
}

CLI::Option* AddName(CLI::App* subcommand, const char* name, std::string& value,
                     const char* description) {
  return subcommand->add_option(name, value, description)->type_name("");
}

const CLI::App& SubcommandNamed(const std::string& word, const CLI::App& root) {
  std::vector<std::string> names;
  for (const CLI::App* known : root.get_subcommands({})) {
    if (known->get_name() == word) return *known;
    names.push_back(known->get_name());
  }
  throw WrongUse("There is no subcommand " + Quoted(word) + "." + Hint(word, names) + kMoreHelp);
}

std::string VersionLines() {
  std::string lines = "zq7 " ZQ7_VERSION;
  for (const auto& [name, problem] : ZQ7Standard::Modules()) {
    lines.append("\nmodule ").append(name).append(": ");
    lines.append(problem.empty() ? "ready" : problem);
  }
  return lines;
}

}  // namespace

Commands::Commands() : app_("Calls the operations of the ZQ7Standard library by name.", "zq7") {
  app_.get_formatter()->column_width(22);
  app_.set_version_flag("--version", VersionLines,
                        "Print the version, and which modules can be used.");
  app_.set_help_flag("-h,--help", "Print the usage of the tool or of a subcommand.");
  app_.require_subcommand(1);
  app_.fallthrough();
  app_.allow_windows_style_options(false);  // "/a" is a file, on every system
  AddSettings();

  CLI::App* list = app_.add_subcommand("list", "List the classes, or the members of one.");
  AddName(list, "CLASS", name_, "A class, in upper or lower case.");

  CLI::App* help = app_.add_subcommand("help", "Print the documentation of a class or a member.");
  AddName(help, "CLASS[.MEMBER]", name_, "A class, or one of its members.");

  CLI::App* call = app_.add_subcommand("call", "Call an operation of a new object.");
  AddName(call, "CLASS.OPERATION", call_.operation, "What to call.")->required();
  call->add_option("ARG", call_.arguments,
                   "A value in its place, or NAME=VALUE. After \"--\"\nalways in its place.")
      ->type_name("");
  call->add_flag("--json", json_, "Print the result as a batch does.");

  CLI::App* batch = app_.add_subcommand("batch", "Answer calls written as lines of JSON.");
  AddName(batch, "FILE", file_, "The lines; \"-\" or nothing for standard input.");

  for (CLI::App* subcommand : {list, help, call, batch, AddFill()}) {
    subcommand->footer(R"(The options of "zq7 --help" may be anywhere on the line.)");
  }
}

CLI::App* Commands::AddFill() {
  CLI::App* fill = app_.add_subcommand("fill", "Add columns to a CSV file, computed from others.");
  AddName(fill, "FILE", file_, "The file; \"-\" or nothing for standard input.");
  const auto add = [&](const char* name, auto& value, const char* type, const char* description) {
    return fill->add_option(name, value, description)->type_name(type);
  };
  const auto add_named = [&](const char* name, auto read, const char* type,
                             const char* description) {
    fill->add_option_function<std::string>(name, read, description)->type_name(type);
  };
  add("--with", fill_.with, "COLUMN=CALL",
      "A new column at the end, and the call that computes it:\n"
      "'words=BahtStringObject.BahtString(amount)'.")
      ->allow_extra_args(false)
      ->required();
  add("-o,--output", fill_.output, "FILE", "Where the rows go, instead of standard output.");
  add("--errors", fill_.errors, "FILE", "Write line, column and reason of each failure.");
  fill->add_flag("--explain", fill_.explain, "Show what would be called, and process nothing.");
  add_named(
      "--dates", [this](const std::string& name) { fill_.dates = DatesNamed(name); }, "NAME",
      "How cells are dates: iso (2024-01-31, Gregorian) or\ntyped (by the date convention).");
  add_named(
      "--encoding", [this](const std::string& name) { fill_.encoding = EncodingOf(name); }, "NAME",
      "utf-8, the default, or windows-874.");
  add_named(
      "--delimiter", [this](const std::string& text) { fill_.delimiter = DelimiterNamed(text); },
      "CHARACTER", "What separates cells, or \"tab\"; found in the header\nif it is not given.");
  fill->add_flag("--guard", fill_.guard,
                 "Put \"'\" before new cells that a spreadsheet would take\nfor formulas.");
  fill->add_flag("--stop", fill_.stop, "Stop at the first row that fails, and leave no file.");
  add("--jobs", fill_.jobs, "NUMBER", "How many threads compute; one for each core.")
      ->check(CLI::Range(1, kMostJobs).description(""));
  fill->add_flag("--quiet", fill_.quiet, "Show no progress on a terminal.");
  return fill;
}

void Commands::AddSettings() {
  app_.add_option_function<std::string>(
          "--now", [this](const std::string& text) { settings_.now = Moment(text); },
          "Set the clock: \"2024-01-15 09:30:00\".")
      ->type_name("TIME");
  app_.add_option_function<std::string>(
          "--convention",
          [this](const std::string& name) { settings_.convention = ConventionNamed(name); },
          "Set how dates are typed: mdy, dmy, mdy-buddhist\nor dmy-buddhist.")
      ->type_name("NAME");
  app_.add_flag("--example", settings_.example,
                "Run like the examples in the help: at 2024-01-15 09:30,\n"
                "with dmy-buddhist, a drive C:, registry and printer of\n"
                "its own, and no block cipher. Other drives, and paths\n"
                "without a drive, are the machine's.");
}

void Commands::Parse(const std::vector<std::string>& words) {
  std::vector<std::string> rest = WithoutArguments(words);
  std::ranges::reverse(rest);  // the order that the parser expects
  try {
    app_.parse(std::move(rest));
  } catch (const CLI::Success&) {
    throw;
  } catch (const CLI::ParseError& error) {
    throw WrongUse(std::string(error.what()) + "." + kMoreHelp);
  }
}

/// The words without the arguments of a call, which go to `call_`: the parser would read some of
/// them as options or lists, or as missing.
std::vector<std::string> Commands::WithoutArguments(const std::vector<std::string>& words) {
  std::vector<std::string> rest;
  const CLI::App* subcommand = nullptr;
  bool has_target = false;  // the first word after the subcommand
  bool verbatim = false;
  for (auto word = words.begin(); word != words.end(); ++word) {
    if (!verbatim && IsOption(*word)) {
      const CLI::Option& option = OptionOf(*word, app_, subcommand);
      rest.push_back(*word);
      const bool has_value =
          option.get_items_expected_max() > 0 && word->find('=') == std::string::npos;
      if (has_value && word + 1 != words.end()) rest.push_back(*++word);
    } else if (subcommand == nullptr) {
      subcommand = &SubcommandNamed(*word, app_);
      rest.push_back(*word);
    } else if (!verbatim && *word == kEndOfOptions) {
      verbatim = true;
    } else if (subcommand->get_name() != "call" || !std::exchange(has_target, true)) {
      rest.push_back(*word);
    } else {
      (verbatim ? call_.verbatim : call_.arguments).push_back(*word);
    }
  }
  return rest;
}

}  // namespace ZQ7Tool
