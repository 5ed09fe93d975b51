#include "values.h"

#include <ZQ7Standard/automation/invoke.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <optional>
#include <string>

#include "dates/date_math.h"
#include "host_objects.h"
#include "own_object.h"

namespace ZQ7Windows {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

namespace {

/// How many references and default properties are followed, so that an object whose default is
/// itself ends with an error.
constexpr int kMaxSteps = 8;

[[noreturn]] void RaiseMismatch(const Where& where, TextView what) {
  Raise(Error::kTypeMismatch, where, what);
}

/// Access to the elements of an array; throws 13 for one that is not a list.
class ArrayElements {
 public:
  ArrayElements(SAFEARRAY* array, const Where& where) : array_(array) {
    if (array == nullptr || SafeArrayGetDim(array) != 1 ||
        FAILED(SafeArrayGetVartype(array, &type_)) || (type_ != VT_BSTR && type_ != VT_VARIANT) ||
        FAILED(SafeArrayAccessData(array, &data_))) {
      RaiseMismatch(where, u"an array");
    }
  }
  ArrayElements(const ArrayElements&) = delete;
  ArrayElements& operator=(const ArrayElements&) = delete;
  ~ArrayElements() { SafeArrayUnaccessData(array_); }

  std::size_t Size() const { return array_->rgsabound[0].cElements; }
  /// The element as a value that still belongs to the array.
  VARIANT At(std::size_t index) const {
    if (type_ == VT_VARIANT) return static_cast<const VARIANT*>(data_)[index];
    VARIANT text;
    text.vt = VT_BSTR;
    text.bstrVal = static_cast<const BSTR*>(data_)[index];
    return text;
  }

