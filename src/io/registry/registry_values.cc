#include <ZQ7Standard/RegistryObject.h>

#include <array>
#include <string>
#include <utility>

#include "base/code_page.h"
#include "io/failures.h"
#include "platform/service_set.h"

namespace ZQ7Standard {
namespace {

constexpr std::size_t kTextBuffer = 1024;

// How updates create a key. The length is not that of the platform's structure, and the class has
// no meaning; but hosts' existing keys were created this way.
constexpr KeyCreation kCreation = {
    .key_class = u"1",
    .options = kKeyNonVolatile,
    .access = kKeyAllAccess,
    .security = {.length = 50, .descriptor = nullptr, .inherit = true},
};

using NumberBytes = std::array<char, sizeof(std::int32_t)>;

NumberBytes BytesOf(std::int32_t number) {
  NumberBytes bytes;
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(number >> (8 * i));
  return bytes;
}

std::int32_t NumberOf(const NumberBytes& bytes) {
  std::uint32_t number = 0;
  for (std::size_t i = bytes.size(); i-- > 0;) {
    number = (number << 8) | static_cast<unsigned char>(bytes[i]);
  }
  return static_cast<std::int32_t>(number);
}

/// The path of a key or the name of a value as registries receive it: up to its first NUL, in
/// characters of the code page.
Text RegistryText(TextView name) {
  return FromCodePage(ToCodePage(name.substr(0, name.find(u'\0'))));
}

/// Reads the value into `buffer`; nullopt if it cannot be read or is longer. A host's registry may
/// throw, and may claim to have written more than fits.
std::optional<QueriedValue> Read(Registry& registry, std::int32_t root, TextView keyname,
                                 TextView subkeyname, std::span<char> buffer) {
  std::optional<QueriedValue> value;
  Try([&] {
    const auto key = registry.Open(root, RegistryText(keyname), kKeyAllAccess);
    if (key) value = key->Query(RegistryText(subkeyname), buffer);
  });
  return value && value->size <= buffer.size() ? value : std::nullopt;
}

/// Whether the value could NOT be written.
bool WriteFails(Registry& registry, std::int32_t root, TextView keyname, TextView subkeyname,
                std::uint32_t type, std::string_view data) {
  bool written = false;
  Try([&] {
    const auto key = registry.Create(root, RegistryText(keyname), kCreation);
    written = key && key->Set(RegistryText(subkeyname), type, data);
  });
  return !written;
}

}  // namespace

RegistryObject::RegistryObject() : RegistryObject(Services{}) {}

RegistryObject::RegistryObject(Services services)
    : services_(std::make_shared<ServiceSet>(std::move(services))) {}

std::int32_t RegistryObject::GetKeyValueLong(std::int32_t keyroot, TextView keyname,
                                             TextView subkeyname) const {
  NumberBytes buffer{};
  const auto value = Read(services_->Registry(), keyroot, keyname, subkeyname, buffer);
  return value && value->type == kRegistryNumber ? NumberOf(buffer) : 0;
}

Text RegistryObject::GetKeyValueString(std::int32_t keyroot, TextView keyname,
                                       TextView subkeyname) const {
  std::array<char, kTextBuffer> buffer{};
  const auto value = Read(services_->Registry(), keyroot, keyname, subkeyname, buffer);
  if (!value || value->type != kRegistryText) return {};
  std::string_view bytes(buffer.data(), value->size);
  if (bytes.ends_with('\0')) bytes.remove_suffix(1);
  return FromCodePage(bytes);
}

bool RegistryObject::UpdateKeyValueLong(std::int32_t keyroot, TextView keyname, TextView subkeyname,
                                        std::int32_t keyval) const {
  const NumberBytes bytes = BytesOf(keyval);
  return WriteFails(services_->Registry(), keyroot, keyname, subkeyname, kRegistryNumber,
                    {bytes.data(), bytes.size()});
}

bool RegistryObject::UpdateKeyValueString(std::int32_t keyroot, TextView keyname,
                                          TextView subkeyname, TextView keyval) const {
  return WriteFails(services_->Registry(), keyroot, keyname, subkeyname, kRegistryText,
                    ToCodePage(keyval));
}

}  // namespace ZQ7Standard
