#include "method.h"

#include <ZQ7Standard/automation/invoke.h>
#include <structmember.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <utility>

#include "errors.h"
#include "values.h"

namespace ZQ7Python {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

PyTypeObject* method_type = nullptr;

[[noreturn]] void RaiseWrongCall(const Method& method, Error error, const std::string& parameter) {
  throw RunTimeError({.number = static_cast<int>(error),
                      .text = RunTimeError(error).Details().text,
                      .class_name = std::string(method.owner->name),
                      .operation = std::string(method.operation->name),
                      .parameter = parameter});
}

/// The arguments of a call, with room for those of most operations.
class CallArguments {
 public:
  CallArguments(const Method& method, std::span<PyObject* const> given, PyObject* names,
                BusyMarks& busy)
      : method_(method), busy_(busy) {
    const std::size_t named =
        names == nullptr ? 0 : static_cast<std::size_t>(PyTuple_GET_SIZE(names));
    TakePositional(given.first(given.size() - named));
    if (named == 0) return;
    for (std::size_t i = 0; i < named; ++i) {
      TakeNamed(PyTuple_GET_ITEM(names, static_cast<Py_ssize_t>(i)),
                given[given.size() - named + i]);
    }
  }

  Arguments Get() const { return {positional_, named_}; }

 private:
  void TakePositional(std::span<PyObject* const> given) {
    const auto& parameters = method_.operation->parameters;
    if (given.size() > parameters.size()) {
      RaiseWrongCall(method_, Error::kWrongNumberOfArguments, "");
    }
    std::span<Value> room = few_;
    if (given.size() > few_.size()) {
      many_.resize(given.size());
      room = many_;
    }
    for (std::size_t i = 0; i < given.size(); ++i) {
      room[i] = Convert(given[i], parameters[i]);
    }
    positional_ = room.first(given.size());
  }

  void TakeNamed(PyObject* name, PyObject* given) {
    const ParameterInfo& parameter = method_.operation->parameters[ParameterNamed(method_, name)];
    named_.push_back({parameter.name, Convert(given, parameter)});
  }

  Value Convert(PyObject* given, const ParameterInfo& parameter) {
    return ValueFromPython(
        given, {*method_.owner, method_.operation->name, parameter.name, parameter.type}, busy_);
  }

  const Method& method_;
  BusyMarks& busy_;
  std::array<Value, 4> few_ = {};
  std::vector<Value> many_;
  std::vector<NamedArgument> named_;
  std::span<const Value> positional_;
};

py::object CallProperty(const Method& method, Instance& instance, std::span<PyObject* const> given,
                        BusyMarks& busy) {
  const Object& object = ObjectOf(instance);
  const PropertyInfo& property = *method.property;
  if (given.empty()) {
    return ValueToPython(InLibrary(false, [&] { return GetProperty(object, property); }),
                         property.type);
  }
  const Value value =
      ValueFromPython(given[0], {*method.owner, property.name, "value", property.type}, busy);
  InLibrary(property.may_block, [&] {
    SetProperty(object, property, value);
    return true;
  });
  return py::none();
}

py::object CallMethod(const Method& method, std::span<PyObject* const> given, PyObject* names) {
  Instance* const instance = given.empty() ? nullptr : FindInstance(given[0]);
  if (instance == nullptr) {
    throw py::type_error(std::string(method.owner->name) + ": the first argument is not an object");
  }
  BusyMarks busy(*instance);
  if (method.operation == nullptr) return CallProperty(method, *instance, given.subspan(1), busy);
  const CallArguments arguments(method, given.subspan(1), names, busy);
  return ValueToPython(CallOperation(method, *instance, arguments.Get()), method.operation->result);
}

PyObject* VectorCall(PyObject* face, PyObject* const* given, std::size_t count, PyObject* names) {
  const auto named = names == nullptr ? 0 : static_cast<std::size_t>(PyTuple_GET_SIZE(names));
  const auto all = static_cast<std::size_t>(PyVectorcall_NARGS(count)) + named;
  return CatchAll([&] {
    return CallMethod(Behind<Method>(face), {given, all}, names).release().ptr();
  });
}

PyObject* Bind(PyObject* face, PyObject* instance, PyObject* /*type*/) {
  if (instance != nullptr && instance != Py_None) return PyMethod_New(face, instance);
  Py_INCREF(face);
  return face;
}

PyObject* Represent(PyObject* face) {
  const auto& method = Behind<Method>(face);
  const std::string_view member =
      method.operation == nullptr ? method.property->name : method.operation->name;
  return PyUnicode_FromFormat("<method %s>", QualifiedName(*method.owner, member).c_str());
}

PyObject* Signature(PyObject* face, void* /*closure*/) {
  return CatchAll([&] { return Python().signature_of(py::handle(face)).release().ptr(); });
}

}  // namespace

