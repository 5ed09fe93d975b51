#include <ZQ7Standard/StandardObject.h>

#include <memory>

#include "automation/catalogue_rows.h"
#include "automation/classes.h"

namespace ZQ7Standard::Automation {

ClassRow StandardObjectRows() {
  ClassRow info = {.name = "StandardObject",
                   .create = [](const Services& services) -> std::shared_ptr<void> {
                     return std::make_shared<StandardObject>(services);
                   }};
  AddDateOperations(info);
  AddNumberOperations(info);
  AddTextOperations(info);
  AddSystemOperations(info);
  AddMachineOperations(info);
  AddNetworkOperations(info);
  return info;
}

}  // namespace ZQ7Standard::Automation
