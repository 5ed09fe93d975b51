#ifndef ZQ7STANDARD_SRC_AUTOMATION_ENTRY_H_
#define ZQ7STANDARD_SRC_AUTOMATION_ENTRY_H_

#include <ZQ7Standard/automation/catalogue.h>
#include <ZQ7Standard/automation/invoke.h>

#include <cstddef>
#include <memory>
#include <span>
#include <string_view>
#include <unordered_map>
#include <vector>

/// What the library keeps of a public class besides its catalogue data: how to create instances and
/// reach members.
namespace ZQ7Standard::Automation {

struct CallContext;

/// Calls an operation with one value for each parameter.
using CallFunction = Value (*)(void* instance, std::span<const Value* const> arguments,
                               const CallContext& context);
using ReadFunction = Value (*)(void* instance);
using WriteFunction = void (*)(void* instance, const Value& value, const CallContext& context);

/// Makes an instance.
using CreateFunction = std::shared_ptr<void> (*)(const Services& services);
/// Sends the events of an instance to `sink` until the result is released.
using SubscribeFunction = std::shared_ptr<void> (*)(std::shared_ptr<void> instance,
                                                    std::shared_ptr<EventSink> sink);

/// An operation or a property and the functions that reach it; null for those it does not have.
struct MemberEntry {
  MemberInfo info = {};
  CallFunction call = nullptr;
  ReadFunction read = nullptr;
  WriteFunction write = nullptr;
};

struct NamesAreSame {
  bool operator()(std::string_view a, std::string_view b) const { return SameName(a, b); }
};
struct NameHash {
  std::size_t operator()(std::string_view name) const;
};
template <typename Found>
using NameIndex = std::unordered_map<std::string_view, Found, NameHash, NamesAreSame>;

struct ClassEntry {
  const ClassInfo* info;
  CreateFunction create = nullptr;
  SubscribeFunction subscribe = nullptr;
  std::vector<MemberEntry> members = {};  ///< by number
  NameIndex<int> numbers = {};            ///< of operations and properties, by name
};

/// The entry of a class; null if there is none with that name.
const ClassEntry* FindEntry(std::string_view class_name);

/// The operation or property of a class; null if there is none with that name.
const MemberEntry* FindMemberEntry(const ClassEntry& owner, std::string_view name);

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_SRC_AUTOMATION_ENTRY_H_
