// Measures the server beside a trivial one, in one run. Each figure is the median of repetitions.
#include <ZQ7Standard/automation/invoke.h>

#include "bindings/windows/com.h"
//
#include <initguid.h>

#include "trivial_server.h"
#include "zq7standard_server.h"
//
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>

namespace {

using namespace ZQ7Windows;

constexpr int kRepetitions = 15;

/// How long `act` takes, in microseconds.
template <typename Act>
double Microseconds(int count, const Act& act) {
  std::array<double, kRepetitions> times;
  for (double& time : times) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < count; ++i) act();
    time = std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start)
               .count() /
           count;
  }
  std::ranges::nth_element(times, times.begin() + kRepetitions / 2);
  return times[kRepetitions / 2];
}

template <typename Interface>
ComPtr<Interface> New(REFCLSID class_id, REFIID id) {
  ComPtr<Interface> made;
  CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER, id, made.OutVoid());
  return made;
}

ComPtr<IClassFactory> FactoryOf(REFCLSID class_id) {
  ComPtr<IClassFactory> factory;
  CoGetClassObject(class_id, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory, factory.OutVoid());
  return factory;
}

int missed = 0;

void Print(const char* what, double server, double trivial, double difference, double aim) {
  const bool reached = difference <= aim;
  if (!reached) ++missed;
  std::printf("%-44s %8.3f %8.3f %8.3f %8.3f %s\n", what, server, trivial, difference, aim,
              reached ? "" : " MISSED");
}

/// A late-bound call, the same call of the library's, and a late-bound call of the trivial server.
void LateCall(IStandardObject& standard, ITrivialObject& trivial) {
  namespace Automation = ZQ7Standard::Automation;
  const auto& operation =
      *Automation::FindOperation(*Automation::FindClass("StandardObject"), "FormatThai");
  const auto object = Automation::Create("StandardObject");
  const std::array<Automation::Value, 2> values = {ZQ7Standard::OleDate(45322),
                                                   ZQ7Standard::Text(u"d mmmm bbbb")};
  const double invoke = Microseconds(
      20000, [&] { Automation::Invoke(object, operation, {.positional = values, .named = {}}); });

  const Bstr format(L"d mmmm bbbb");
  std::array<VARIANT, 2> arguments;
  arguments[0].vt = VT_BSTR;
  arguments[0].bstrVal = format.get();
  arguments[1].vt = VT_DATE;
  arguments[1].date = 45322;
  DISPPARAMS call = {arguments.data(), nullptr, 2, 0};
  const double late = Microseconds(20000, [&] {
    Variant result;
    standard.Invoke(operation.number, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &call,
                    &result, nullptr, nullptr);
  });

  VARIANT number;
  number.vt = VT_R8;
  number.dblVal = 1;
  DISPPARAMS next = {&number, nullptr, 1, 0};
  const double other = Microseconds(20000, [&] {
    Variant result;
    trivial.Invoke(1, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &next, &result, nullptr,
                   nullptr);
  });
  Print("late-bound call, more than Invoke", late, other, late - invoke, 1);
}

void EarlyCalls(IStandardObject& standard, ITrivialObject& trivial) {
  double result = 0;
  const double other = Microseconds(200000, [&] { trivial.Next(1, &result); });
  const double number = Microseconds(200000, [&] { standard.d2h(0.5, &result); });
  Print("early-bound call, a number", number, other, number, 0.2);
  VARIANT_BOOL is_date = VARIANT_FALSE;
  const Bstr text(L"15/1/2024");
  DATE blank = 45322;
  const double flag = Microseconds(200000, [&] { standard.isBlankDate(blank, &is_date); });
  Print("early-bound call, a date", flag, other, flag, 0.2);
  const double words = Microseconds(200000, [&] { standard.StrVal(text.get(), &result); });
  Print("early-bound call, a text", words, other, words, 0.2);
}

void Objects() {
  const auto make = [](IClassFactory& factory, REFIID id) {
    ComPtr<IDispatch> made;
    factory.CreateInstance(nullptr, id, made.OutVoid());
  };
  const auto server = FactoryOf(CLSID_StandardObject);
  const auto trivial = FactoryOf(CLSID_TrivialObject);
  const double made = Microseconds(5000, [&] { make(*server.get(), IID_IStandardObject); });
  const double other = Microseconds(5000, [&] { make(*trivial.get(), IID_ITrivialObject); });
  Print("object by the class factory", made, other, made, 5);
  const double created =
      Microseconds(300, [] { New<IDispatch>(CLSID_StandardObject, IID_IDispatch); });
  const double other_created =
      Microseconds(300, [] { New<IDispatch>(CLSID_TrivialObject, IID_IDispatch); });
  Print("CoCreateInstance, more than the trivial one", created, other_created,
        created - other_created, 20);
}

}  // namespace

int wmain() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  {
    const auto standard = New<IStandardObject>(CLSID_StandardObject, IID_IStandardObject);
    const auto trivial = New<ITrivialObject>(CLSID_TrivialObject, IID_ITrivialObject);
    if (!standard || !trivial) {
      std::printf("timing: the servers are not registered\n");
      return 1;
    }
    std::printf("%-44s %8s %8s %8s %8s\n", "microseconds, medians of 15", "server", "trivial",
                "compared", "aim");
    LateCall(*standard.get(), *trivial.get());
    EarlyCalls(*standard.get(), *trivial.get());
    Objects();
  }
  CoUninitialize();
  std::printf("timing: %d aims missed\n", missed);
  return 0;
}