 private:
  SAFEARRAY* array_;
  VARTYPE type_ = VT_EMPTY;
  void* data_ = nullptr;
};

/// An element of a list. A number in it is written as automation does, in no language.
Text ElementText(const VARIANT& element, const Where& where) {
  if (element.vt == VT_BSTR) return Text(ViewOf(element.bstrVal));
  Variant text;
  if (FAILED(VariantCopyInd(&text, const_cast<VARIANT*>(&element))) ||
      FAILED(VariantChangeTypeEx(&text, &text, LOCALE_INVARIANT, VARIANT_ALPHABOOL, VT_BSTR))) {
    RaiseMismatch(where, u"an element of a list");
  }
  return Text(ViewOf(text.bstrVal));
}

TextList ArrayList(SAFEARRAY* array, const Where& where) {
  const ArrayElements elements(array, where);
  TextList list;
  for (std::size_t i = 0; i < elements.Size(); ++i) {
    list.push_back(ElementText(elements.At(i), where));
  }
  return list;
}

/// The list that an array of a script is: an object whose elements have names "0", "1", ...
TextList ObjectList(IDispatch* object, const Where& where) {
  const HostObject array(object);
  Variant length;
  if (!array.Has(L"length")) RaiseMismatch(where, u"an object");
  array.Get(L"length", length);
  if (FAILED(VariantChangeType(&length, &length, 0, VT_I4))) RaiseMismatch(where, u"an object");
  TextList list;
  for (LONG i = 0; i < length.lVal; ++i) {
    Variant element;
    array.Get(std::to_wstring(i), element);
    list.push_back(ElementText(element, where));
  }
  return list;
}

Value EmptyValue(const TypeInfo& wanted) {
  const bool text =
      wanted.type == Type::kText || wanted.type == Type::kTextList || wanted.type == Type::kObject;
  return text ? Value(Text()) : Value(std::int16_t{0});
}

/// A number of a type that the catalogue does not have.
Value OtherNumber(const VARIANT& given, const TypeInfo& wanted, const Where& where) {
  const bool money = wanted.type == Type::kCurrency;
  Variant number;
  if (FAILED(VariantChangeType(&number, const_cast<VARIANT*>(&given), 0,
                               static_cast<VARTYPE>(money ? VT_CY : VT_R8)))) {
    RaiseMismatch(where, u"a value of another type");
  }
  if (money) return Currency::FromScaled(number.cyVal.int64);
  return number.dblVal;
}

Value ObjectValue(IDispatch* object, const TypeInfo& wanted) {
  if (object == nullptr) return Null{};
  if (const auto own = OwnObject(object)) return *own;
  if (wanted.object_class == "SerialPort") return Wrap(HostSerialPort(object));
  return Wrap(HostPicture(object));
}

/// A value that is neither a reference nor an object.
Value PlainValue(const VARIANT& given, const TypeInfo& wanted, const Where& where) {
  switch (given.vt) {
    case VT_EMPTY:
      return EmptyValue(wanted);
    case VT_NULL:
      return Null{};
    case VT_I2:
      return given.iVal;
    case VT_I4:
    case VT_INT:
      return std::int32_t{given.lVal};
    case VT_R4:
      return given.fltVal;
    case VT_R8:
      return given.dblVal;
    case VT_CY:
      return Currency::FromScaled(given.cyVal.int64);
    case VT_DATE:
      // One out of range is a number, which the conversion then refuses by name.
      return IsInRange(given.date) ? Value(OleDate(given.date)) : Value(given.date);
    case VT_BSTR:
      return Text(ViewOf(given.bstrVal));
    case VT_BOOL:
      return given.boolVal != VARIANT_FALSE;
    case VT_UI1:
      return static_cast<std::int16_t>(given.bVal);
    case VT_ERROR:
      if (given.scode == DISP_E_PARAMNOTFOUND) return Omitted{};
      RaiseMismatch(where, u"an error value");
    default:
      if ((given.vt & VT_ARRAY) != 0) return ArrayList(given.parray, where);
      return OtherNumber(given, wanted, where);
  }
}

}  // namespace

// The units of both are the same, those of UTF-16.
TextView ViewOf(BSTR text) {
  return {reinterpret_cast<const char16_t*>(text), SysStringLen(text)};
}

BSTR NewBstr(TextView text) {
  const BSTR made = SysAllocStringLen(reinterpret_cast<const wchar_t*>(text.data()),
                                      static_cast<UINT>(text.size()));
  if (made == nullptr) throw std::bad_alloc();
  return made;
}

SAFEARRAY* NewArray(const TextList& list, VARTYPE element) {
  SAFEARRAY* const array = SafeArrayCreateVector(element, 0, static_cast<ULONG>(list.size()));
  void* data = nullptr;
  if (array == nullptr || FAILED(SafeArrayAccessData(array, &data))) throw std::bad_alloc();
  for (std::size_t i = 0; i < list.size(); ++i) {
    const BSTR text = SysAllocStringLen(reinterpret_cast<const wchar_t*>(list[i].data()),
                                        static_cast<UINT>(list[i].size()));
    if (element == VT_BSTR) {
      static_cast<BSTR*>(data)[i] = text;
    } else {
      static_cast<VARIANT*>(data)[i].vt = VT_BSTR;
      static_cast<VARIANT*>(data)[i].bstrVal = text;
    }
  }
  SafeArrayUnaccessData(array);
  return array;
}

Value ToValue(const VARIANT& given, const TypeInfo& wanted, const Where& where) {
  const VARIANT* value = &given;
  Variant followed;
  for (int step = 0; step < kMaxSteps; ++step) {
    if (value->vt == (VT_BYREF | VT_VARIANT)) {
      value = value->pvarVal;
    } else if ((value->vt & VT_BYREF) != 0) {
      Variant copy;
      if (FAILED(VariantCopyInd(&copy, const_cast<VARIANT*>(value)))) break;
      std::swap(static_cast<VARIANT&>(followed), static_cast<VARIANT&>(copy));
      value = &followed;
    } else if (value->vt != VT_DISPATCH && value->vt != VT_UNKNOWN) {
      return PlainValue(*value, wanted, where);
    } else {
      const auto object = Query<IDispatch>(value->punkVal, IID_IDispatch);
      if (wanted.type == Type::kObject) return ObjectValue(object.get(), wanted);
      if (!object) break;
      if (wanted.type == Type::kTextList) return ObjectList(object.get(), where);
      Variant found;
      if (!HostObject(object.get()).GetDefault(found)) break;
      std::swap(static_cast<VARIANT&>(followed), static_cast<VARIANT&>(found));
      value = &followed;
    }
  }
  RaiseMismatch(where, u"an object");
}

namespace {

struct ResultVisitor {
  Type type;
  VARIANT& result;

  void operator()(const Text& text) const {
    result.bstrVal = NewBstr(text);
    result.vt = VT_BSTR;
  }
  void operator()(std::int16_t number) const {
    result.vt = static_cast<VARTYPE>(type == Type::kByte ? VT_UI1 : VT_I2);
    result.iVal = number;
  }
  void operator()(std::int32_t number) const {
    result.vt = VT_I4;
    result.lVal = number;
  }
  void operator()(float number) const {
    result.vt = VT_R4;
    result.fltVal = number;
  }
  void operator()(double number) const {
    result.vt = VT_R8;
    result.dblVal = number;
  }
  void operator()(bool flag) const {
    result.vt = VT_BOOL;
    result.boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
  }
  void operator()(OleDate date) const {
    result.vt = VT_DATE;
    result.date = date.Days();
  }
  void operator()(Currency amount) const {
    result.vt = VT_CY;
    result.cyVal.int64 = amount.Scaled();
  }
  void operator()(const TextList& list) const {
    result.parray = NewArray(list, VT_VARIANT);
    result.vt = VT_ARRAY | VT_VARIANT;
  }
  /// An operation without a result; none returns an object.
  void operator()(const auto& /*none*/) const { result.vt = VT_EMPTY; }
};

}  // namespace

void FromValue(const Value& value, Type type, VARIANT& result) {
  std::visit(ResultVisitor{type, result}, value);
}

}  // namespace ZQ7Windows