PyTypeObject* NewMethodType() {
  static std::array<PyMemberDef, 3> members = {{
      {"__vectorcalloffset__", T_PYSSIZET, offsetof(Method, call), READONLY, nullptr},
      {"__dictoffset__", T_PYSSIZET, offsetof(Method, attributes), READONLY, nullptr},
      {},
  }};
  static std::array<PyGetSetDef, 3> computed = {{
      {"__signature__", Signature, nullptr, nullptr, nullptr},
      {"__dict__", PyObject_GenericGetDict, PyObject_GenericSetDict, nullptr, nullptr},
      {},
  }};
  static std::array<PyType_Slot, 6> slots = {{
      {Py_tp_call, reinterpret_cast<void*>(PyVectorcall_Call)},  // NOLINT(*-reinterpret-cast)
      {Py_tp_descr_get, reinterpret_cast<void*>(Bind)},          // NOLINT(*-reinterpret-cast)
      {Py_tp_repr, reinterpret_cast<void*>(Represent)},          // NOLINT(*-reinterpret-cast)
      {Py_tp_members, members.data()},
      {Py_tp_getset, computed.data()},
      {},
  }};
  static PyType_Spec layout = {
      "zq7standard._native.Method", static_cast<int>(sizeof(Method)), 0,
      Py_TPFLAGS_DEFAULT | Py_TPFLAGS_METHOD_DESCRIPTOR | Py_TPFLAGS_HAVE_VECTORCALL, slots.data()};
  method_type = &Behind<PyTypeObject>(Owned(PyType_FromSpec(&layout)).release().ptr());
  return method_type;
}

py::object NewMethod(std::string_view class_name, std::string_view member) {
  py::object face = Owned(method_type->tp_alloc(method_type, 0));
  auto& method = Behind<Method>(face.ptr());
  method.call = VectorCall;
  method.owner = FindClass(class_name);
  if (method.owner == nullptr) throw py::key_error(std::string(class_name));
  const MemberInfo found = FindMember(*method.owner, member);
  method.property = found.property;
  method.operation = found.operation;
  method.names = new std::vector<PyObject*>;
  if (method.operation != nullptr) {
    for (const ParameterInfo& parameter : method.operation->parameters) {
      method.names->push_back(PyUnicode_InternFromString(std::string(parameter.name).c_str()));
    }
  }
  return face;
}

std::size_t ParameterNamed(const Method& method, PyObject* name) {
  const auto is_same = [&](PyObject* known) {
    return known == name || PyUnicode_Compare(known, name) == 0;
  };
  const auto found = std::ranges::find_if(*method.names, is_same);
  if (found == method.names->end()) {
    RaiseWrongCall(method, Error::kNamedArgumentNotFound, py::str(py::handle(name)));
  }
  return static_cast<std::size_t>(found - method.names->begin());
}

Value CallOperation(const Method& method, const Instance& instance, const Arguments& arguments) {
  const Object& object = ObjectOf(instance);
  return InLibrary(method.operation->may_block,
                   [&] { return Invoke(object, *method.operation, arguments); });
}

}  // namespace ZQ7Python
