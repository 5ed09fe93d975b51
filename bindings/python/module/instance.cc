#include "instance.h"

#include <array>
#include <new>
#include <utility>

#include "errors.h"
#include "services.h"

namespace ZQ7Python {
namespace {

using namespace ZQ7Standard;

PyTypeObject* instance_type = nullptr;

PyObject* New(PyTypeObject* type, PyObject* /*arguments*/, PyObject* /*named*/) {
  PyObject* const face = type->tp_alloc(type, 0);
  if (face == nullptr) return nullptr;
  auto& instance = Behind<Instance>(face);
  new (&instance.object) std::optional<Automation::Object>();
  new (&instance.callables) std::shared_ptr<Callables>(std::make_shared<Callables>());
  new (&instance.subscription) std::shared_ptr<void>();
  return face;
}

int Clear(PyObject* face) {
  Py_CLEAR(Behind<Instance>(face).callables->by_name);
  return 0;
}

int Traverse(PyObject* face, visitproc visit, void* arg) {
  Py_VISIT(Py_TYPE(face));
  Py_VISIT(Behind<Instance>(face).callables->by_name);
  return 0;
}

void Deallocate(PyObject* face) {
  PyObject_GC_UnTrack(face);
  auto& instance = Behind<Instance>(face);
  PyTypeObject* const type = Py_TYPE(face);
  // In this order: the object may still call its services while it is destroyed.
  std::exchange(instance.subscription, nullptr).reset();
  instance.object.reset();
  Clear(face);
  std::destroy_at(&instance.subscription);
  std::destroy_at(&instance.object);
  std::destroy_at(&instance.callables);
  type->tp_free(face);
  Py_DECREF(type);
}

/// Object.__init__(class_name, services)
int Initialise(PyObject* face, PyObject* arguments, PyObject* /*named*/) {
  const char* class_name = nullptr;
  PyObject* services = nullptr;
  if (PyArg_ParseTuple(arguments, "sO!", &class_name, &PyDict_Type, &services) == 0) return -1;
  auto& instance = Behind<Instance>(face);
  const bool done = CatchAll([&] {
    if (instance.object) {
      PyErr_SetString(PyExc_RuntimeError, "an object is initialised once");
      throw py::error_already_set();
    }
    instance.object =
        MakeObject(class_name, py::reinterpret_borrow<py::dict>(services), instance.callables);
    return true;
  });
  return done ? 0 : -1;
}

/// Object._handler(event) and Object._set_handler(event, callable)
PyObject* GetHandler(PyObject* face, PyObject* event) {
  const auto& callables = Behind<Instance>(face).callables;
  PyObject* found =
      callables->by_name == nullptr ? nullptr : PyDict_GetItem(callables->by_name, event);
  if (found == nullptr) found = Py_None;
  Py_INCREF(found);
  return found;
}

PyObject* SetHandler(PyObject* face, PyObject* arguments) {
  PyObject* event = nullptr;
  PyObject* handler = nullptr;
  if (PyArg_ParseTuple(arguments, "UO", &event, &handler) == 0) return nullptr;
  auto& instance = Behind<Instance>(face);
  const bool done = CatchAll([&] {
    if (handler != Py_None && PyCallable_Check(handler) == 0) {
      throw py::type_error("the handler of an event is a callable or None");
    }
    const BusyMarks busy(instance);
    if (instance.subscription == nullptr) {
      instance.subscription = SubscribeTo(ObjectOf(instance), instance.callables);
    }
    if (PyDict_SetItem(instance.callables->by_name, event, handler) != 0) {
      throw py::error_already_set();
    }
    return true;
  });
  if (!done) return nullptr;
  Py_RETURN_NONE;
}

}  // namespace

PyTypeObject* InstanceType() {
  return instance_type;
}

PyTypeObject* NewInstanceType() {
  static std::array<PyMethodDef, 3> methods = {{
      {"_handler", GetHandler, METH_O, nullptr},
      {"_set_handler", SetHandler, METH_VARARGS, nullptr},
      {},
  }};
  static std::array<PyType_Slot, 8> slots = {{
      {Py_tp_new, reinterpret_cast<void*>(New)},             // NOLINT(*-reinterpret-cast)
      {Py_tp_init, reinterpret_cast<void*>(Initialise)},     // NOLINT(*-reinterpret-cast)
      {Py_tp_dealloc, reinterpret_cast<void*>(Deallocate)},  // NOLINT(*-reinterpret-cast)
      {Py_tp_traverse, reinterpret_cast<void*>(Traverse)},   // NOLINT(*-reinterpret-cast)
      {Py_tp_clear, reinterpret_cast<void*>(Clear)},         // NOLINT(*-reinterpret-cast)
      {Py_tp_methods, methods.data()},
      {},
  }};
  static PyType_Spec layout = {"zq7standard._native.Object", static_cast<int>(sizeof(Instance)), 0,
                               Py_TPFLAGS_DEFAULT | Py_TPFLAGS_BASETYPE | Py_TPFLAGS_HAVE_GC,
                               slots.data()};
  instance_type = &Behind<PyTypeObject>(Owned(PyType_FromSpec(&layout)).release().ptr());
  return instance_type;
}

Instance* FindInstance(PyObject* object) {
  return PyObject_TypeCheck(object, instance_type) ? &Behind<Instance>(object) : nullptr;
}

const Automation::Object& ObjectOf(const Instance& instance) {
  if (instance.object) return *instance.object;
  PyErr_SetString(PyExc_RuntimeError, "__init__ of the object was not called");
  throw py::error_already_set();
}

void BusyMarks::Enter(Instance& instance) {
  const unsigned long thread = PyThread_get_thread_ident();
  if (instance.calls != 0 && instance.thread != thread) {
    PyErr_Format(PyExc_RuntimeError, "the %s is in use by another thread",
                 Py_TYPE(Face(&instance))->tp_name);
    throw py::error_already_set();
  }
  instance.thread = thread;
  ++instance.calls;
}

}  // namespace ZQ7Python
