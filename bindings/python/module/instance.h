#ifndef ZQ7STANDARD_BINDINGS_PYTHON_MODULE_INSTANCE_H_
#define ZQ7STANDARD_BINDINGS_PYTHON_MODULE_INSTANCE_H_

#include <ZQ7Standard/automation/invoke.h>

#include <memory>
#include <optional>
#include <vector>

#include "python.h"

namespace ZQ7Python {

/// The Python callables of an instance, by name: its services and the handlers of its events. The
/// instance owns the dictionary, so that the garbage collector sees it; what is called from the
/// library only shares this struct, and finds the dictionary null once it is gone.
struct Callables {
  PyObject* by_name = nullptr;
};

/// What a Python object of the package holds.
struct Instance {
  PyObject head;
  std::optional<ZQ7Standard::Automation::Object> object;
  std::shared_ptr<Callables> callables;
  std::shared_ptr<void> subscription;
  unsigned long thread;  ///< the one that is calling, if `calls` is not 0
  int calls;             ///< that run at the moment, one inside the other
};

/// The base of all classes of the package.
PyTypeObject* InstanceType();
PyTypeObject* NewInstanceType();

/// The instance behind a Python object; null if it is of another type.
Instance* FindInstance(PyObject* object);

/// The object of an instance; raises RuntimeError if its `__init__` did not run.
const ZQ7Standard::Automation::Object& ObjectOf(const Instance& instance);

/// Marks instances as busy as long as it lives, because an operation may release the lock of the
/// interpreter itself, or run Python code that does.
class BusyMarks {
 public:
  explicit BusyMarks(Instance& instance) : first_(&instance) { Enter(instance); }
  ~BusyMarks() {
    --first_->calls;
    for (Instance* other : others_) --other->calls;
  }
  BusyMarks(const BusyMarks&) = delete;
  BusyMarks& operator=(const BusyMarks&) = delete;

  /// Marks an argument too.
  void Add(Instance& instance) {
    others_.reserve(others_.size() + 1);
    Enter(instance);
    others_.push_back(&instance);
  }

 private:
  /// Raises RuntimeError if another thread is calling.
  static void Enter(Instance& instance);

  Instance* first_;
  std::vector<Instance*> others_;
};

}  // namespace ZQ7Python

#endif  // ZQ7STANDARD_BINDINGS_PYTHON_MODULE_INSTANCE_H_
