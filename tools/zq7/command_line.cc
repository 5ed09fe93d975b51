#include "command_line.h"

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/message_box.h>

#include <array>
#include <cerrno>
#include <fstream>
#include <functional>
#include <nlohmann/json.hpp>
#include <system_error>

#include "batch.h"
#include "call.h"
#include "commands.h"
#include "file_name.h"
#include "fill/fill.h"
#include "help.h"
#include "json_value.h"
#include "members.h"
#include "plain_text.h"
#include "wrong_use.h"

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

int List(const Commands& commands, const Streams& streams) {
  if (commands.Name().empty()) {
    streams.out << ClassList(streams.width);
    return kDone;
  }
  const ClassInfo& owner = *MemberNamed(commands.Name()).owner;
  streams.out << ClassLine(owner, streams.width) << MemberList(owner, streams.width);
  return kDone;
}

int ShowHelp(const Commands& commands, const Streams& streams) {
  streams.out << (commands.Name().empty() ? commands.App().help("", CLI::AppFormatMode::Normal)
                                          : Help(commands.Name(), streams.width));
  return kDone;
}

int Call(const Commands& commands, const Streams& streams) {
  const Host host(commands.GetSettings(), StreamMessageBox(streams.err));
  const Value result = CallByWords(commands.Call(), host.Services());
  streams.out << (commands.Json() ? WriteJson(JsonOfValue(result)) + "\n" : PlainLines(result));
  return kDone;
}

/// Calls `use` with the file that is named, "-" being standard input; returns what it returns.
int WithInput(const std::string& name, const Streams& streams,
              const std::function<int(std::streambuf&)>& use) {
  std::filebuf file;
  std::string reason;
  try {
    if (name == "-") return use(*streams.in.rdbuf());
    errno = 0;
    if (file.open(FileNamed(name), std::ios::in | std::ios::binary) != nullptr) return use(file);
    reason = std::generic_category().message(errno);
  } catch (const std::ios_base::failure& failure) {
    reason = failure.code().message();  // a folder, for one, can be opened but not read
  }
  throw WrongUse("cannot read " + (name == "-" ? "standard input" : name) + ": " + reason);
}

int Batch(const Commands& commands, const Streams& streams) {
  return WithInput(commands.File(), streams, [&](std::streambuf& in) {
    RunBatch(in, streams.out, commands.GetSettings());
    return kDone;
  });
}

int Fill(const Commands& commands, const Streams& streams) {
  return WithInput(commands.File(), streams, [&](std::streambuf& in) {
    return FillFile(commands.File(), in, commands.Fill(), commands.GetSettings(), streams);
  });
}

struct Subcommand {
  std::string_view name;
  int (*carry_out)(const Commands& commands, const Streams& streams);
};

constexpr std::array<Subcommand, 5> kSubcommands = {
    {{"list", List}, {"help", ShowHelp}, {"call", Call}, {"batch", Batch}, {"fill", Fill}}};

int CarryOut(const std::vector<std::string>& words, const Streams& streams) {
  Commands commands;
  try {
    commands.Parse(words);
    for (const Subcommand& subcommand : kSubcommands) {
      if (subcommand.name == commands.Chosen()) return subcommand.carry_out(commands, streams);
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
