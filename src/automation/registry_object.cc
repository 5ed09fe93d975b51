#include <ZQ7Standard/RegistryObject.h>

#include <memory>

#include "automation/classes.h"
#include "automation/rows.h"

namespace ZQ7Standard::Automation {

ClassInfo RegistryObjectEntry() {
  ClassInfo info = {.name = "RegistryObject",
                    .help = "Registry values, and a password cipher for texts kept there.",
                    .create = [](const HostServices&) -> std::shared_ptr<void> {
                      return std::make_shared<RegistryObject>();
                    }};
  AddSubject(
      info, "Texts under a password",
      {Operation<&RegistryObject::Encrypt>("Encrypt", {"StringInput", "PassWord"},
                                           "Hides a text from a glance, under a password.",
                                           {{{u"abc", u"K"}, u"*)("}, {{u"abc", u""}, Raises(11)}}),
       Operation<&RegistryObject::Decrypt>("Decrypt", {"EncryptedTextInput", "PassWord"},
                                           "Undoes `Encrypt`.", {{{u"*)(", u"K"}, u"abc"}})});
  return info;
}

}  // namespace ZQ7Standard::Automation
