// The only frames that the server calls, and that its errors jump over: nothing in them has a
// destructor, and what C++ does, `Run`, has returned plain data before the server is called again.

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "session.h"
#include "texts.h"
#include "values.h"

// The server's headers come last.
#include "server.h"

namespace ZQ7PostgreSQL {
namespace {

using ZQ7Standard::Automation::Effect;
using ZQ7Standard::Automation::ParameterInfo;
using ZQ7Standard::Automation::Type;

int CodeOf(std::string_view state) {
  return MAKE_SQLSTATE(state[0], state[1], state[2], state[3], state[4]);
}

[[noreturn]] void Report(const Failure& failure) {
  ereport(ERROR,
          (errcode(CodeOf(failure.state)), errmsg_internal("%s", MessageOfUtf8(failure.message)),
           errdetail_internal("%s", MessageOfUtf8(failure.detail))));
  pg_unreachable();
}

[[noreturn]] void ReportUnknown(const Function& function) {
  ereport(ERROR, (errcode(ERRCODE_UNDEFINED_FUNCTION),
                  errmsg("the library has no operation %d of %s, or no memory to look for it",
                         function.number, function.class_name)));
  pg_unreachable();
}

[[noreturn]] void ReportNoDate(Datum date, const Function& function,
                               const ParameterInfo& parameter) {
  const char* const written = DatumGetCString(DirectFunctionCall1(timestamp_out, date));
  const std::string_view operation = function.operation->name;
  ereport(ERROR,
          (errcode(ERRCODE_DATETIME_FIELD_OVERFLOW),
           errmsg("%s.%.*s: a date outside 0100-01-01 to 9999-12-31: \"%s\"", function.class_name,
                  static_cast<int>(operation.size()), operation.data(), written),
           errdetail_internal("in %s.%.*s, parameter %.*s", function.class_name,
                              static_cast<int>(operation.size()), operation.data(),
                              static_cast<int>(parameter.name.size()), parameter.name.data())));
  pg_unreachable();
}

/// Writes the member that the type of the parameter asks for.
void Read(Datum datum, const Function& function, const ParameterInfo& parameter, Plain& argument) {
  switch (parameter.type.type) {
    case Type::kText:
      argument.text = Utf8OfDatum(datum);
      break;
    case Type::kByte:
    case Type::kInteger:
    case Type::kLong:
      argument.whole = DatumGetInt32(datum);
      break;
    case Type::kSingle:
    case Type::kDouble:
      argument.real = DatumGetFloat8(datum);
      break;
    case Type::kBoolean:
      argument.whole = DatumGetBool(datum) ? 1 : 0;
      break;
    case Type::kDate:
      argument.whole = DatumGetTimestamp(datum);
      if (!IsDate(argument.whole)) ReportNoDate(datum, function, parameter);
      break;
    case Type::kCurrency:
      argument.text = DatumGetCString(DirectFunctionCall1(numeric_out, datum));
      break;
    case Type::kNothing:
    case Type::kTextList:
    case Type::kObject:
      argument.is_null = true;
  }
}

void ReadArgument(FunctionCallInfo call, std::size_t place, const Function& function,
                  Plain& argument) {
  const NullableDatum& given = call->args[place];
  argument.is_null = given.isnull;
  if (given.isnull) return;
  const auto& parameters = function.operation->parameters;
  if (!function.by_convention) {
    Read(given.value, function, parameters[place], argument);
  } else if (place == 0) {
    argument.text = Utf8OfDatum(given.value);
  } else {
    Read(given.value, function, parameters[place - 1], argument);
  }
}

/// The time of the transaction in the zone of the session.
std::int64_t Now() {
  const Datum now = TimestampTzGetDatum(GetCurrentTransactionStartTimestamp());
  return DatumGetTimestamp(DirectFunctionCall1(timestamptz_timestamp, now));
}

Datum ArrayOf(std::span<const std::string_view> list) {
  auto* const texts = static_cast<Datum*>(palloc(sizeof(Datum) * (list.size() + 1)));
  std::ranges::transform(list, texts, DatumOfUtf8);
  return PointerGetDatum(
      construct_array(texts, static_cast<int>(list.size()), TEXTOID, -1, false, TYPALIGN_INT));
}

/// The digits of an amount as a `numeric`.
Datum NumericOf(std::string_view digits) {
  return DirectFunctionCall3(numeric_in, CStringGetDatum(MessageOfUtf8(digits)),
                             ObjectIdGetDatum(InvalidOid), Int32GetDatum(-1));
}

Datum Write(const Plain& result, Type type) {
  switch (type) {
    case Type::kText:
      return DatumOfUtf8(result.text);
    case Type::kByte:
    case Type::kInteger:
    case Type::kLong:
      return Int32GetDatum(static_cast<std::int32_t>(result.whole));
    case Type::kSingle:
      return Float4GetDatum(static_cast<float>(result.real));
    case Type::kDouble:
      return Float8GetDatum(result.real);
    case Type::kBoolean:
      return BoolGetDatum(result.whole != 0);
    case Type::kDate:
      return TimestampGetDatum(result.whole);
    case Type::kCurrency:
      return NumericOf(result.text);
    case Type::kTextList:
      return ArrayOf(result.list);
    case Type::kNothing:
    case Type::kObject:
      break;
  }
  return Datum{0};
}

/// Calls the operation of a function with the server's arguments. A declaration may leave out
/// parameters at the end.
Datum Call(FunctionCallInfo call, Function& function) {
  if (function.operation == nullptr && !Find(function)) ReportUnknown(function);
  // One for all calls: to prepare it for each would take longer than to fill it.
  static std::array<Plain, kMaxArguments> arguments;
  const auto count = static_cast<std::size_t>(call->nargs);
  for (std::size_t i = 0; i < count; ++i) ReadArgument(call, i, function, arguments[i]);
  const std::int64_t now = function.operation->effect == Effect::kClock ? Now() : 0;
  const Outcome outcome = Run(function, std::span(arguments).first(count), now);
  if (outcome.failed) {
    ReleaseLongTexts();
    Report(outcome.failure);
  }
  const Datum result = Write(outcome.result, function.operation->result.type);
  ReleaseLongTexts();
  return result;
}

// --- The setting zq7.convention ---

/// What the server keeps the setting's text in.
char* convention_text = nullptr;

bool CheckConvention(char** value, void** /*extra*/, GucSource /*source*/) {
  if (IsConvention(*value)) return true;
  GUC_check_errhint("The date conventions are %s.", kConventions);
  return false;
}

void AssignConvention(const char* value, void* /*extra*/) {
  SetConvention(value);
}

}  // namespace
}  // namespace ZQ7PostgreSQL

extern "C" {

PG_MODULE_MAGIC;

// NOLINTNEXTLINE(bugprone-reserved-identifier): the server's name
PGDLLEXPORT void _PG_init();

void _PG_init() {
  using namespace ZQ7PostgreSQL;
  DefineCustomStringVariable("zq7.convention",
                             "The convention by which zq7's functions read and write dates.",
                             nullptr, &convention_text, kDefaultConvention, PGC_USERSET, 0,
                             CheckConvention, AssignConvention, nullptr);
  MarkGUCPrefixReserved("zq7");
}

// A symbol cannot come from a template. Each function keeps what it found in the catalogue.
#define ZQ7_FUNCTION(symbol, class_name, number, by_convention)                    \
  PGDLLEXPORT Datum symbol(FunctionCallInfo call);                                 \
  PG_FUNCTION_INFO_V1(symbol);                                                     \
  Datum symbol(FunctionCallInfo call) {                                            \
    static ZQ7PostgreSQL::Function function = {class_name, number, by_convention}; \
    return ZQ7PostgreSQL::Call(call, function);                                    \
  }
#include "functions.inc"
#undef ZQ7_FUNCTION
}
