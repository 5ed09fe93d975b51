#include <ZQ7Standard/automation/catalogue.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "automation/catalogue_rows.h"
#include "automation/classes.h"
#include "automation/documentation.h"
#include "automation/entry.h"
#include "base/ascii.h"

namespace ZQ7Standard::Automation {
namespace {

constexpr char16_t FoldedCharacter(char c) {
  return AsciiUpper(static_cast<unsigned char>(c));
}

template <typename Info>
void Document(Info& info, const Documentation& said) {
  info.help = said.help;
  info.details = said.details;
}

void DocumentParameters(std::vector<ParameterInfo>& parameters, const std::string& member) {
  for (ParameterInfo& parameter : parameters) {
    parameter.help = ParameterHelp(member, parameter.name);
  }
}

/// Fills in the documentation of the headers; a property takes its getter's, or else its setter's.
void DocumentAll(ClassInfo& owner) {
  Document(owner, DocumentationOf(owner.name));
  for (OperationInfo& operation : owner.operations) {
    const std::string name = QualifiedName(owner, operation.name);
    const Documentation said = DocumentationOf(name);
    operation.subject = said.subject;
    Document(operation, said);
    DocumentParameters(operation.parameters, name);
  }
  for (PropertyInfo& property : owner.properties) {
    const std::string name = property.readable ? "" : "Set";
    Document(property, DocumentationOf(QualifiedName(owner, name + std::string(property.name))));
  }
  for (EventInfo& event : owner.events) {
    const std::string name = QualifiedName(owner, event.name);
    Document(event, DocumentationOf(name));
    DocumentParameters(event.parameters, name);
  }
}

ClassInfo InfoOf(const ClassRow& row) {
  ClassInfo info = {.name = row.name, .events = row.events, .creatable = row.create != nullptr};
  for (const OperationRow& operation : row.operations) info.operations.push_back(operation.info);
  for (const PropertyRow& property : row.properties) info.properties.push_back(property.info);
  DocumentAll(info);
  return info;
}

/// Adds a member to the indexes that find it by name and number.
void AddMember(ClassEntry& entry, std::string_view name, int number, const MemberEntry& member) {
  const auto place = static_cast<std::size_t>(number);
  if (place >= entry.members.size()) entry.members.resize(place + 1);
  entry.members[place] = member;
  entry.numbers.emplace(name, number);
}

ClassEntry EntryOf(const ClassRow& row, const ClassInfo& owner) {
  ClassEntry entry = {.info = &owner, .create = row.create, .subscribe = row.subscribe};
  for (std::size_t i = 0; i < row.operations.size(); ++i) {
    const OperationInfo& info = owner.operations[i];
    AddMember(entry, info.name, info.number,
              {.info = {.operation = &info}, .call = row.operations[i].call});
  }
  for (std::size_t i = 0; i < row.properties.size(); ++i) {
    const PropertyInfo& info = owner.properties[i];
    AddMember(entry, info.name, info.number,
              {.info = {.property = &info},
               .read = row.properties[i].read,
               .write = row.properties[i].write});
  }
  return entry;
}

std::vector<ClassRow> AllRows() {
  return {ASCIIObjectRows(),    BahtStringObjectRows(), BitByteObjectRows(),    CImageInfoRows(),
          DiskObjectRows(),     GridValueObjectRows(),  PeripheralObjectRows(), PrintObjectRows(),
          RegistryObjectRows(), StandardObjectRows(),   PrintPictureRows(),     SerialPortRows()};
}

/// The classes and their index by name, built on first use.
class Catalogue {
 public:
  static const Catalogue& Get() {
    static const Catalogue catalogue;
    return catalogue;
  }

  std::span<const ClassInfo> Classes() const { return classes_; }
  const ClassEntry* FindEntry(std::string_view name) const {
    const auto found = entries_.find(name);
    return found == entries_.end() ? nullptr : &found->second;
  }

 private:
  Catalogue() {
    const std::vector<ClassRow> rows = AllRows();
    for (const ClassRow& row : rows) classes_.push_back(InfoOf(row));
    for (std::size_t i = 0; i < rows.size(); ++i) {
      entries_.emplace(rows[i].name, EntryOf(rows[i], classes_[i]));
    }
  }

  std::vector<ClassInfo> classes_;
  NameIndex<ClassEntry> entries_;
};

template <typename Info>
const Info* FindNamed(std::span<const Info> entries, std::string_view name) {
  const auto found =
      std::ranges::find_if(entries, [&](const Info& info) { return SameName(info.name, name); });
  return found == entries.end() ? nullptr : &*found;
}

}  // namespace

bool SameName(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, FoldedCharacter, FoldedCharacter);
}

std::string QualifiedName(const ClassInfo& owner, std::string_view member) {
  return std::string(owner.name).append(".").append(member);
}

/// The FNV-1a hash of a name.
std::size_t NameHash::operator()(std::string_view name) const {
  std::uint64_t hash = 14695981039346656037U;
  for (const char c : name) hash = (hash ^ FoldedCharacter(c)) * 1099511628211U;
  return static_cast<std::size_t>(hash);
}

const ClassEntry* FindEntry(std::string_view class_name) {
  return Catalogue::Get().FindEntry(class_name);
}

const MemberEntry* FindMemberEntry(const ClassEntry& owner, std::string_view name) {
  const auto found = owner.numbers.find(name);
  if (found == owner.numbers.end()) return nullptr;
  return &owner.members[static_cast<std::size_t>(found->second)];
}

std::span<const ClassInfo> Classes() {
  return Catalogue::Get().Classes();
}

const ClassInfo* FindClass(std::string_view name) {
  const ClassEntry* const entry = FindEntry(name);
  return entry == nullptr ? nullptr : entry->info;
}

const EnumerationInfo* FindEnumeration(std::string_view name) {
  return FindNamed(Enumerations(), name);
}

MemberInfo FindMember(const ClassInfo& owner, std::string_view name) {
  const ClassEntry* const entry = FindEntry(owner.name);
  const MemberEntry* const member = entry == nullptr ? nullptr : FindMemberEntry(*entry, name);
  return member == nullptr ? MemberInfo() : member->info;
}

const OperationInfo* FindOperation(const ClassInfo& owner, std::string_view name) {
  return FindMember(owner, name).operation;
}

const PropertyInfo* FindProperty(const ClassInfo& owner, std::string_view name) {
  return FindMember(owner, name).property;
}

const EventInfo* FindEvent(const ClassInfo& owner, std::string_view name) {
  const ClassInfo* const found = FindClass(owner.name);
  return found == nullptr ? nullptr : FindNamed(std::span(found->events), name);
}

}  // namespace ZQ7Standard::Automation
