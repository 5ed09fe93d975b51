#include <array>
#include <sstream>
#include <stdexcept>
#include <string>

#include "markdown.h"
#include "members.h"
#include "tasks.h"
#include "worked_example.h"
#include "writers.h"

namespace ZQ7Pages {
namespace {

using namespace ZQ7Standard::Automation;

std::string MemberLink(const ClassInfo& owner, std::string_view member) {
  return Link(Code(member), Address(owner, member));
}

std::string TaskRow(const Task& task) {
  std::istringstream names{std::string(task.operations)};
  std::string links;
  std::string example;
  for (std::string name; names >> name;) {
    const auto [owner, operation, property, event] = ZQ7Tool::MemberNamed(name);
    if (operation == nullptr) throw std::runtime_error(name + " is not an operation");
    if (links.empty()) {
      const Example& chosen = operation->examples[task.example];
      const std::string result = chosen.error == 0 ? ExampleResult(*operation, chosen) : "";
      example =
          Code(ExampleCalls(*owner, *operation, chosen)) + (result.empty() ? "" : " → " + result);
    }
    links += (links.empty() ? "" : ", ") + MemberLink(*owner, operation->name);
  }
  return Row({std::string(task.task), links, example});
}

std::string TaskTables() {
  std::string tables;
  for (const Subject& subject : Subjects()) {
    std::string rows;
    for (const Task& task : subject.tasks) rows += TaskRow(task);
    tables += "\n### " + std::string(subject.name) + "\n" + Table({"To", "call", "as in"}, rows);
  }
  return tables;
}

std::string ClassTable() {
  std::string rows;
  for (const ClassInfo& owner : Classes()) {
    rows += Row({Link(Code(owner.name), std::string(owner.name) + ".md"), Prose(owner.help)});
  }
  return Table({"Class", ""}, rows);
}

/// The operations of each class, a line for each subject.
std::string MemberLists() {
  std::string lists;
  for (const ClassInfo& owner : Classes()) {
    if (owner.operations.empty()) continue;
    lists += "\n### " + std::string(owner.name) + "\n";
    const OperationInfo* last = nullptr;
    for (const OperationInfo& operation : owner.operations) {
      const bool begins = last == nullptr || operation.subject != last->subject;
      if (begins) {
        lists += "\n- " + Prose(operation.subject) + (operation.subject.empty() ? "" : ": ");
      } else {
        lists += ",\n  ";
      }
      lists += MemberLink(owner, operation.name);
      last = &operation;
    }
    lists += "\n";
  }
  return lists;
}

std::string WaitingList() {
  std::string rows;
  for (const ClassInfo& owner : Classes()) {
    std::string links;
    const auto add = [&](const std::string& link) { links += (links.empty() ? "" : ", ") + link; };
    for (const OperationInfo& operation : owner.operations) {
      if (operation.may_block) add(MemberLink(owner, operation.name));
    }
    for (const PropertyInfo& property : owner.properties) {
      if (property.may_block) add(Link(Code(property.name), Address(owner, "properties")));
    }
    if (!links.empty()) rows += Row({Code(owner.name), links});
  }
  return Table({"Class", "May wait"}, rows);
}

struct EffectRow {
  Effect effect;
  std::string_view use;
};
constexpr std::array<EffectRow, 5> kEffects = {{
    {Effect::kConvention, "the date convention"},
    {Effect::kClock, "the clock, and the date convention"},
    {Effect::kRandom, "random numbers"},
    {Effect::kInstance, "what the object keeps"},
    {Effect::kOutside, "files, devices, printers, the registry, message boxes, ciphers"},
}};

std::string EffectTable() {
  std::string rows;
  for (const auto& [effect, use] : kEffects) {
    std::string links;
    for (const ClassInfo& owner : Classes()) {
      for (const OperationInfo& operation : owner.operations) {
        if (operation.effect != effect) continue;
        links += (links.empty() ? "" : ", ") + MemberLink(owner, operation.name);
      }
    }
    rows += Row({std::string(use), links});
  }
  return Table({"Use", "Operations"}, rows);
}

}  // namespace

Fields IndexFields() {
  return {{"TASKS", TaskTables()},
          {"CLASSES", ClassTable()},
          {"MEMBERS", MemberLists()},
          {"EFFECTS", EffectTable()},
          {"WAITING", WaitingList()}};
}

}  // namespace ZQ7Pages
