#ifndef ZQ7STANDARD_SRC_AUTOMATION_INSTANCE_H_
#define ZQ7STANDARD_SRC_AUTOMATION_INSTANCE_H_

#include <ZQ7Standard/automation/invoke.h>

#include <memory>

#include "automation/entry.h"
#include "platform/service_set.h"

namespace ZQ7Standard::Automation {

/// What an `Object` stands for.
struct Instance {
  const ClassEntry* owner;
  std::shared_ptr<void> object;
  std::shared_ptr<ServiceSet> services;
};

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_SRC_AUTOMATION_INSTANCE_H_
