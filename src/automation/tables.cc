#include <ZQ7Standard/automation/tables.h>

#include <algorithm>
#include <utility>

namespace ZQ7Standard::Automation {
namespace {

bool IsForTables(const OperationInfo& operation) {
  return operation.effect != Effect::kRandom && operation.effect != Effect::kOutside;
}

/// The class that keeps a name; several may have it.
const ClassInfo& KeeperOf(std::string_view name) {
  const ClassInfo& first_choice = *FindClass("StandardObject");
  if (FindOperation(first_choice, name) != nullptr) return first_choice;
  return *std::ranges::find_if(
      Classes(), [name](const ClassInfo& owner) { return FindOperation(owner, name) != nullptr; });
}

std::string UniqueName(const ClassInfo& owner, std::string_view name) {
  const bool keeps = KeeperOf(name).name == owner.name;
  return keeps ? std::string(name) : std::string(owner.name).append("_").append(name);
}

}  // namespace

std::vector<TableOperation> TableOperations() {
  std::vector<TableOperation> operations;
  for (const ClassInfo& owner : Classes()) {
    for (const OperationInfo& operation : owner.operations) {
      if (!IsForTables(operation)) continue;
      operations.push_back({&owner, &operation, UniqueName(owner, operation.name)});
    }
  }
  return operations;
}

RowObjects::RowObjects(Services services) : services_(std::move(services)) {}

Value RowObjects::Call(const ClassInfo& owner, const OperationInfo& operation,
                       std::span<const Value> arguments) {
  if (operation.effect == Effect::kInstance) {
    return Invoke(Create(owner.name, services_), operation, {arguments});
  }
  auto object = objects_.find(&owner);
  if (object == objects_.end()) {
    object = objects_.emplace(&owner, Create(owner.name, services_)).first;
  }
  return Invoke(object->second, operation, {arguments});
}

}  // namespace ZQ7Standard::Automation
