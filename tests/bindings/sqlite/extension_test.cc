#include <ZQ7Standard/automation/tables.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <array>
#include <cstdlib>
#include <memory>
#include <string>

namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

struct Closed {
  void operator()(sqlite3* database) const { sqlite3_close(database); }
};

std::unique_ptr<sqlite3, Closed> Database() {
  sqlite3* database = nullptr;
  sqlite3_open(":memory:", &database);
  sqlite3_enable_load_extension(database, 1);
  char* message = nullptr;
  EXPECT_EQ(sqlite3_load_extension(database, std::getenv("ZQ7_EXTENSION"), nullptr, &message),
            SQLITE_OK)
      << message;
  return std::unique_ptr<sqlite3, Closed>(database);
}

std::string Quoted(const std::string& text) {
  std::string quoted = "'";
  for (const char c : text) quoted.append(c == '\'' ? "''" : std::string(1, c));
  return quoted += "'";
}

/// A value as SQL writes it; texts of lists as JSON.
struct SqlVisitor {
  std::string operator()(const Text& text) const { return Quoted(Utf8(text)); }
  std::string operator()(OleDate date) const { return (*this)(date.ToText()); }
  std::string operator()(Currency amount) const { return Utf8(amount.ToText()); }
  std::string operator()(bool flag) const { return flag ? "1" : "0"; }
  std::string operator()(float number) const { return (*this)(static_cast<double>(number)); }
  std::string operator()(double number) const {
    std::array<char, 40> digits;
    std::snprintf(digits.data(), digits.size(), "%.17e", number);
    return digits.data();
  }
  std::string operator()(std::int16_t number) const { return std::to_string(number); }
  std::string operator()(std::int32_t number) const { return std::to_string(number); }
  std::string operator()(const TextList& list) const {
    std::string call = "json_array(";
    for (const Text& item : list) call += (&item == list.data() ? "" : ",") + (*this)(item);
    return call + ")";
  }
  std::string operator()(const auto& /*none*/) const { return "NULL"; }
};

std::string CallOf(const TableOperation& callee, const Example& example) {
  std::string call = "zq7_" + callee.name + "(";
  for (const Value& argument : example.arguments) {
    call += (&argument == example.arguments.data() ? "" : ",") + std::visit(SqlVisitor{}, argument);
  }
  return call + ")";
}

/// "1" if the condition holds; the message of an error.
std::string Answer(sqlite3* database, const std::string& condition) {
  std::string answer;
  char* message = nullptr;
  sqlite3_exec(
      database, ("SELECT " + condition).c_str(),
      [](void* result, int, char** columns, char**) {
        *static_cast<std::string*>(result) = columns[0] == nullptr ? "NULL" : columns[0];
        return 0;
      },
      &answer, &message);
  if (message != nullptr) answer = message;
  sqlite3_free(message);
  return answer;
}

// Every exported operation gives the result of its examples, on a new object each time. Those at
// the examples' time of day are left to operations that take the time as an argument.
TEST(SQLite, ExamplesHold) {
  const auto database = Database();
  int checked = 0;
  for (const TableOperation& callee : TableOperations()) {
    if (callee.operation->effect == Effect::kClock) continue;
    for (const Example& example : callee.operation->examples) {
      if (!example.before.empty()) continue;
      const std::string call = CallOf(callee, example);
      const std::string error = "(error " + std::to_string(example.error) + ")";
      const std::string answer =
          Answer(database.get(), call + " IS " + std::visit(SqlVisitor{}, example.result));
      if (example.error == 0) {
        EXPECT_EQ(answer, "1") << call;
      } else {
        EXPECT_NE(answer.find(error), std::string::npos) << call << ": " << answer;
      }
      ++checked;
    }
  }
  EXPECT_GT(checked, 200);
}

}  // namespace
