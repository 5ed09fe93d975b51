#include <ZQ7Standard/platform/registry.h>

namespace ZQ7Standard {
namespace {

/// The registry of a library built without a registry store.
class UnreachableRegistry final : public Registry {
 public:
  std::unique_ptr<RegistryKey> Open(std::int32_t /*root*/, TextView /*path*/,
                                    std::uint32_t /*access*/) override {
    return nullptr;
  }
  std::unique_ptr<RegistryKey> Create(std::int32_t /*root*/, TextView /*path*/,
                                      const KeyCreation& /*creation*/) override {
    return nullptr;
  }
};

}  // namespace

std::shared_ptr<Registry> SystemRegistry(const RegistryFolders& /*folders*/) {
  return std::make_shared<UnreachableRegistry>();
}

}  // namespace ZQ7Standard
