#include "columns.h"

#include <ZQ7Standard/automation/invoke.h>

#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "errors.h"
#include "method.h"
#include "values.h"

namespace ZQ7Python {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

constexpr std::int64_t kNotATime = std::numeric_limits<std::int64_t>::min();

/// A value for each row, in the memory of an array.
struct Column {
  char kind;
  py::buffer_info memory;

  template <typename T>
  T& At(py::ssize_t row) const {
    return static_cast<T*>(memory.ptr)[row];
  }
};

Column NewColumn(char kind, const py::handle& array, bool writable) {
  return {kind, py::reinterpret_borrow<py::buffer>(array).request(writable)};
}

Value NumberOf(std::int64_t number) {
  const auto narrow = static_cast<std::int32_t>(number);
  return narrow == number ? Value(narrow) : Value(static_cast<double>(number));
}

/// One of a call's arguments, and its value in the row at hand.
struct ColumnArgument {
  const ParameterInfo* parameter;
  std::optional<Column> column;  // else one value for all rows
  Value* value;
};

/// The call of one row after the other.
class Rows {
 public:
  Rows(const Method& method, Instance& instance, const py::list& arguments, py::tuple missing)
      : method_(method), instance_(instance), missing_(std::move(missing)), busy_(instance) {
    // Values stay where they are: rows write them in place.
    positional_.reserve(arguments.size());
    named_.reserve(arguments.size());
    for (const py::handle argument : arguments) Take(py::reinterpret_borrow<py::tuple>(argument));
  }

  /// The result of a row; nullopt if an argument is missing.
  std::optional<Value> Call(py::ssize_t row) {
    for (const ColumnArgument& argument : arguments_) {
      if (argument.column && !Read(argument, row)) return std::nullopt;
    }
    return CallOperation(method_, instance_, {positional_, named_});
  }

 private:
  void Take(const py::tuple& argument) {
    const auto& parameters = method_.operation->parameters;
    const std::string kind = py::str(argument[1]);
    ColumnArgument taken = {};
    if (argument[0].is_none()) {
      if (positional_.size() >= parameters.size()) throw py::type_error("too many arguments");
      taken.parameter = &parameters[positional_.size()];
      taken.value = &positional_.emplace_back();
    } else {
      taken.parameter = &parameters[ParameterNamed(method_, py::object(argument[0]).ptr())];
      taken.value = &named_.emplace_back(NamedArgument{taken.parameter->name, Omitted{}}).value;
    }
    if (kind.empty()) {
      *taken.value = ValueFromPython(py::object(argument[2]).ptr(), PlaceOf(taken), busy_);
    } else {
      taken.column = NewColumn(kind[0], argument[2], false);
    }
    arguments_.push_back(std::move(taken));
  }

  Place PlaceOf(const ColumnArgument& argument) const {
    return {*method_.owner, method_.operation->name, argument.parameter->name,
            argument.parameter->type};
  }

  /// Reads the value of a row; returns false if it is missing.
  bool Read(const ColumnArgument& argument, py::ssize_t row) {
    const Column& column = *argument.column;
    switch (column.kind) {
      case 'f':
        *argument.value = column.At<double>(row);
        return !std::isnan(column.At<double>(row));
      case 'i':
        *argument.value = NumberOf(column.At<std::int64_t>(row));
        return true;
      case 'b':
        *argument.value = column.At<std::uint8_t>(row) != 0;
        return true;
      case 'M':
        if (column.At<std::int64_t>(row) == kNotATime) return false;
        *argument.value = DateFromMicroseconds(column.At<std::int64_t>(row), PlaceOf(argument));
        return true;
      default:
        return ReadObject(argument, column.At<PyObject*>(row));
    }
  }

  bool ReadObject(const ColumnArgument& argument, PyObject* object) {
    for (const py::handle one : missing_) {
      if (one.ptr() == object) return false;
    }
    if (PyFloat_Check(object) && std::isnan(PyFloat_AS_DOUBLE(object))) return false;
    // The conversion may run Python code, which could drop the object from the array.
    const auto held = py::reinterpret_borrow<py::object>(object);
    *argument.value = ValueFromPython(object, PlaceOf(argument), busy_);
    return true;
  }

  const Method& method_;
  Instance& instance_;
  py::tuple missing_;
  BusyMarks busy_;
  std::vector<Value> positional_;
  std::vector<NamedArgument> named_;
  std::vector<ColumnArgument> arguments_;
};

struct AsNumber {
  std::int64_t operator()(const std::integral auto& number) const { return number; }
  std::int64_t operator()(const auto& /*other*/) const { return 0; }
};
struct AsDouble {
  double operator()(const std::floating_point auto& number) const { return number; }
  double operator()(const auto& /*other*/) const { return 0; }
};

void Write(const Column& results, py::ssize_t row, const Value& value, const TypeInfo& type) {
  switch (results.kind) {
    case 'f':
      results.At<double>(row) = std::visit(AsDouble{}, value);
      break;
    case 'i':
      results.At<std::int64_t>(row) = std::visit(AsNumber{}, value);
      break;
    case 'b':
      results.At<std::uint8_t>(row) = std::get<bool>(value) ? 1 : 0;
      break;
    case 'M':
      results.At<std::int64_t>(row) = MicrosecondsOf(std::get<OleDate>(value));
      break;
    default:
      Py_XDECREF(
          std::exchange(results.At<PyObject*>(row), ValueToPython(value, type).release().ptr()));
  }
}

/// Raises the error being handled again with the row it stopped at.
[[noreturn]] void RaiseAtRow(py::ssize_t row) {
  SetPythonError();
  py::error_already_set error;
  error.value().attr("row") = row;
  error.restore();
  throw py::error_already_set();
}

/// Whether the exception being handled is about the row's values, not about Python code that the
/// library called, or the user who stops it.
bool IsSkipped() {
  try {
    throw;
  } catch (const RunTimeError&) {
    return true;
  } catch (const py::builtin_exception&) {
    return true;
  } catch (...) {
    return false;
  }
}

}  // namespace

char KindOfResult(const py::handle& method) {
  switch (Behind<Method>(method.ptr()).operation->result.type) {
    case Type::kByte:
    case Type::kInteger:
    case Type::kLong:
      return 'i';
    case Type::kSingle:
    case Type::kDouble:
      return 'f';
    case Type::kBoolean:
      return 'b';
    case Type::kDate:
      return 'M';
    default:
      return 'O';
  }
}

py::ssize_t Apply(const py::handle& method, const py::handle& instance, const py::list& arguments,
                  const py::buffer& results, const py::buffer& absent, bool skip_errors,
                  const py::tuple& missing) {
  constexpr py::ssize_t kRowsBetweenSignals = 4096;
  const auto& called = Behind<Method>(method.ptr());
  const Column written = NewColumn(KindOfResult(method), results, true);
  const Column marks = NewColumn('b', absent, true);
  Rows rows(called, Behind<Instance>(instance.ptr()), arguments, missing);
  py::ssize_t without = 0;
  for (py::ssize_t row = 0; row < marks.memory.size; ++row) {
    if (row % kRowsBetweenSignals == 0 && PyErr_CheckSignals() != 0) throw py::error_already_set();
    std::optional<Value> value;
    try {
      value = rows.Call(row);
    } catch (...) {
      if (!skip_errors || !IsSkipped()) RaiseAtRow(row);
    }
    marks.At<std::uint8_t>(row) = value ? 0 : 1;
    if (value) {
      Write(written, row, *value, called.operation->result);
    } else {
      ++without;
    }
  }
  return without;
}

}  // namespace ZQ7Python
