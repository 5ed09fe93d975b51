#include "services.h"

#include <ZQ7Standard/platform/block_cipher.h>
#include <ZQ7Standard/platform/clock.h>
#include <ZQ7Standard/platform/date_convention.h>
#include <ZQ7Standard/platform/message_box.h>
#include <ZQ7Standard/platform/print_picture.h>
#include <ZQ7Standard/platform/printers.h>
#include <ZQ7Standard/platform/random_source.h>
#include <ZQ7Standard/platform/recording_printers.h>
#include <ZQ7Standard/platform/registry.h>
#include <ZQ7Standard/platform/serial_port.h>
#include <pybind11/stl.h>

#include <string>
#include <utility>
#include <vector>

#include "errors.h"
#include "values.h"

namespace ZQ7Python {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

DateConvention ConventionOf(const py::object& name) {
  const std::string text = py::str(name);
  if (const auto convention = DateConventionNamed(text)) return *convention;
  throw py::value_error(R"(convention: "mdy", "dmy", "mdy-buddhist" or "dmy-buddhist", not )" +
                        std::string(py::repr(name)));
}

OleDate DateOf(const py::object& date) {
  static const ClassInfo services = {.name = "services"};
  static const TypeInfo type = {.type = Type::kDate};
  if (!py::isinstance(date, py::module_::import("datetime").attr("datetime"))) {
    throw py::type_error("clock: a datetime, not " + std::string(py::repr(date)));
  }
  return DateFromPython(date.ptr(), {services, "clock", "result", type});
}

Text TextOf(const py::handle& text) {
  return TextFromPython(py::str(text).ptr());
}

/// A service that Python code provides: the entry of an instance's callables with that name.
class Provided {
 public:
  Provided(std::shared_ptr<Callables> callables, const char* name)
      : callables_(std::move(callables)), name_(name) {}

  template <typename... Arguments>
  py::object operator()(const Arguments&... arguments) const {
    if (callables_->by_name == nullptr) throw py::value_error("the object was collected");
    return py::handle(callables_->by_name)[name_](arguments...);
  }

 private:
  std::shared_ptr<Callables> callables_;
  const char* name_;
};

class ProvidedClock final : public Clock {
 public:
  explicit ProvidedClock(Provided now) : now_(std::move(now)) {}
  OleDate Now() override {
    return InPython([this] { return DateOf(now_()); });
  }

 private:
  Provided now_;
};

class ProvidedConvention final : public DateConventionSource {
 public:
  explicit ProvidedConvention(Provided current) : current_(std::move(current)) {}
  DateConvention Current() override {
    return InPython([this] { return ConventionOf(current_()); });
  }

 private:
  Provided current_;
};

class ProvidedMessageBox final : public MessageBox {
 public:
  explicit ProvidedMessageBox(Provided show) : show_(std::move(show)) {}
  void Show(const Message& message) override {
    InPython([&] { show_(TextToPython(message.title), TextToPython(message.text)); });
  }

 private:
  Provided show_;
};

class ProvidedRandom final : public RandomSource {
 public:
  explicit ProvidedRandom(Provided next) : next_(std::move(next)) {}
  void Reseed() override {}
  float Next() override {
    return InPython([this] { return next_().cast<float>(); });
  }

 private:
  Provided next_;
};

/// Raises the events of an instance: calls the handler with the event's name.
class Handlers final : public EventSink {
 public:
  explicit Handlers(std::shared_ptr<Callables> callables) : callables_(std::move(callables)) {}

  void Raise(const EventInfo& event, std::span<const Value> arguments) override {
    InPython([&] {
      if (callables_->by_name == nullptr) return;
      const auto by_name = py::reinterpret_borrow<py::dict>(callables_->by_name);
      const py::str name = Str(event.name);
      if (!by_name.contains(name) || by_name[name].is_none()) return;
      const py::object handler = by_name[name];
      py::tuple values(arguments.size());
      for (std::size_t i = 0; i < arguments.size(); ++i) {
        values[i] = ValueToPython(arguments[i], event.parameters[i].type);
      }
      handler(*values);
    });
  }

 private:
  std::shared_ptr<Callables> callables_;
};

/// A Python object that the library may release on any thread, without the interpreter's lock.
class Held {
 public:
  explicit Held(py::object object) : object_(std::move(object)) {}
  ~Held() {
    const PyGILState_STATE lock = PyGILState_Ensure();
    Py_DECREF(object_.release().ptr());
    PyGILState_Release(lock);
  }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;

  /// Reads an attribute as a `T`.
  template <typename T>
  T Get(const char* name) const {
    return InPython([&] { return object_.attr(name).template cast<T>(); });
  }
  template <typename T>
  void Set(const char* name, const T& value) const {
    InPython([&] { py::setattr(object_, name, ToPython(value)); });
  }

 private:
  static py::object ToPython(TextView text) { return TextToPython(text); }
  static py::object ToPython(std::int16_t number) { return py::int_(number); }
  static py::object ToPython(bool flag) { return py::bool_(flag); }

