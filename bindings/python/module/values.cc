#include "values.h"

#include <ZQ7Standard/RunTimeError.h>
#include <datetime.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <limits>
#include <map>
#include <optional>
#include <span>
#include <string>

#include "moments.h"
#include "services.h"

namespace ZQ7Python {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;
using std::chrono::local_days;
using std::chrono::year_month_day;
using ZQ7Bindings::DayCount;
using ZQ7Bindings::MicrosecondsSince;
using ZQ7Bindings::Moment;
using ZQ7Bindings::MomentAt;
using ZQ7Bindings::MomentOf;

constexpr local_days k1970{std::chrono::year(1970) / 1 / 1};
constexpr int kFirstYear = 100;

/// What decides how a str stores a text. Both are as wide as a unit, so that the loop is vectorised.
struct Units {
  std::uint16_t bits = 0;        ///< that any unit has
  std::uint16_t surrogates = 0;  ///< not 0 if there is one
};

Units UnitsOf(TextView text) {
  Units found;
  for (const char16_t unit : text) {
    const bool surrogate = (unit & 0xF800) == 0xD800;
    found.bits = static_cast<std::uint16_t>(found.bits | unit);
    found.surrogates = static_cast<std::uint16_t>(found.surrogates | (surrogate ? 1 : 0));
  }
  return found;
}

std::string Name(const Place& place) {
  return QualifiedName(place.owner, place.operation);
}

[[noreturn]] void Raise(Error error, const Place& place) {
  throw RunTimeError({.number = static_cast<int>(error),
                      .text = RunTimeError(error).Details().text,
                      .class_name = std::string(place.owner.name),
                      .operation = std::string(place.operation),
                      .parameter = std::string(place.parameter)});
}

[[noreturn]] void RaiseTypeError(const Place& place, const std::string& problem) {
  throw py::type_error(Name(place) + ": " + std::string(place.parameter) + ": " + problem);
}

[[noreturn]] void RaiseNotAValue(PyObject* object, const Place& place) {
  RaiseTypeError(place, std::string("a ") + Py_TYPE(object)->tp_name + " is not a value");
}

template <typename Unit>
void Widen(Text& text, const void* units, Py_ssize_t length) {
  const auto* const first = static_cast<const Unit*>(units);
  text.assign(first, first + length);
}

Value NumberFromPython(PyObject* number, const Place& place) {
  int overflow = 0;
  const long long whole = PyLong_AsLongLongAndOverflow(number, &overflow);
  if (whole == -1 && PyErr_Occurred() != nullptr) throw py::error_already_set();
  using Limits = std::numeric_limits<std::int32_t>;
  if (overflow == 0 && whole >= Limits::min() && whole <= Limits::max()) {
    return static_cast<std::int32_t>(whole);
  }
  const double read = PyLong_AsDouble(number);
  if (read == -1 && PyErr_Occurred() != nullptr) {
    PyErr_Clear();
    Raise(Error::kOverflow, place);
  }
  return read;
}

Value DoubleFromPython(PyObject* number, const Place& place) {
  const double read = PyFloat_AsDouble(number);
  if (read != -1 || PyErr_Occurred() == nullptr) return read;
  if (PyErr_ExceptionMatches(PyExc_TypeError) == 0) throw py::error_already_set();
  // NumPy's dates have a conversion to float that refuses.
  PyErr_Clear();
  RaiseNotAValue(number, place);
}

/// A Decimal, with all its digits if an amount is wanted.
Value DecimalFromPython(PyObject* number, const Place& place) {
  constexpr double kAmountLimit = 1e15;
  Value read = DoubleFromPython(number, place);
  if (place.type.type != Type::kCurrency || !(std::abs(std::get<double>(read)) < kAmountLimit)) {
    return read;
  }
  const py::object text = Owned(PyObject_Format(number, py::str("f").ptr()));
  return TextFromPython(text.ptr());
}

Value ListFromPython(PyObject* sequence, const Place& place) {
  TextList list;
  for (const py::handle item : py::reinterpret_borrow<py::object>(sequence)) {
    if (PyUnicode_Check(item.ptr()) == 0) RaiseTypeError(place, "a list of values other than str");
    list.push_back(TextFromPython(item.ptr()));
  }
  return list;
}

bool IsNumber(PyObject* object) {
  const PyNumberMethods* const methods = Py_TYPE(object)->tp_as_number;
  return methods != nullptr && (methods->nb_float != nullptr || methods->nb_index != nullptr);
}

/// A value that is neither a str nor a number of Python's own.
Value OtherFromPython(PyObject* object, const Place& place, BusyMarks& busy) {
  if (object == Py_None) return Null{};
  if (PyDate_Check(object)) return DateFromPython(object, place);
  if (Instance* const instance = FindInstance(object)) {
    busy.Add(*instance);
    return ObjectOf(*instance);
  }
  if (PyObject_IsInstance(object, Python().decimal.ptr()) == 1) {
    return DecimalFromPython(object, place);
  }
  if (IsNumber(object)) return DoubleFromPython(object, place);
  if (PyList_Check(object) || PyTuple_Check(object)) return ListFromPython(object, place);
  if (place.type.type == Type::kObject) {
    return WrapHostObject(py::reinterpret_borrow<py::object>(object), place.type.object_class);
  }
  RaiseNotAValue(object, place);
}

py::object ToPython(Omitted /*none*/) {
  return py::none();
}
py::object ToPython(Null /*null*/) {
  return py::none();
}
py::object ToPython(const Text& text) {
  return TextToPython(text);
}
py::object ToPython(bool flag) {
  return py::bool_(flag);
}
py::object ToPython(std::integral auto number) {
  return Owned(PyLong_FromLong(number));
}
py::object ToPython(std::floating_point auto number) {
  return Owned(PyFloat_FromDouble(static_cast<double>(number)));
}
py::object ToPython(OleDate date) {
  return DateToPython(date);
}
py::object ToPython(Currency amount) {
  return Python().decimal(TextToPython(amount.ToText()));
}
py::object ToPython(const TextList& list) {
  py::list texts;
  for (const Text& text : list) texts.append(TextToPython(text));
  return texts;
}
py::object ToPython(const Object& object) {
  throw py::type_error("a result of class " + std::string(object.Class().name));
}

/// A member of an IntEnum, or the number if there is no such member.
py::object MemberOf(const EnumerationInfo& enumeration, std::int32_t number) {
  py::object value = Owned(PyLong_FromLong(number));
  const py::dict members = EnumerationClass(enumeration).attr("_value2member_map_");
  return members.contains(value) ? py::object(members[value]) : value;
}

}  // namespace

