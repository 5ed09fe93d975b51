#include <ZQ7Standard/RegistryObject.h>

#include <memory>

#include "automation/catalogue_rows.h"
#include "automation/classes.h"

namespace ZQ7Standard::Automation {
namespace {

using enum Effect;

void AddValues(ClassRow& info) {
  constexpr auto kKey = u"Software\\Shop";
  const auto root = MemberOf<KetRootType>("keyroot");
  const std::vector<Call> number = {
      {"UpdateKeyValueLong", {HKEY_CURRENT_USER, kKey, u"LastNumber", 42}}};
  const std::vector<Call> text = {
      {"UpdateKeyValueString", {HKEY_CURRENT_USER, kKey, u"Branch", u"สาขา 1"}}};
  AddOperations(
      info,
      MayBlock({Operation<&RegistryObject::GetKeyValueLong>(
                    1, "GetKeyValueLong", kOutside, {root, "keyname", "subkeyname"},
                    {{{HKEY_CURRENT_USER, kKey, u"LastNumber"}, 42, number},
                     {{HKEY_CURRENT_USER, kKey, u"Branch"}, 0, text}}),
                Operation<&RegistryObject::GetKeyValueString>(
                    2, "GetKeyValueString", kOutside, {root, "keyname", "subkeyname"},
                    {{{HKEY_CURRENT_USER, kKey, u"Branch"}, u"สาขา 1", text}}),
                Operation<&RegistryObject::UpdateKeyValueLong>(
                    3, "UpdateKeyValueLong", kOutside, {root, "keyname", "subkeyname", "keyval"},
                    {{{HKEY_CURRENT_USER, kKey, u"LastNumber", 42}, false},
                     {{HKEY_PERFORMANCE_DATA, kKey, u"LastNumber", 42}, true}}),
                Operation<&RegistryObject::UpdateKeyValueString>(
                    4, "UpdateKeyValueString", kOutside, {root, "keyname", "subkeyname", "keyval"},
                    {{{HKEY_CURRENT_USER, kKey, u"Branch", u"สาขา 1"}, false}})}));
}

void AddCipher(ClassRow& info) {
  AddOperations(
      info,
      {Operation<&RegistryObject::Encrypt>(5, "Encrypt", kNone, {"StringInput", "PassWord"},
                                           {{{u"abc", u"K"}, u"*)("}, {{u"abc", u""}, Raises(11)}}),
       Operation<&RegistryObject::Decrypt>(6, "Decrypt", kNone, {"EncryptedTextInput", "PassWord"},
                                           {{{u"*)(", u"K"}, u"abc"}})});
}

}  // namespace

ClassRow RegistryObjectRows() {
  ClassRow info = {.name = "RegistryObject",
                   .create = [](const Services& services) -> std::shared_ptr<void> {
                     return std::make_shared<RegistryObject>(services);
                   }};
  AddValues(info);
  AddCipher(info);
  return info;
}

}  // namespace ZQ7Standard::Automation
