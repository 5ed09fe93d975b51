#include "platform/linux/processors.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <map>

#include "formats/lines.h"
#include "platform/linux/machine_tree.h"

namespace ZQ7Standard {
namespace {

// The bits of EDX from the lowest, by the kernel's names; "" has none.
constexpr auto kFlags = std::to_array<std::string_view>(
    {"fpu",  "vme",  "de",   "pse", "tsc",  "msr", "pae",   "mce", "cx8",     "apic", "",
     "sep",  "mtrr", "pge",  "mca", "cmov", "pat", "pse36", "pn",  "clflush", "",     "dts",
     "acpi", "mmx",  "fxsr", "sse", "sse2", "ss",  "ht",    "tm",  "ia64",    "pbe"});

constexpr std::uint32_t kLongestFamily = 15;

using Fields = std::map<std::string_view, std::string_view>;

std::string_view Trimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  return text.substr(0, text.find_last_not_of(" \t") + 1);
}

/// Takes the fields up to the next empty line.
Fields TakeFields(std::string_view& rest) {
  Fields fields;
  while (!rest.empty()) {
    const std::string_view line = TakeLine(rest);
    if (line.empty()) break;
    const std::size_t colon = std::min(line.find(':'), line.size());
    fields[Trimmed(line.substr(0, colon))] = Trimmed(line.substr(std::min(colon + 1, line.size())));
  }
  return fields;
}

std::uint32_t NumberIn(const Fields& fields, std::string_view name) {
  const auto field = fields.find(name);
  std::uint32_t number = 0;
  if (field == fields.end()) return number;
  std::from_chars(field->second.data(), field->second.data() + field->second.size(), number);
  return number;
}

std::string BetweenBlanks(std::string_view text) {
  return std::string(" ").append(text).append(" ");
}

std::uint32_t FeatureBits(std::string_view flags) {
  const std::string all = BetweenBlanks(flags);
  std::uint32_t bits = 0;
  for (std::size_t i = 0; i < kFlags.size(); ++i) {
    const std::string flag = BetweenBlanks(kFlags[i]);
    if (!kFlags[i].empty() && all.find(flag) != std::string::npos) bits |= 1U << i;
  }
  return bits;
}

/// Family, model and stepping in the bits of EAX.
std::uint32_t Signature(const Fields& fields) {
  const std::uint32_t family = NumberIn(fields, "cpu family");
  const std::uint32_t model = NumberIn(fields, "model");
  const std::uint32_t base = std::min(family, kLongestFamily);
  return (family - base) << 20U | (model >> 4U & 0xFU) << 16U | base << 8U | (model & 0xFU) << 4U |
         (NumberIn(fields, "stepping") & 0xFU);
}

void AppendHex(Text& text, std::uint32_t number) {
  constexpr TextView kDigits = u"0123456789ABCDEF";
  for (unsigned shift = 32; shift > 0; shift -= 4) text += kDigits[number >> (shift - 4) & 0xFU];
}

Text IdOf(const Fields& fields) {
  Text id;
  const auto flags = fields.find("flags");
  if (flags == fields.end() || !fields.contains("cpu family")) return id;
  AppendHex(id, FeatureBits(flags->second));
  AppendHex(id, Signature(fields));
  return id;
}

/// Of the first of its threads; `threads` counts for machines that tell no cores.
Processor ProcessorOf(const Fields& fields, int threads) {
  const auto name = fields.find("model name");
  const std::uint32_t cores = NumberIn(fields, "cpu cores");
  return {
      .name = name == fields.end() ? Text() : CleanText(name->second),
      .cores = FromUtf8(std::to_string(cores > 0 ? cores : static_cast<std::uint32_t>(threads))),
      .id = IdOf(fields)};
}

}  // namespace

std::vector<Processor> ReadProcessors(std::string_view cpuinfo) {
  struct Package {
    Fields first;
    int threads = 0;
  };
  std::map<std::uint32_t, Package> packages;
  while (!cpuinfo.empty()) {
    Fields fields = TakeFields(cpuinfo);
    if (!fields.contains("processor")) continue;
    Package& package = packages[NumberIn(fields, "physical id")];
    if (package.threads++ == 0) package.first = std::move(fields);
  }
  std::vector<Processor> processors;
  processors.reserve(packages.size());
  for (const auto& [number, package] : packages) {
    processors.push_back(ProcessorOf(package.first, package.threads));
  }
  return processors;
}

}  // namespace ZQ7Standard
