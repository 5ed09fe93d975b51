// Calls every operation that takes a text with 64 KiB and then 1 MiB of texts that are hard on it,
// and fails if an operation's CPU time grows more than 64 times: linear time grows 16 times,
// quadratic 256 times. It measures by hand, because a benchmark that runs until its time is stable
// would never end if one of these texts were quadratic.

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/automation/invoke.h>
#include <ZQ7Standard/platform/message_box.h>

#include <algorithm>
#include <array>
#include <ctime>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "host.h"
#include "objects.h"
#include "tests/support/temp_folder.h"

namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

constexpr std::size_t kSmall = 64 * 1024 / sizeof(char16_t);
constexpr std::size_t kLarge = 1024 * 1024 / sizeof(char16_t);
constexpr double kLimit = 64;
// An operation that reads a character more than once takes longer for 64 KiB.
constexpr double kTooShortToGoOn = 20e-6;
// Below this, 1 MiB measures the allocator and the caches.
constexpr double kTooShortToTell = 0.005;
// 1 MiB would take 256 times as long.
constexpr double kTooLongToGoOn = 2;
constexpr int kRepetitions = 3;

// The texts repeated: digits, blanks and marks that readers skip, separators, what operations
// remove or replace, and characters that case or code page must look up.
constexpr auto kPatterns = std::to_array<TextView>(
    {u"a",   u"0",   u"9",       u" ",      u"\t", u"\r\n", u",",      u";",  u"%",
     u"/",   u":",   u".",       u"-",      u"+",  u"\\",   u"'",      u"=",  u"1.",
     u"1+",  u"0 ",  u"0,0.",    u"1,",     u"a ", u"AM",   u"PM",     u"E1", u";;",
     u"$#$", u"a;",  u"..\\",    u"[a]=",   u"กำ", u"baht", u"satang", u"é",  u"บาทเอ็ดสตางค์",
     u"15/", u"Jan", u"C:\\a\\", u"\xD83D", u"เอ็ด"});

// Appended, so that a reader from the end finds something.
constexpr auto kEndings = std::to_array<TextView>({u"", u"z5"});

Text Repeated(TextView pattern, std::size_t size, TextView ending) {
  Text text;
  while (text.size() < size) text.append(pattern);
  return text.append(ending);
}

std::vector<std::size_t> TextParameters(const OperationInfo& operation) {
  std::vector<std::size_t> texts;
  for (std::size_t i = 0; i < operation.parameters.size(); ++i) {
    if (operation.parameters[i].type.type == Type::kText) texts.push_back(i);
  }
  return texts;
}

/// One way to make an operation work hard: the texts of its parameters.
struct Probe {
  const ClassInfo& owner;
  const OperationInfo& operation;
  /// The parameter with the long text; the number of parameters if the first two texts are long.
  /// More would multiply: a long separator between many items makes a longer result.
  std::size_t parameter;
  TextView pattern;
  TextView ending;

  std::vector<Value> Arguments(std::size_t size) const {
    std::vector<Value> arguments = operation.examples.front().arguments;
    arguments.resize(operation.parameters.size());
    if (parameter < arguments.size()) {
      arguments[parameter] = Repeated(pattern, size, ending);
      return arguments;
    }
    const std::vector<std::size_t> texts = TextParameters(operation);
    arguments[texts[0]] = Repeated(pattern, size, {});
    // For searches: almost the other text, again and again.
    arguments[texts[1]] = Repeated(pattern, size / 2, ending);
    return arguments;
  }
};

