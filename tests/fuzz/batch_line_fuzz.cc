// The answer to any line of a batch is one line of JSON, and any JSON read is written as JSON that
// reads the same.

#include <nlohmann/json.hpp>

#include "batch_session.h"
#include "tests/fuzz/check.h"

using namespace ZQ7Tool;

namespace {

/// A class whose calls touch nothing outside the session.
constexpr std::string_view kClass = "StandardObject";

std::string CallOf(std::string_view arguments, std::uint8_t index) {
  const auto& operations = ZQ7Standard::Automation::FindClass(kClass)->operations;
  const auto& operation = operations[index % operations.size()];
  return std::string(R"({"id":7,"object":"it","call":")")
      .append(operation.name)
      .append(R"(","args":)")
      .append(arguments)
      .append("}");
}

bool IsSafe(const std::string& line) {
  try {
    std::string id;
    Json request = ReadJson(line, &id);
    if (!id.empty()) {
      std::string again;
      ReadJson("{\"id\":" + id + "}", &again);
      ZQ7Standard::Check(again == id);
      request.erase("id");  // its numbers may exceed doubles
    }
    ZQ7Standard::Check(ReadJson(WriteJson(request)) == request);
    return !request.is_object() || !request.contains("class") || request["class"] == kClass;
  } catch (const JsonError&) {
    return true;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  BatchSession session(Settings{.now = ZQ7Standard::OleDate(45306.5)});
  session.Answer(R"({"class":"StandardObject","object":"it"})");
  std::string line(data + 1, data + size);
  if (data[0] != '{') line = CallOf(line, data[0]);
  if (!IsSafe(line)) return 0;
  const std::string answer = session.Answer(line);
  ZQ7Standard::Check(answer.find('\n') == std::string::npos);
  std::string id;
  const Json read = ReadJson(answer, &id);
  ZQ7Standard::Check(read.contains("result") != read.contains("error"));
  return 0;
}
