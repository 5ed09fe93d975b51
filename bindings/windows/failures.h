#ifndef ZQ7STANDARD_BINDINGS_WINDOWS_FAILURES_H_
#define ZQ7STANDARD_BINDINGS_WINDOWS_FAILURES_H_

#include <ZQ7Standard/automation/catalogue.h>

#include <span>
#include <string>
#include <string_view>

#include "com.h"

/// Errors, as automation carries them.
namespace ZQ7Windows {

using ZQ7Standard::Automation::ClassInfo;
using ZQ7Standard::Automation::ParameterInfo;

/// A failure of a member: the error 13 of the library is the code 0x800A000D.
struct Failure {
  HRESULT code = E_FAIL;
  std::wstring source;    ///< "ZQ7Standard.StandardObject"
  std::wstring text;      ///< names the member, the argument and the input
  std::string parameter;  ///< the one whose argument is wrong; empty if not known
};

/// The failure that the exception being handled is.
Failure CaughtFailure(const ClassInfo& owner, std::string_view member,
                      std::span<const ParameterInfo> parameters);

/// Reports a failure to a host that called by name. Does nothing to a null.
void Fill(EXCEPINFO* info, const Failure& failure);
/// Reports it to a host that called a function of the interface; returns its code.
HRESULT SetFailure(const Failure& failure, REFIID id);

/// What an object of the host's says when it fails; freed by the destructor.
struct ExceptionInfo : EXCEPINFO {
  ExceptionInfo() : EXCEPINFO{} {}
  ExceptionInfo(const ExceptionInfo&) = delete;
  ExceptionInfo& operator=(const ExceptionInfo&) = delete;
  ~ExceptionInfo();
};

/// Throws the `RunTimeError` for what an object of the host's answered to `member`: its own number
/// and text, if it has told them.
[[noreturn]] void RaiseHostFailure(HRESULT result, ExceptionInfo& info, std::string_view member);

}  // namespace ZQ7Windows

#endif  // ZQ7STANDARD_BINDINGS_WINDOWS_FAILURES_H_
