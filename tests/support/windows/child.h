#ifndef ZQ7STANDARD_TESTS_SUPPORT_WINDOWS_CHILD_H_
#define ZQ7STANDARD_TESTS_SUPPORT_WINDOWS_CHILD_H_

#include <ZQ7Standard/Types.h>
#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

#include "platform/windows/wide_text.h"

namespace ZQ7Standard {

/// The path text of the test program, which runs a part of itself as another process.
inline Text OwnProgram() {
  std::wstring path(1000, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), 1000));
  return FromWide(path);
}

/// The arguments with which the test program runs a disabled test alone, and `more`.
inline std::vector<Text> ArgumentsFor(const Text& test, const std::vector<Text>& more = {}) {
  std::vector<Text> arguments = {u"--gtest_also_run_disabled_tests", u"--gtest_brief=1",
                                 u"--gtest_filter=" + test};
  arguments.insert(arguments.end(), more.begin(), more.end());
  return arguments;
}

/// Keeps the report of such a process, whose exit status tells enough, out of that of the tests.
inline void BeQuiet() {
  static_cast<void>(std::freopen("NUL", "w", stdout));
}

/// Sets a variable of the environment until the end of a test.
class SetVariable {
 public:
  SetVariable(const wchar_t* name, const std::wstring& value) : name_(name) {
    old_.resize(GetEnvironmentVariableW(name, nullptr, 0));
    old_.resize(GetEnvironmentVariableW(name, old_.data(), static_cast<DWORD>(old_.size())));
    SetEnvironmentVariableW(name, value.c_str());
  }
  SetVariable(const SetVariable&) = delete;
  SetVariable& operator=(const SetVariable&) = delete;
  ~SetVariable() { SetEnvironmentVariableW(name_, old_.c_str()); }

 private:
  const wchar_t* name_;
  std::wstring old_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_WINDOWS_CHILD_H_
