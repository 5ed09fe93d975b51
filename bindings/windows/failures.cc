#include "failures.h"

#include <ZQ7Standard/RunTimeError.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>

#include "automation/failure.h"
#include "platform/windows/wide_text.h"

namespace ZQ7Windows {
namespace {

using namespace ZQ7Standard;

/// The codes of run-time errors, whose low half is the number.
constexpr auto kRunTimeErrors = 0x800A0000U;
constexpr auto kNumber = 0xFFFFU;

/// Codes that stand for a run-time error.
struct CodeRow {
  HRESULT code;
  Error error;
};
constexpr auto kCodes = std::to_array<CodeRow>({
    {DISP_E_UNKNOWNNAME, Error::kUnsupportedMember},
    {DISP_E_MEMBERNOTFOUND, Error::kUnsupportedMember},
    {DISP_E_TYPEMISMATCH, Error::kTypeMismatch},
    {DISP_E_OVERFLOW, Error::kOverflow},
    {DISP_E_BADPARAMCOUNT, Error::kWrongNumberOfArguments},
    {DISP_E_PARAMNOTOPTIONAL, Error::kArgumentNotOptional},
    {E_OUTOFMEMORY, Error::kOutOfMemory},
});

/// A number of the library's, or the whole code of a failure that a host's own object raised.
HRESULT CodeOf(int number) {
  if (number < 0) return number;
  const bool fits = number > 0 && static_cast<std::uint32_t>(number) <= kNumber;
  const auto low =
      static_cast<std::uint32_t>(fits ? number : static_cast<int>(Error::kAutomationError));
  return static_cast<HRESULT>(kRunTimeErrors + low);
}

int NumberOf(HRESULT code) {
  const auto bits = static_cast<std::uint32_t>(code);
  if ((bits & ~kNumber) == kRunTimeErrors) return static_cast<int>(bits & kNumber);
  const auto* const row = std::ranges::find(kCodes, code, &CodeRow::code);
  return row == kCodes.end() ? code : static_cast<int>(row->error);
}

std::string Hexadecimal(HRESULT code) {
  std::array<char, 11> text;
  std::snprintf(text.data(), text.size(), "0x%08lX", static_cast<unsigned long>(code));
  return text.data();
}

}  // namespace

Failure CaughtFailure(const ClassInfo& owner, std::string_view member,
                      std::span<const ParameterInfo> parameters) {
  try {
    Automation::RethrowAs(owner, member, parameters);
  } catch (const RunTimeError& error) {
    return {.code = CodeOf(error.Number()),
            .source = L"ZQ7Standard." + Wide(FromUtf8(owner.name)),
            .text = Wide(FromUtf8(error.what())),
            .parameter = error.Details().parameter};
  }
}

void Fill(EXCEPINFO* info, const Failure& failure) {
  if (info == nullptr) return;
  *info = {};
  info->scode = failure.code;
  info->bstrSource = SysAllocString(failure.source.c_str());
  info->bstrDescription = SysAllocString(failure.text.c_str());
}

HRESULT SetFailure(const Failure& failure, REFIID id) {
  ComPtr<ICreateErrorInfo> info;
  if (FAILED(CreateErrorInfo(info.Out()))) return failure.code;
  info->SetGUID(id);
  info->SetSource(const_cast<wchar_t*>(failure.source.c_str()));
  info->SetDescription(const_cast<wchar_t*>(failure.text.c_str()));
  SetErrorInfo(0, Query<IErrorInfo>(info.get(), IID_IErrorInfo).get());
  return failure.code;
}

ExceptionInfo::~ExceptionInfo() {
  SysFreeString(bstrSource);
  SysFreeString(bstrDescription);
  SysFreeString(bstrHelpFile);
}

void RaiseHostFailure(HRESULT result, ExceptionInfo& info, std::string_view member) {
  if (result != DISP_E_EXCEPTION) {
    throw RunTimeError(NumberOf(result),
                       std::string(member) + ": the object answered " + Hexadecimal(result));
  }
  if (info.pfnDeferredFillIn != nullptr) info.pfnDeferredFillIn(&info);
  const std::wstring_view text(info.bstrDescription, SysStringLen(info.bstrDescription));
  const int number = info.wCode != 0 ? info.wCode : NumberOf(info.scode);
  throw RunTimeError(
      number, text.empty() ? std::string(member) + ": the object failed" : Utf8(FromWide(text)));
}

}  // namespace ZQ7Windows
