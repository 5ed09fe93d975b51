#ifndef ZQ7STANDARD_TOOLS_ZQ7_OBJECTS_H_
#define ZQ7STANDARD_TOOLS_ZQ7_OBJECTS_H_

#include <ZQ7Standard/automation/invoke.h>

#include <vector>

namespace ZQ7Tool {

/// What a call of the tool is made of.
struct TypedCall {
  const ZQ7Standard::Automation::ClassInfo& owner;
  const ZQ7Standard::Automation::OperationInfo& operation;
  std::vector<ZQ7Standard::Automation::Value> positional = {};
  std::vector<ZQ7Standard::Automation::NamedArgument> named = {};
};

/// Calls `change` with each argument and its parameter. An argument of which there is no
/// parameter is left to the call, which refuses it.
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

/// Makes the objects that texts stand for among the arguments: a new one of the class that
/// the text names; the picture of a file, by its path, in place of a `PrintPicture`. Raises
/// 13 for any other text, and what a picture raises.
void MakeObjects(TypedCall& call, const ZQ7Standard::Services& services);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_OBJECTS_H_
