#include "command_line.h"

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/message_box.h>

#include <array>
#include <cerrno>
#include <fstream>
#include <nlohmann/json.hpp>
#include <system_error>

#include "batch.h"
#include "call.h"
#include "commands.h"
#include "help.h"
#include "json_value.h"
#include "members.h"
#include "plain_text.h"
#include "wrong_use.h"

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

void List(const Commands& commands, const Streams& streams) {
  if (commands.Name().empty()) {
    streams.out << ClassList(streams.width);
    return;
  }
  const ClassInfo& owner = *MemberNamed(commands.Name()).owner;
  streams.out << ClassLine(owner, streams.width) << MemberList(owner, streams.width);
}

void ShowHelp(const Commands& commands, const Streams& streams) {
  streams.out << (commands.Name().empty() ? commands.App().help("", CLI::AppFormatMode::Normal)
                                          : Help(commands.Name(), streams.width));
}

void Call(const Commands& commands, const Streams& streams) {
  const Host host(commands.GetSettings(), StreamMessageBox(streams.err));
  const Value result = CallByWords(commands.Call(), host.Services());
  streams.out << (commands.Json() ? WriteJson(JsonOfValue(result)) + "\n" : PlainLines(result));
}

void Batch(const Commands& commands, const Streams& streams) {
  const std::string& name = commands.File();
  std::filebuf file;
  errno = 0;
  try {
    if (name == "-") return RunBatch(*streams.in.rdbuf(), streams.out, commands.GetSettings());
    if (file.open(name, std::ios::in | std::ios::binary) != nullptr) {
      return RunBatch(file, streams.out, commands.GetSettings());
    }
  } catch (const std::ios_base::failure&) {
    // Reported below: a folder, for one, can be opened but not read.
  }
  const std::string reason = std::generic_category().message(errno);
  throw WrongUse("cannot read " + (name == "-" ? "standard input" : name) + ": " + reason);
}

struct Subcommand {
  std::string_view name;
  void (*carry_out)(const Commands& commands, const Streams& streams);
};

constexpr std::array<Subcommand, 4> kSubcommands = {
    {{"list", List}, {"help", ShowHelp}, {"call", Call}, {"batch", Batch}}};

int CarryOut(const std::vector<std::string>& words, const Streams& streams) {
  Commands commands;
  try {
    commands.Parse(words);
    for (const Subcommand& subcommand : kSubcommands) {
      if (subcommand.name == commands.Chosen()) subcommand.carry_out(commands, streams);
    }
  } catch (const CLI::Success& asked) {
    return commands.App().exit(asked, streams.out, streams.err);
  }
  return kDone;
}

int Complain(const Streams& streams, int status, const std::string& what) {
  streams.err << "zq7: " << what << std::endl;
  return status;
}

}  // namespace

int Run(const std::vector<std::string>& words, const Streams& streams) {
  int status = kDone;
  try {
    status = CarryOut(words, streams);
  } catch (const WrongUse& mistake) {
    status = Complain(streams, kWrongUse, mistake.what());
  } catch (const RunTimeError& error) {
    status = Complain(streams, kFailed,
                      "run-time error " + std::to_string(error.Number()) + ": " + error.what());
  } catch (const std::exception& error) {
    status = Complain(streams, kFailed, error.what());
  }
  if (streams.out.flush()) return status;
  return Complain(streams, kFailed, "cannot write to standard output");
}

}  // namespace ZQ7Tool