/// The CPU time of one call in seconds, on a new object of a new machine, so that no text stays in
/// a file or the registry. Refused texts are measured too.
double Seconds(const Probe& probe, std::size_t size) {
  const ZQ7Tool::Host host({.example = true}, std::make_shared<RecordingMessageBox>());
  const Object object = Create(probe.owner.name, host.Services());
  for (const Call& call : probe.operation.examples.front().before) {
    Invoke(object, call.operation, {call.arguments});
  }
  ZQ7Tool::TypedCall call = {probe.owner, probe.operation, probe.Arguments(size)};
  const std::clock_t start = std::clock();
  try {
    ZQ7Tool::MakeObjects(call, host.Services());
    Invoke(object, probe.operation, {call.positional});
  } catch (const RunTimeError&) {
  }
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

struct Growth {
  double small = 0;
  double large = 0;
  TextView pattern;
  TextView ending;

  double Ratio() const {
    if (small > kTooLongToGoOn) return 4 * kLimit;
    return large < kTooShortToTell ? 0 : large / small;
  }
};

Growth MeasureOnce(const Probe& probe) {
  Growth growth = {.pattern = probe.pattern, .ending = probe.ending};
  growth.small = Seconds(probe, kSmall);
  const bool goes_on = growth.small >= kTooShortToGoOn && growth.small <= kTooLongToGoOn;
  if (goes_on) growth.large = Seconds(probe, kLarge);
  return growth;
}

/// The smallest growth of several measurements if the first is too large: the machine is never
/// idle.
Growth Measure(const Probe& probe) {
  Growth least = MeasureOnce(probe);
  for (int i = 1; i < kRepetitions && least.Ratio() > kLimit; ++i) {
    const Growth again = MeasureOnce(probe);
    if (again.Ratio() < least.Ratio()) least = again;
  }
  return least;
}

/// The parameters to try: each text alone, and two together if there are several.
std::vector<std::size_t> ParametersToTry(const OperationInfo& operation) {
  std::vector<std::size_t> tried = TextParameters(operation);
  if (tried.size() > 1) tried.push_back(operation.parameters.size());
  return tried;
}

/// The pattern for which the operation's time grew most, or was longest.
Growth Worst(const ClassInfo& owner, const OperationInfo& operation) {
  Growth worst;
  for (const std::size_t parameter : ParametersToTry(operation)) {
    for (const TextView pattern : kPatterns) {
      for (const TextView ending : kEndings) {
        const Growth growth = Measure({owner, operation, parameter, pattern, ending});
        const auto rank = [](const Growth& g) { return std::pair(g.Ratio(), g.large); };
        if (rank(growth) > rank(worst)) worst = growth;
      }
    }
  }
  return worst;
}

/// A pattern as shown in a table.
std::string Shown(TextView pattern) {
  std::string shown;
  for (const char c : Utf8(pattern)) {
    constexpr std::string_view kLetters = "trn";
    const std::size_t control = std::string_view("\t\r\n").find(c);
    if (control == std::string_view::npos) {
      shown += c;
    } else {
      shown.append("\\").append(1, kLetters[control]);
    }
  }
  return shown;
}

bool TakesText(const OperationInfo& operation) {
  return !operation.examples.empty() && !TextParameters(operation).empty();
}

}  // namespace

/// With arguments: only operations whose names contain one of them.
int main(int argc, char** argv) {
  // The folder for paths that the patterns happen to name.
  const TempFolder folder;
  std::filesystem::current_path(folder.Native());
  const std::vector<std::string> wanted(argv + 1, argv + argc);
  bool passed = true;
  std::cout
      << "| Operation | 64 KiB, ms | 1 MiB, ms | Times | Worst text |\n|---|--:|--:|--:|---|\n";
  for (const ClassInfo& owner : Classes()) {
    for (const OperationInfo& operation : owner.operations) {
      const std::string name = std::string(owner.name) + "." + std::string(operation.name);
      const auto in_name = [&](const std::string& part) { return name.find(part) != name.npos; };
      if (!TakesText(operation)) continue;
      if (!wanted.empty() && std::ranges::none_of(wanted, in_name)) continue;
      const Growth worst = Worst(owner, operation);
      const bool failed = worst.Ratio() > kLimit;
      passed = passed && !failed;
      std::cout << "| " << name << " | " << std::fixed << std::setprecision(2) << worst.small * 1e3
                << " | " << worst.large * 1e3 << " | " << std::setprecision(0) << worst.Ratio()
                << (failed ? " TOO MANY" : "") << " | `" << Shown(worst.pattern) << "`…`"
                << Shown(worst.ending) << "` |" << std::endl;
    }
  }
  return passed ? 0 : 1;
}
