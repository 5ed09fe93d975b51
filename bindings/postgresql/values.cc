#include "values.h"

#include <chrono>
#include <limits>
#include <variant>

#include "failures.h"
#include "moments.h"

namespace ZQ7PostgreSQL {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;
using std::chrono::local_days;

constexpr local_days k2000{std::chrono::year(2000) / 1 / 1};

/// The first microsecond of the range of dates, and the first after it.
constexpr std::int64_t Midnight(std::chrono::local_days day) {
  return std::chrono::microseconds(day - k2000).count();
}
constexpr std::int64_t kBegin = Midnight(local_days{std::chrono::year(100) / 1 / 1});
constexpr std::int64_t kEnd = Midnight(local_days{std::chrono::year(10000) / 1 / 1});

[[noreturn]] void RefuseText(const std::string& problem) {
  throw Refused(kCharacterNotInRepertoire, "the result contains " + problem);
}

void RequireFitting(std::size_t size) {
  if (size <= kMaxResult) return;
  throw Refused(kProgramLimitExceeded, "the result is longer than 256 MB");
}

/// The text in UTF-8. Refuses what UTF-8 in a database lacks: U+0000, and half a character, which
/// `Utf8` replaces.
std::string Stored(const Text& text) {
  RequireFitting(text.size());  // each code unit takes a byte or more
  std::string bytes = Utf8(text);
  RequireFitting(bytes.size());
  if (bytes.find('\0') != std::string::npos) RefuseText("the character U+0000");
  const bool replaced = bytes.find("\xEF\xBF\xBD") != std::string::npos;
  if (replaced && !IsWellFormed(text)) RefuseText("half of a character beyond U+FFFF");
  return bytes;
}

/// The digits of currency as a value. What is not a number overflows.
Value ValueOfDigits(std::string_view digits) {
  const char last = digits.empty() ? '0' : digits.back();
  if (last == 'N') return std::numeric_limits<double>::quiet_NaN();
  if (last == 'y') return std::numeric_limits<double>::infinity();
  return FromUtf8(digits);
}

/// Reads what each kind of value holds.
struct Reader {
  ResultTexts& memory;

  Plain operator()(Omitted /*none*/) const { return {.is_null = true}; }
  Plain operator()(Null /*null*/) const { return {.is_null = true}; }
  Plain operator()(std::int16_t number) const { return {.whole = number}; }
  Plain operator()(std::int32_t number) const { return {.whole = number}; }
  Plain operator()(bool flag) const { return {.whole = flag ? 1 : 0}; }
  Plain operator()(float number) const { return {.real = number}; }
  Plain operator()(double number) const { return {.real = number}; }
  Plain operator()(OleDate date) const {
    return {.whole = ZQ7Bindings::MicrosecondsSince(k2000, ZQ7Bindings::MomentOf(date))};
  }
  Plain operator()(Currency amount) const {
    memory.text = Utf8(amount.ToText());
    return {.text = memory.text};
  }
  Plain operator()(const Text& text) const {
    memory.text = Stored(text);
    return {.text = memory.text};
  }
  Plain operator()(const TextList& list) const {
    std::size_t size = 0;
    memory.texts.clear();
    for (const Text& text : list) {
      memory.texts.push_back(Stored(text));
      RequireFitting(size += memory.texts.back().size());
    }
    memory.list.assign(memory.texts.begin(), memory.texts.end());
    return {.list = memory.list};
  }
  Plain operator()(const Object& object) const {
    throw std::logic_error("a result of class " + std::string(object.Class().name));
  }
};

}  // namespace

bool IsDate(std::int64_t microseconds) noexcept {
  return microseconds >= kBegin && microseconds < kEnd;
}

OleDate DateFromMicroseconds(std::int64_t microseconds) {
  return OleDate(ZQ7Bindings::DayCount(ZQ7Bindings::MomentAt(microseconds, k2000)));
}

void Assign(const Plain& argument, Type type, Value& value) {
  if (argument.is_null) {
    value.emplace<Null>();
    return;
  }
  switch (type) {
    case Type::kText:
      value.emplace<Text>(FromUtf8(argument.text));
      break;
    case Type::kByte:
    case Type::kInteger:
    case Type::kLong:
      value.emplace<std::int32_t>(static_cast<std::int32_t>(argument.whole));
      break;
    case Type::kSingle:
    case Type::kDouble:
      value.emplace<double>(argument.real);
      break;
    case Type::kBoolean:
      value.emplace<bool>(argument.whole != 0);
      break;
    case Type::kDate:
      value.emplace<OleDate>(DateFromMicroseconds(argument.whole));
      break;
    case Type::kCurrency:
      value = ValueOfDigits(argument.text);
      break;
    case Type::kNothing:
    case Type::kTextList:
    case Type::kObject:
      throw std::logic_error("an argument of a type that no function takes");
  }
}

Plain ToPlain(const Value& value, ResultTexts& memory) {
  return std::visit(Reader{memory}, value);
}

}  // namespace ZQ7PostgreSQL
