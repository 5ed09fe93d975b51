#include <ZQ7Standard/StandardObject.h>

#include <memory>

#include "automation/classes.h"
#include "automation/rows.h"

namespace ZQ7Standard::Automation {

ClassRow StandardObjectEntry() {
  ClassRow info = {.name = "StandardObject",
                   .create = [](const Services& services) -> std::shared_ptr<void> {
                     return std::make_shared<StandardObject>(services);
                   }};
  AddDateOperations(info);
  AddNumberOperations(info);
  AddTextOperations(info);
  return info;
}

}  // namespace ZQ7Standard::Automation
