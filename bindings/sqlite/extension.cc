// The entry point of the extension, and the functions that it adds to a connection.

#include <ZQ7Standard/RunTimeError.h>
#include <sqlite3ext.h>

#include <algorithm>
#include <exception>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "sqlite/connection.h"
#include "sqlite/values.h"

SQLITE_EXTENSION_INIT1

namespace ZQ7SQLite {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

/// A function of a connection, as SQLite keeps it.
struct Function {
  std::shared_ptr<Connection> connection;
  TableOperation callee = {};
  std::int32_t member = 0;  ///< of an enumeration
};

using Arguments = std::span<sqlite3_value*>;
using Body = void (*)(sqlite3_context* context, Function& function, Arguments arguments);

/// Runs the body of a function; what it throws becomes an error of the statement.
template <Body kBody>
void Run(sqlite3_context* context, int count, sqlite3_value** values) {
  try {
    kBody(context, *static_cast<Function*>(sqlite3_user_data(context)),
          {values, static_cast<std::size_t>(count)});
  } catch (const std::bad_alloc&) {
    sqlite3_result_error_nomem(context);
  } catch (const std::exception& error) {
    sqlite3_result_error(context, error.what(), -1);
  }
}

/// Whether an argument is missing: a NULL, unless its parameter takes it as a value.
bool IsMissing(sqlite3_value* argument, const ParameterInfo& parameter) {
  return sqlite3_value_type(argument) == SQLITE_NULL && !parameter.nullable;
}

std::vector<Value> ValuesOf(Arguments arguments, const TableOperation& callee) {
  std::vector<Value> values;
  values.reserve(arguments.size());
  try {
    for (std::size_t i = 0; i < arguments.size(); ++i) {
      values.push_back(ArgumentOf(arguments[i], callee.operation->parameters[i]));
    }
  } catch (const RunTimeError& error) {
    ErrorDetails details = error.Details();
    details.class_name = callee.owner->name;
    details.operation = callee.operation->name;
    throw RunTimeError(std::move(details));
  }
  return values;
}

void CallOperation(sqlite3_context* context, Function& function, Arguments arguments) {
  const auto& [owner, operation, name] = function.callee;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (IsMissing(arguments[i], operation->parameters[i])) return sqlite3_result_null(context);
  }
  const std::vector<Value> values = ValuesOf(arguments, function.callee);
  SetResult(context, function.connection->Objects().Call(*owner, *operation, values));
}

void ReturnMember(sqlite3_context* context, Function& function, Arguments /*none*/) {
  sqlite3_result_int(context, function.member);
}

void TellConvention(sqlite3_context* context, Function& function, Arguments /*none*/) {
  SetResult(context, FromUtf8(function.connection->Convention()));
}

void ChangeConvention(sqlite3_context* context, Function& function, Arguments arguments) {
  const Value name = ArgumentOf(arguments.front(), {.name = "convention"});
  const auto* text = std::get_if<Text>(&name);
  function.connection->SetConvention(text == nullptr ? "" : Utf8(*text));
  TellConvention(context, function, {});
}

void Release(void* function) {
  delete static_cast<Function*>(function);  // NOLINT(*-owning-memory): SQLite owned it
}

/// Adds functions to a connection until one cannot be added.
class Registration {
 public:
  explicit Registration(sqlite3* database) : database_(database) {}

  template <Body kBody>
  void Add(const std::string& name, int arguments, int flags, Function function) {
    if (status_ != SQLITE_OK) return;
    auto owned = std::make_unique<Function>(std::move(function));
    // SQLite releases the function even if it refuses it.
    status_ = sqlite3_create_function_v2(database_, ("zq7_" + name).c_str(), arguments,
                                         SQLITE_UTF8 | flags, owned.release(), Run<kBody>, nullptr,
                                         nullptr, Release);
  }

  int Status() const { return status_; }

 private:
  sqlite3* database_;
  int status_ = SQLITE_OK;
};

/// An operation can be called with every number of arguments that leaves only optional ones out.
/// Nothing it does can harm a database, so a view or a trigger may call it.
void AddOperation(Registration& functions, const std::shared_ptr<Connection>& connection,
                  const TableOperation& callee) {
  const auto& parameters = callee.operation->parameters;
  const bool fixed = callee.operation->effect == Effect::kNone;
  const int flags = SQLITE_INNOCUOUS | (fixed ? SQLITE_DETERMINISTIC : 0);
  const auto required = std::ranges::count(parameters, false, &ParameterInfo::optional);
  for (auto count = static_cast<int>(required); count <= std::ssize(parameters); ++count) {
    functions.Add<CallOperation>(callee.name, count, flags, {connection, callee});
  }
}

int AddFunctions(sqlite3* database) {
  const auto connection = std::make_shared<Connection>();
  Registration functions(database);
  for (const TableOperation& callee : TableOperations()) {
    AddOperation(functions, connection, callee);
  }
  for (const EnumerationInfo& enumeration : Enumerations()) {
    for (const EnumeratorInfo& member : enumeration.members) {
      functions.Add<ReturnMember>(std::string(member.name), 0,
                                  SQLITE_INNOCUOUS | SQLITE_DETERMINISTIC,
                                  {connection, {}, member.value});
    }
  }
  functions.Add<TellConvention>("convention", 0, SQLITE_INNOCUOUS, {connection});
  // No view or trigger may change what the statements of a program mean.
  functions.Add<ChangeConvention>("convention", 1, SQLITE_DIRECTONLY, {connection});
  return functions.Status();
}

}  // namespace
}  // namespace ZQ7SQLite

extern "C" __attribute__((visibility("default"))) int sqlite3_zqsqlite_init(
    sqlite3* database, char** message, const sqlite3_api_routines* api) {
  SQLITE_EXTENSION_INIT2(api);
  try {
    const int status = ZQ7SQLite::AddFunctions(database);
    // The catalogue stays for the next connection.
    return status == SQLITE_OK ? SQLITE_OK_LOAD_PERMANENTLY : status;
  } catch (const std::exception& error) {
    *message = sqlite3_mprintf("zq7_sqlite: %s", error.what());
    return SQLITE_ERROR;
  }
}