void LoadDates() {
  PyDateTime_IMPORT;
  if (PyDateTimeAPI == nullptr) throw py::error_already_set();
}

py::object TextToPython(TextView text) {
  const auto length = static_cast<Py_ssize_t>(text.size());
  const auto [bits, surrogates] = UnitsOf(text);
  if (surrogates == 0) {
    py::object made = Owned(PyUnicode_New(length, bits));
    void* const units = PyUnicode_DATA(made.ptr());
    if (bits < 0x100) {
      std::ranges::copy(text, static_cast<Py_UCS1*>(units));
    } else {
      std::ranges::copy(text, static_cast<Py_UCS2*>(units));
    }
    return made;
  }
  int order = std::endian::native == std::endian::little ? -1 : 1;
  return Owned(PyUnicode_DecodeUTF16(
      reinterpret_cast<const char*>(text.data()),  // NOLINT(*-reinterpret-cast)
      length * 2, "surrogatepass", &order));
}

Text TextFromPython(PyObject* text) {
  if (PyUnicode_READY(text) != 0) throw py::error_already_set();
  const Py_ssize_t length = PyUnicode_GET_LENGTH(text);
  const void* const units = PyUnicode_DATA(text);
  Text result;
  switch (PyUnicode_KIND(text)) {
    case PyUnicode_1BYTE_KIND:
      Widen<Py_UCS1>(result, units, length);
      return result;
    case PyUnicode_2BYTE_KIND:
      Widen<Py_UCS2>(result, units, length);
      return result;
    default:
      break;
  }
  const auto* const points = static_cast<const Py_UCS4*>(units);
  for (Py_ssize_t i = 0; i < length; ++i) {
    if (points[i] >= 0x10000) {
      result += static_cast<char16_t>(0xD7C0 + (points[i] >> 10));
      result += static_cast<char16_t>(0xDC00 | (points[i] & 0x3FF));
    } else {
      result += static_cast<char16_t>(points[i]);
    }
  }
  return result;
}

