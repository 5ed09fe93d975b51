#include "sqlite/values.h"

#include <ZQ7Standard/RunTimeError.h>

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

SQLITE_EXTENSION_INIT3

namespace ZQ7SQLite {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

/// What marks a text as JSON for SQLite's own functions.
constexpr unsigned int kJsonSubtype = 'J';

[[noreturn]] void RaiseMismatch(const ParameterInfo& parameter, std::string_view mistake) {
  throw RunTimeError({.number = static_cast<int>(Error::kTypeMismatch),
                      .text = "type mismatch",
                      .parameter = std::string(parameter.name),
                      .input = FromUtf8(mistake)});
}

std::string_view TextOf(sqlite3_value* value) {
  const unsigned char* const text = sqlite3_value_text(value);
  if (text == nullptr) throw std::bad_alloc();
  // SQLite's UTF-8 is a pointer to unsigned char.
  return {reinterpret_cast<const char*>(text),  // NOLINT(*-reinterpret-cast)
          static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

Value DateOf(sqlite3_value* value, const ParameterInfo& parameter) {
  const std::string_view text = TextOf(value);
  const bool is_text = sqlite3_value_type(value) == SQLITE_TEXT;
  if (const auto date = OleDate::FromIso(text); date && is_text) return *date;
  RaiseMismatch(parameter, text);
}

/// A result in UTF-8. Half a surrogate pair has no form there, and many programs end a text at a
/// character 0.
std::string StorableText(TextView text) {
  if (!IsWellFormed(text) || text.find(u'\0') != TextView::npos) {
    throw RunTimeError(Error::kInvalidArgument, "the result is not a text that SQLite can hold");
  }
  return Utf8(text);
}

void SetText(sqlite3_context* context, TextView text) {
  const std::string utf8 = StorableText(text);
  sqlite3_result_text64(context, utf8.data(), utf8.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

void SetJson(sqlite3_context* context, const TextList& list) {
  nlohmann::json items = nlohmann::json::array();
  for (const Text& item : list) items.push_back(StorableText(item));
  const std::string json = items.dump();
  sqlite3_result_text64(context, json.data(), json.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
  sqlite3_result_subtype(context, kJsonSubtype);
}

struct ResultVisitor {
  sqlite3_context* context;

  void operator()(Omitted /*none*/) const { sqlite3_result_null(context); }
  void operator()(Null /*null*/) const { sqlite3_result_null(context); }
  void operator()(const Text& text) const { SetText(context, text); }
  void operator()(std::int16_t number) const { sqlite3_result_int(context, number); }
  void operator()(std::int32_t number) const { sqlite3_result_int(context, number); }
  void operator()(float number) const { sqlite3_result_double(context, number); }
  void operator()(double number) const { sqlite3_result_double(context, number); }
  void operator()(bool flag) const { sqlite3_result_int(context, flag ? 1 : 0); }
  void operator()(OleDate date) const { SetText(context, date.ToText()); }
  void operator()(Currency amount) const { sqlite3_result_double(context, amount.ToDouble()); }
  void operator()(const TextList& list) const { SetJson(context, list); }
  void operator()(const Object& /*object*/) const { sqlite3_result_null(context); }
};

}  // namespace

Value ArgumentOf(sqlite3_value* value, const ParameterInfo& parameter) {
  const int type = sqlite3_value_type(value);
  if (type == SQLITE_NULL) return Null{};
  if (type == SQLITE_BLOB) RaiseMismatch(parameter, "a blob");
  if (parameter.type.type == Type::kDate) return DateOf(value, parameter);
  // The digits of a code that is stored as a number are more than a double has.
  const bool code = type == SQLITE_INTEGER && parameter.type.type == Type::kText;
  if (type == SQLITE_TEXT || code) return FromUtf8(TextOf(value));
  return sqlite3_value_double(value);
}

void SetResult(sqlite3_context* context, const Value& value) {
  std::visit(ResultVisitor{context}, value);
}

}  // namespace ZQ7SQLite
