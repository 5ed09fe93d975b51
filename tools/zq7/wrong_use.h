#ifndef ZQ7STANDARD_TOOLS_ZQ7_WRONG_USE_H_
#define ZQ7STANDARD_TOOLS_ZQ7_WRONG_USE_H_

#include <stdexcept>

namespace ZQ7Tool {

/// A command line that the tool cannot execute: a message in UTF-8, with a hint.
class WrongUse : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_WRONG_USE_H_
