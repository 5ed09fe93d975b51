#ifndef ZQ7STANDARD_BINDINGS_WINDOWS_LATE_BINDING_H_
#define ZQ7STANDARD_BINDINGS_WINDOWS_LATE_BINDING_H_

#include <ZQ7Standard/automation/catalogue.h>
#include <ZQ7Standard/automation/invoke.h>

#include <string_view>
#include <vector>

#include "com.h"

/// Calls by name and number, on the catalogue.
namespace ZQ7Windows {

/// The members of a class by their numbers, which are the dispatch identifiers.
class Members {
 public:
  explicit Members(std::string_view class_name);

  const ZQ7Standard::Automation::ClassInfo& Owner() const { return *owner_; }
  /// Both null if there is none.
  ZQ7Standard::Automation::MemberInfo At(DISPID id) const;

 private:
  const ZQ7Standard::Automation::ClassInfo* owner_;
  std::vector<ZQ7Standard::Automation::MemberInfo> by_number_;
};

/// `IDispatch::GetIDsOfNames`. The parameters of an operation are numbered from 0.
HRESULT FindNames(const Members& members, LPOLESTR* names, UINT count, DISPID* ids);

/// What a host passes to `IDispatch::Invoke`.
struct LateCall {
  DISPID id;
  WORD flags;
  const DISPPARAMS& given;
  VARIANT* result;
  EXCEPINFO* info;
  UINT* wrong_argument;
};

/// `IDispatch::Invoke`. Every failure of a member is `DISP_E_EXCEPTION` with its number.
HRESULT InvokeLate(const Members& members, const ZQ7Standard::Automation::Object& object,
                   const LateCall& call);

}  // namespace ZQ7Windows

#endif  // ZQ7STANDARD_BINDINGS_WINDOWS_LATE_BINDING_H_