// Python's own macros for the fields are old-style casts: both objects begin with the same bytes.
OleDate DateFromPython(PyObject* date, const Place& place) {
  std::int64_t microseconds = 0;
  if (PyDateTime_Check(date)) {
    const auto& moment = Behind<PyDateTime_DateTime>(date);
    if (moment.hastzinfo != 0 && moment.tzinfo != Py_None) {
      RaiseTypeError(place, "an aware datetime; dates of the library have no time zone");
    }
    const std::span<const unsigned char> time = std::span(moment.data).subspan(4);
    const int seconds = time[0] * 3600 + time[1] * 60 + time[2];
    microseconds = seconds * std::int64_t{1'000'000} + (time[3] << 16 | time[4] << 8 | time[5]);
  }
  const auto& day = Behind<PyDateTime_Date>(date).data;
  const int year = day[0] << 8 | day[1];
  if (year < kFirstYear) Raise(Error::kInvalidArgument, place);
  const year_month_day civil{std::chrono::year(year), std::chrono::month(day[2]),
                             std::chrono::day(day[3])};
  return OleDate(DayCount({local_days(civil), microseconds}));
}

py::object DateToPython(OleDate date) {
  const Moment moment = MomentOf(date);
  const year_month_day civil(moment.day);
  const auto seconds = static_cast<int>(moment.microseconds / 1'000'000);
  return Owned(PyDateTime_FromDateAndTime(
      static_cast<int>(civil.year()), static_cast<int>(static_cast<unsigned>(civil.month())),
      static_cast<int>(static_cast<unsigned>(civil.day())), seconds / 3600, seconds / 60 % 60,
      seconds % 60, static_cast<int>(moment.microseconds % 1'000'000)));
}

OleDate DateFromMicroseconds(std::int64_t microseconds, const Place& place) {
  const double count = DayCount(MomentAt(microseconds, k1970));
  constexpr double kFirst = -657434;  // 0100-01-01
  constexpr double kEnd = 2958466;    // 10000-01-01
  if (!(count > kFirst - 1 && count < kEnd)) Raise(Error::kInvalidArgument, place);
  return OleDate(count);
}

std::int64_t MicrosecondsOf(OleDate date) {
  return MicrosecondsSince(k1970, MomentOf(date));
}

Value ValueFromPython(PyObject* object, const Place& place, BusyMarks& busy) {
  if (PyFloat_Check(object)) return PyFloat_AS_DOUBLE(object);
  if (PyUnicode_Check(object)) return TextFromPython(object);
  if (PyBool_Check(object)) return object == Py_True;
  if (PyLong_Check(object)) return NumberFromPython(object, place);
  return OtherFromPython(object, place, busy);
}

py::object ValueToPython(const Value& value, const TypeInfo& type) {
  if (type.enumeration != nullptr) {
    if (const auto* number = std::get_if<std::int32_t>(&value)) {
      return MemberOf(*type.enumeration, *number);
    }
  }
  return std::visit([](const auto& held) { return ToPython(held); }, value);
}

py::object EnumerationClass(const EnumerationInfo& enumeration) {
  static auto* const classes = new std::map<const EnumerationInfo*, py::object>;
  py::object& found = (*classes)[&enumeration];
  if (found) return found;
  py::list members;
  for (const EnumeratorInfo& member : enumeration.members) {
    members.append(py::make_tuple(Str(member.name), member.value));
  }
  found = Python().int_enum(Str(enumeration.name), members, py::arg("module") = "zq7standard");
  return found;
}

}  // namespace ZQ7Python
