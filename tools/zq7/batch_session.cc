#include "batch_session.h"

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/message_box.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

#include "enumerators.h"
#include "names.h"
#include "objects.h"

namespace ZQ7Tool {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

/// What happens besides, while a line is answered.
class BatchSession::Journal final : public EventSink, public MessageBox {
 public:
  void Raise(const EventInfo& event, std::span<const Value> arguments) override {
    Json values = Json::array();
    for (const Value& argument : arguments) values.push_back(JsonOfValue(argument));
    events_.push_back({{"event", event.name}, {"args", std::move(values)}});
  }

  void Show(const Message& message) override {
    messages_.push_back(Json::array({JsonOfText(message.title), JsonOfText(message.text)}));
  }

  void MoveTo(Json& reply) {
    if (!events_.empty()) reply["events"] = std::exchange(events_, Json::array());
    if (!messages_.empty()) reply["messages"] = std::exchange(messages_, Json::array());
  }

 private:
  Json events_ = Json::array();
  Json messages_ = Json::array();
};

namespace {

const std::vector<std::string> kKeys = {"id",  "class", "object", "call",
                                        "get", "set",   "args",   "value"};

Json ErrorOf(const char* what) {
  // The text may quote arbitrary input.
  return {{"message", Utf8(FromUtf8(what))}};
}

std::string StringAt(const Json& request, const char* key) {
  const Json& value = request[key];
  if (!value.is_string()) throw JsonError(Quoted(key) + " is not a string");
  return value.get<std::string>();
}

/// Whether `key` is present, which it may be only together with `other`.
bool HasBeside(const Json& request, const char* key, const char* other) {
  if (!request.contains(key)) return false;
  if (!request.contains(other)) {
    throw JsonError(Quoted(key) + " without " + Quoted(other));
  }
  return true;
}

/// Refuses a line whose keys ask for no call, or for several.
void CheckKeys(const Json& request) {
  for (const auto& [key, value] : request.items()) {
    if (std::ranges::find(kKeys, key) != kKeys.end()) continue;
    throw JsonError("unknown key " + Quoted(key) + "." + Hint(key, kKeys));
  }
  const auto has = [&](const char* key) { return request.contains(key); };
  const int verbs =
      static_cast<int>(has("call")) + static_cast<int>(has("get")) + static_cast<int>(has("set"));
  if (verbs > 1) throw JsonError(R"(more than one of "call", "get" and "set")");
  if (!has("class") && !has("object")) throw JsonError(R"(neither "class" nor "object")");
  // A class and an object name are enough to create an object.
  if (verbs == 0 && !(has("class") && has("object"))) {
    throw JsonError(R"(none of "call", "get" and "set")");
  }
  HasBeside(request, "args", "call");
  if (!HasBeside(request, "value", "set") && has("set")) {
    throw JsonError(R"("set" without "value")");
  }
}

/// Reads a text as the name of an enumeration member; a number as text is left to the call.
void ReadMember(const TypedCall& call, const ParameterInfo& parameter, Value& value) {
  const EnumerationInfo* const enumeration = parameter.type.enumeration;
  const auto* const text = std::get_if<Text>(&value);
  if (enumeration == nullptr || text == nullptr) return;
  const std::string name = Utf8(*text);
  if (!IsIdentifier(name)) return;
  const auto member = ValueOfEnumerator(*enumeration, name);
  if (!member) {
    throw RunTimeError({.number = static_cast<int>(Error::kTypeMismatch),
                        .text = "type mismatch." + EnumeratorHint(*enumeration, name),
                        .class_name = std::string(call.owner.name),
                        .operation = std::string(call.operation.name),
                        .parameter = std::string(parameter.name),
                        .input = *text});
  }
  value = *member;
}

}  // namespace

BatchSession::BatchSession(const Settings& settings)
    : journal_(std::make_shared<Journal>()), host_(settings, journal_) {}

std::string BatchSession::Answer(std::string_view line) {
  std::string answer = "{";
  Json outcome = Json::object();
  try {
    std::string id;
    const Json request = ReadJson(line, &id);
    if (!request.is_object()) throw JsonError("not a JSON object");
    if (!id.empty()) answer.append("\"id\":").append(id) += ',';
    CheckKeys(request);
    const Value result = Perform(request);
    outcome["result"] = JsonOfValue(result, objects_);
  } catch (const RunTimeError& error) {
    outcome["error"] = {{"number", error.Number()}};
    outcome["error"].update(ErrorOf(error.what()));
  } catch (const std::exception& error) {
    outcome["error"] = ErrorOf(error.what());
  }
  journal_->MoveTo(outcome);
  return answer += WriteJson(outcome).substr(1);
}

Value BatchSession::Perform(const Json& request) {
  const Object object = ObjectFor(request);
  const auto subscription = Subscribe(object, journal_);
  if (request.contains("call")) return CallOperation(object, request);
  if (request.contains("get")) return GetProperty(object, StringAt(request, "get"));
  if (request.contains("set")) {
    SetProperty(object, StringAt(request, "set"), ValueOfJson(request["value"], objects_));
  }
  return Omitted{};
}

/// The object of a line: a new one if it names a class, kept if it also names the object.
Object BatchSession::ObjectFor(const Json& request) {
  if (!request.contains("class")) {
    const std::string name = StringAt(request, "object");
    const auto found = objects_.find(name);
    if (found == objects_.end()) throw JsonError("there is no object " + Quoted(name));
    return found->second;
  }
  const std::string class_name = StringAt(request, "class");
  if (!request.contains("object")) return Create(class_name, host_.Services());
  const std::string name = StringAt(request, "object");
  return objects_.insert_or_assign(name, Create(class_name, host_.Services())).first->second;
}

Value BatchSession::CallOperation(const Object& object, const Json& request) const {
  const std::string operation = StringAt(request, "call");
  std::vector<Value> positional;
  std::vector<NamedArgument> named;
  const Json none = Json::array();
  const Json& arguments = request.contains("args") ? request["args"] : none;
  if (arguments.is_array()) {
    for (const Json& value : arguments) positional.push_back(ValueOfJson(value, objects_));
  } else if (arguments.is_object()) {
    for (const auto& [name, value] : arguments.items()) {
      named.push_back({name, ValueOfJson(value, objects_)});
    }
  } else {
    throw JsonError(R"("args" is neither a list nor an object)");
  }
  const OperationInfo* const found = FindOperation(object.Class(), operation);
  if (found == nullptr) return Invoke(object, operation, {});  // raises that it does not exist
  TypedCall call = {object.Class(), *found, std::move(positional), std::move(named)};
  ForEachArgument(call, [&](const ParameterInfo& parameter, Value& value) {
    ReadMember(call, parameter, value);
  });
  MakeObjects(call, host_.Services());
  return Invoke(object, *found, {call.positional, call.named});
}

std::string ErrorLine(const std::string& message) {
  return WriteJson({{"error", ErrorOf(message.c_str())}});
}

}  // namespace ZQ7Tool
