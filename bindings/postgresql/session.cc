#include "session.h"

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/automation/tables.h>
#include <ZQ7Standard/platform/clock.h>
#include <ZQ7Standard/platform/date_convention.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "failures.h"
#include "values.h"

namespace ZQ7PostgreSQL {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

/// A backend has one thread.
DateConvention convention_set = *DateConventionNamed(kDefaultConvention);

class CallClock final : public Clock {
 public:
  OleDate Now() override { return DateFromMicroseconds(microseconds_); }
  void Set(std::int64_t microseconds) { microseconds_ = microseconds; }

 private:
  std::int64_t microseconds_ = 0;
};

class CallConvention final : public DateConventionSource {
 public:
  DateConvention Current() override { return convention_; }
  void Set(DateConvention convention) { convention_ = convention; }

 private:
  DateConvention convention_ = {};
};

DateConvention ConventionOf(const Function& function, const Plain& name) {
  const std::optional<DateConvention> found = DateConventionNamed(name.text);
  if (found) return *found;
  throw RunTimeError({.number = static_cast<int>(Error::kInvalidArgument),
                      .text = std::string("unknown date convention, not one of ") + kConventions,
                      .class_name = function.class_name,
                      .operation = std::string(function.operation->name),
                      .parameter = "convention",
                      .input = FromUtf8(name.text)});
}

class Session {
 public:
  Plain Call(const Function& function, std::span<const Plain> arguments, std::int64_t now) {
    DateConvention convention = convention_set;
    if (function.by_convention) {
      convention = ConventionOf(function, arguments.front());
      arguments = arguments.subspan(1);
    }
    convention_->Set(convention);
    clock_->Set(now);
    TakeArguments(function, arguments);
    const std::span<const Value> values = std::span(values_).first(given_);
    return ToPlain(objects_.Call(*function.owner, *function.operation, values), memory_);
  }

  void ReleaseLongTexts() {
    constexpr std::size_t kKept = std::size_t{64} << 10U;
    // To assign an empty text would keep the memory.
    if (memory_.text.capacity() > kKept) std::string().swap(memory_.text);
    memory_.texts.clear();
    for (Value& value : std::span(values_).first(given_)) {
      auto* const text = std::get_if<Text>(&value);
      if (text != nullptr && text->capacity() > kKept) Text().swap(*text);
    }
  }

 private:
  void TakeArguments(const Function& function, std::span<const Plain> arguments) {
    const auto& parameters = function.operation->parameters;
    given_ = arguments.size();
    for (std::size_t i = 0; i < arguments.size(); ++i) {
      Assign(arguments[i], parameters[i].type.type, values_[i]);
    }
  }

  std::shared_ptr<CallClock> clock_ = std::make_shared<CallClock>();
  std::shared_ptr<CallConvention> convention_ = std::make_shared<CallConvention>();
  RowObjects objects_{{.clock = clock_, .date_convention = convention_}};
  std::vector<Value> values_ = std::vector<Value>(kMaxArguments);
  std::size_t given_ = 0;  ///< how many of them the call has
  ResultTexts memory_;
};

/// Made by the first call, and kept as long as the backend lives.
std::unique_ptr<Session> the_session;

}  // namespace

bool Find(Function& function) noexcept {
  try {
    const ClassInfo* const owner = FindClass(function.class_name);
    if (owner == nullptr) return false;
    const auto found =
        std::ranges::find(owner->operations, function.number, &OperationInfo::number);
    if (found == owner->operations.end()) return false;
    function.owner = owner;
    function.operation = &*found;
    return true;
  } catch (...) {
    return false;
  }
}

Outcome Run(const Function& function, std::span<const Plain> arguments, std::int64_t now) noexcept {
  try {
    if (!the_session) the_session = std::make_unique<Session>();
    return {.result = the_session->Call(function, arguments, now)};
  } catch (...) {
    return {.failed = true, .failure = CurrentFailure(*function.owner, *function.operation)};
  }
}

void ReleaseLongTexts() noexcept {
  if (the_session) the_session->ReleaseLongTexts();
}

bool IsConvention(std::string_view name) noexcept {
  return DateConventionNamed(name).has_value();
}

void SetConvention(std::string_view name) noexcept {
  convention_set = DateConventionNamed(name).value_or(convention_set);
}

}  // namespace ZQ7PostgreSQL
