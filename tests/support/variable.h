#ifndef ZQ7STANDARD_TESTS_SUPPORT_VARIABLE_H_
#define ZQ7STANDARD_TESTS_SUPPORT_VARIABLE_H_

#include <stdlib.h>
#include <time.h>

#include <string>

namespace ZQ7Standard {

/// Sets a variable of the environment until the end of a test; TZ takes effect at once.
class Variable {
 public:
  Variable(const char* name, const std::string& value) : name_(name) {
    if (const char* const old = getenv(name)) old_ = old;
    setenv(name, value.c_str(), 1);
    tzset();
  }
  ~Variable() {
    old_.empty() ? unsetenv(name_) : setenv(name_, old_.c_str(), 1);
    tzset();
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  const char* name_;
  std::string old_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_VARIABLE_H_
