#include <ZQ7Standard/platform/registry.h>

#include <algorithm>
#include <map>
#include <string>
#include <utility>

#include "base/case_mapping.h"
#include "platform/registry_path.h"

namespace ZQ7Standard {
namespace {

struct Value {
  std::uint32_t type;
  std::string data;
};

/// The values of a key by name in lower case.
using Values = std::map<Text, Value>;

class MemoryKey final : public RegistryKey {
 public:
  explicit MemoryKey(Values& values) : values_(values) {}

  std::optional<QueriedValue> Query(TextView name, std::span<char> buffer) override {
    const auto found = values_.find(ToLower(name));
    if (found == values_.end()) return std::nullopt;
    const auto& [type, data] = found->second;
    if (data.size() > buffer.size()) return std::nullopt;
    std::ranges::copy(data, buffer.begin());
    return QueriedValue{type, data.size()};
  }

  bool Set(TextView name, std::uint32_t type, std::string_view data) override {
    values_.insert_or_assign(ToLower(name), Value{type, std::string(data)});
    return true;
  }

 private:
  Values& values_;
};

class StoreInMemory final : public Registry {
 public:
  std::unique_ptr<RegistryKey> Open(std::int32_t root, TextView path,
                                    std::uint32_t /*access*/) override {
    const auto key_path = KeyPath(path);
    if (!KeepsKeys(root) || !key_path) return nullptr;
    if (key_path->empty()) return std::make_unique<MemoryKey>(keys_[{root, Text()}]);
    const auto found = keys_.find({root, ToLower(*key_path)});
    if (found == keys_.end()) return nullptr;
    return std::make_unique<MemoryKey>(found->second);
  }

  std::unique_ptr<RegistryKey> Create(std::int32_t root, TextView path,
                                      const KeyCreation& /*creation*/) override {
    const auto key_path = KeyPath(path);
    if (!KeepsKeys(root) || !key_path) return nullptr;
    const Text folded = ToLower(*key_path);
    for (std::size_t end = folded.find(u'\\'); end != Text::npos;
         end = folded.find(u'\\', end + 1)) {
      keys_.try_emplace({root, folded.substr(0, end)});
    }
    return std::make_unique<MemoryKey>(keys_[{root, folded}]);
  }

 private:
  std::map<std::pair<std::int32_t, Text>, Values> keys_;  // by root, and path in lower case
};

}  // namespace

std::shared_ptr<Registry> MemoryRegistry() {
  return std::make_shared<StoreInMemory>();
}

}  // namespace ZQ7Standard
