#include <ZQ7Standard/StandardObject.h>

#include <memory>

#include "automation/classes.h"
#include "automation/rows.h"

namespace ZQ7Standard::Automation {

ClassRow StandardObjectEntry() {
  ClassRow info = {.name = "StandardObject",
                   .create = [](const HostServices& services) -> std::shared_ptr<void> {
                     return std::make_shared<StandardObject>(
                         StandardServices{.clock = services.clock,
                                          .date_convention = services.date_convention,
                                          .random_source = services.random_source,
                                          .block_cipher = services.block_cipher});
                   }};
  AddDateOperations(info);
  AddNumberOperations(info);
  AddTextOperations(info);
  return info;
}

}  // namespace ZQ7Standard::Automation