  py::object object_;
};

class HostSerialPort final : public SerialPort {
 public:
  explicit HostSerialPort(const py::object& object) : object_(object) {}
  void SetCommPort(std::int16_t port) override { object_.Set("CommPort", port); }
  void SetSettings(TextView settings) override { object_.Set("Settings", settings); }
  void SetInputLen(std::int16_t length) override { object_.Set("InputLen", length); }
  void SetPortOpen(bool open) override { object_.Set("PortOpen", open); }
  void SetOutput(TextView text) override { object_.Set("Output", text); }
  bool PortOpen() const override { return object_.Get<bool>("PortOpen"); }

 private:
  Held object_;
};

class HostPicture final : public PrintPicture {
 public:
  explicit HostPicture(const py::object& object) : object_(object) {}
  float Width() override { return object_.Get<float>("Width"); }
  float Height() override { return object_.Get<float>("Height"); }
  std::string_view Picture() override {
    if (bytes_.empty()) bytes_ = object_.Get<std::string>("Picture");
    return bytes_;
  }

 private:
  Held object_;
  std::string bytes_;
};

DriveMap DrivesOf(const py::dict& services) {
  DriveMap drives;
  if (!services.contains("drives")) return drives;
  for (const auto& [letter, folder] : py::dict(services["drives"])) {
    const std::string text = py::str(letter);
    if (text.size() != 1 || text[0] < 'A' || text[0] > 'Z') {
      throw py::value_error("drives: a letter from A to Z, not " + std::string(py::repr(letter)));
    }
    const py::object path = py::module_::import("os").attr("fsencode")(folder);
    drives[text[0]] = path.cast<std::string>();
  }
  return drives;
}

/// Takes the services of one dictionary.
class ServiceReader {
 public:
  ServiceReader(const py::dict& given, const std::shared_ptr<Callables>& callables)
      : given_(given), callables_(callables) {}

  Services Read() const {
    Services services;
    services.drives = DrivesOf(given_);
    ReadDates(services);
    if (given_.contains("message_box")) {
      services.message_box = std::make_shared<ProvidedMessageBox>(Callable("message_box"));
    }
    if (given_.contains("random")) {
      services.random_source = std::make_shared<ProvidedRandom>(Callable("random"));
    }
    if (given_.contains("serial_devices")) {
      services.serial_devices = given_["serial_devices"].cast<SerialDevices>();
    }
    if (given_.contains("os")) services.os = TextOf(given_["os"]);
    if (IsSet("memory_registry")) services.registry = MemoryRegistry();
    if (IsSet("sodium_cipher")) services.block_cipher = CipherOrRaise();
    ReadPrinters(services);
    return services;
  }

 private:
  bool IsSet(const char* name) const { return given_.contains(name) && py::bool_(given_[name]); }

  Provided Callable(const char* name) const {
    if (PyCallable_Check(py::object(given_[name]).ptr()) == 0) {
      throw py::type_error(std::string(name) + ": not callable");
    }
    return {callables_, name};
  }

  /// Each of these is a value that stays, or a callable that is asked every time.
  void ReadDates(Services& services) const {
    if (given_.contains("clock")) {
      const py::object clock = given_["clock"];
      services.clock = PyCallable_Check(clock.ptr()) != 0
                           ? std::make_shared<ProvidedClock>(Callable("clock"))
                           : FixedClock(DateOf(clock));
    }
    if (given_.contains("convention")) {
      const py::object convention = given_["convention"];
      services.date_convention = PyCallable_Check(convention.ptr()) != 0
                                     ? std::make_shared<ProvidedConvention>(Callable("convention"))
                                     : FixedDateConvention(ConventionOf(convention));
    }
  }

  void ReadPrinters(Services& services) const {
    if (given_.contains("pdf_folder")) {
      const py::object path = py::module_::import("os").attr("fsencode")(given_["pdf_folder"]);
      services.printers = SystemPrinters(path.cast<std::string>());
    }
    if (!given_.contains("silent_printers")) return;
    std::vector<Text> names;
    for (const py::handle name : py::list(given_["silent_printers"])) names.push_back(TextOf(name));
    services.printers = RecordingPrinters(names);
  }

  static BlockCipherFactory CipherOrRaise() {
    BlockCipherFactory cipher = BuiltInBlockCipher();
    if (!cipher) throw py::value_error("sodium_cipher: the library was built without libsodium");
    return cipher;
  }

  const py::dict& given_;
  const std::shared_ptr<Callables>& callables_;
};

}  // namespace

Object MakeObject(std::string_view class_name, const py::dict& services,
                  const std::shared_ptr<Callables>& callables) {
  if (class_name == "PrintPicture" && services.contains("path")) {
    return Wrap(PictureFromFile(TextOf(services["path"]), DrivesOf(services)));
  }
  Py_XDECREF(std::exchange(callables->by_name, services.inc_ref().ptr()));
  return Create(class_name, ServiceReader(services, callables).Read());
}

std::shared_ptr<void> SubscribeTo(const Object& object,
                                  const std::shared_ptr<Callables>& callables) {
  return Subscribe(object, std::make_shared<Handlers>(callables));
}

Object WrapHostObject(const py::object& object, std::string_view class_name) {
  if (class_name == "SerialPort") return Wrap(std::make_shared<HostSerialPort>(object));
  if (class_name == "PrintPicture") return Wrap(std::make_shared<HostPicture>(object));
  throw py::type_error("no Python object can be a " + std::string(class_name));
}

}  // namespace ZQ7Python
