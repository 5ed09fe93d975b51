#ifndef ZQ7STANDARD_TOOLS_ZQ7_COMMANDS_H_
#define ZQ7STANDARD_TOOLS_ZQ7_COMMANDS_H_

#include <CLI/App.hpp>
#include <string>
#include <vector>

#include "call.h"
#include "fill/fill.h"
#include "host.h"

namespace ZQ7Tool {

/// The subcommands and options of the tool, and their values on a command line.
class Commands {
 public:
  Commands();

  /// Parses the words after the program's name. Throws `WrongUse` if they cannot be executed, and
  /// `CLI::Success` if they ask for help or the version.
  void Parse(const std::vector<std::string>& words);

  const CLI::App& App() const { return app_; }
  /// The name of the subcommand.
  std::string Chosen() const { return app_.get_subcommands().front()->get_name(); }

  const Settings& GetSettings() const { return settings_; }
  const CallWords& Call() const { return call_; }
  /// The class or member of `list` and `help`; empty if there is none.
  const std::string& Name() const { return name_; }
  const std::string& File() const { return file_; }
  bool Json() const { return json_; }
  const FillOptions& Fill() const { return fill_; }

 private:
  void AddSettings();
  CLI::App* AddFill();
  std::vector<std::string> WithoutArguments(const std::vector<std::string>& words);

  CLI::App app_;
  Settings settings_;
  CallWords call_;
  std::string name_;
  std::string file_ = "-";
  bool json_ = false;
  FillOptions fill_;
};

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_COMMANDS_H_
