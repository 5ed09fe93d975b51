#ifndef ZQ7STANDARD_TOOLS_ZQ7_OBJECTS_H_
#define ZQ7STANDARD_TOOLS_ZQ7_OBJECTS_H_

#include <ZQ7Standard/automation/invoke.h>

#include <vector>

namespace ZQ7Tool {

/// The parts of a call of the tool.
struct TypedCall {
  const ZQ7Standard::Automation::ClassInfo& owner;
  const ZQ7Standard::Automation::OperationInfo& operation;
  std::vector<ZQ7Standard::Automation::Value> positional = {};
  std::vector<ZQ7Standard::Automation::NamedArgument> named = {};
};

/// Calls `change` with each argument and its parameter. An argument without a parameter is left to
/// the call, which refuses it.
template <typename Change>
void ForEachArgument(TypedCall& call, const Change& change) {
  const auto& parameters = call.operation.parameters;
  for (std::size_t i = 0; i < call.positional.size() && i < parameters.size(); ++i) {
    change(parameters[i], call.positional[i]);
  }
  for (auto& [name, value] : call.named) {
    for (const auto& parameter : parameters) {
      if (ZQ7Standard::Automation::SameName(parameter.name, name)) change(parameter, value);
    }
  }
}

/// Replaces the texts among the arguments that stand for objects: the name of a class by a new
/// object of it; for a `PrintPicture`, the path of a file by its picture. Raises 13 for any other
/// text, and what a picture raises.
void MakeObjects(TypedCall& call, const ZQ7Standard::Services& services);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_OBJECTS_H_
