#ifndef ZQ7STANDARD_TOOLS_ZQ7_BATCH_SESSION_H_
#define ZQ7STANDARD_TOOLS_ZQ7_BATCH_SESSION_H_

#include <ZQ7Standard/automation/invoke.h>

#include <memory>
#include <string>
#include <string_view>

#include "host.h"
#include "json_value.h"

namespace ZQ7Tool {

/// Answers the lines of a batch. From one line to the next it keeps only the named objects.
class BatchSession {
 public:
  explicit BatchSession(const Settings& settings);

  /// The result line, without its end, for a line that asks for a call; an error line for any other
  /// text.
  std::string Answer(std::string_view line);

 private:
  class Journal;

  ZQ7Standard::Automation::Value Perform(const Json& request);
  ZQ7Standard::Automation::Object ObjectFor(const Json& request);
  ZQ7Standard::Automation::Value CallOperation(const ZQ7Standard::Automation::Object& object,
                                               const Json& request) const;

  std::shared_ptr<Journal> journal_;  // receives the events and messages of a line
  Host host_;
  NamedObjects objects_;
};

/// The error line, without its end, for a line that is not examined.
std::string ErrorLine(const std::string& message);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_BATCH_SESSION_H_
