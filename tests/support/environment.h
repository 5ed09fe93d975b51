#ifndef ZQ7STANDARD_TESTS_SUPPORT_ENVIRONMENT_H_
#define ZQ7STANDARD_TESTS_SUPPORT_ENVIRONMENT_H_

#include <stdlib.h>

#include <map>
#include <optional>
#include <string>

namespace ZQ7Standard {

/// Sets variables of the environment and puts the old values back at the end.
class Environment {
 public:
  ~Environment() {
    for (const auto& [name, value] : old_) Put(name, value ? value->c_str() : nullptr);
  }

  /// Sets a variable; nullptr removes it.
  void Set(const std::string& name, const char* value) {
    const char* const old = getenv(name.c_str());
    old_.emplace(name, old != nullptr ? std::optional<std::string>(old) : std::nullopt);
    Put(name, value);
  }

  void SetLocale(const char* all, const char* time = "", const char* lang = "") {
    Set("LC_ALL", all);
    Set("LC_TIME", time);
    Set("LANG", lang);
  }

 private:
  static void Put(const std::string& name, const char* value) {
    value != nullptr ? setenv(name.c_str(), value, 1) : unsetenv(name.c_str());
  }

  std::map<std::string, std::optional<std::string>> old_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_ENVIRONMENT_H_
