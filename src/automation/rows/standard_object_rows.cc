#include <ZQ7Standard/StandardObject.h>

#include <memory>

#include "automation/classes.h"
#include "automation/rows.h"

namespace ZQ7Standard::Automation {

ClassInfo StandardObjectEntry() {
  ClassInfo info = {
      .name = "StandardObject",
      .help = "Dates, payment terms, numbers, lists, keys, bar codes, ciphers and digests.",
      .create = [](const Services& services) -> std::shared_ptr<void> {
        return std::make_shared<StandardObject>(services);
      }};
  AddDateOperations(info);
  AddNumberOperations(info);
  AddTextOperations(info);
  return info;
}

}  // namespace ZQ7Standard::Automation
