#include <ZQ7Standard/automation/tables.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "iso_date.h"
#include "names.h"
#include "plain_text.h"
#include "writers.h"

/// The files of the PostgreSQL extension that follow from the catalogue: the script that creates
/// its functions, the rows of their symbols, and the calls of the worked examples, for its test.
namespace ZQ7Pages {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

struct TypeRow {
  Type type;
  std::string_view parameter;
  std::string_view result;
};

/// A single is taken as a double, which every number becomes by itself, and then checked.
constexpr auto kTypes = std::to_array<TypeRow>({
    {Type::kNothing, "", "void"},
    {Type::kText, "text", "text"},
    {Type::kByte, "integer", "integer"},
    {Type::kInteger, "integer", "integer"},
    {Type::kLong, "integer", "integer"},
    {Type::kSingle, "double precision", "real"},
    {Type::kDouble, "double precision", "double precision"},
    {Type::kBoolean, "boolean", "boolean"},
    {Type::kDate, "timestamp", "timestamp"},
    {Type::kCurrency, "numeric", "numeric"},
    {Type::kTextList, "", "text[]"},
});

/// How often an addition could be done meanwhile, about: the planner's measure.
constexpr int kNewInstanceCost = 40;
constexpr int kTextCost = 20;
constexpr int kCost = 10;

constexpr std::string_view kConventionOfExamples = "dmy-buddhist";
constexpr std::string_view kCharacterNotInRepertoire = "22021";

const TypeRow& RowOf(Type type) {
  const auto* const row = std::ranges::find(kTypes, type, &TypeRow::type);
  if (row == kTypes.end()) throw std::logic_error("PostgreSQL has no type for an object");
  return *row;
}

std::string ParameterType(const ParameterInfo& parameter) {
  const std::string_view name = RowOf(parameter.type.type).parameter;
  if (name.empty()) throw std::logic_error("PostgreSQL has no type for an argument");
  return std::string(name);
}

// --- Literals ---

std::string Escape(char16_t unit) {
  std::array<char, 6> text = {};
  std::snprintf(text.data(), text.size(), "\\%04X", static_cast<unsigned>(unit));
  return text.data();
}

/// A text as a constant; control characters are escaped, so that it stays on one line.
std::string TextLiteral(TextView text) {
  const bool controls = std::ranges::any_of(text, [](char16_t unit) { return unit < u' '; });
  std::string literal = controls ? "U&'" : "'";
  Text piece;
  for (const char16_t unit : text) {
    if (unit < u' ') {
      literal += Utf8(piece) + Escape(unit);
      piece.clear();
    } else {
      piece += unit;
      if (unit == u'\'' || (controls && unit == u'\\')) piece += unit;
    }
  }
  return literal + Utf8(piece) + "'";
}

std::string ListLiteral(const TextList& list) {
  std::string items;
  for (const Text& item : list) items += (items.empty() ? "" : ", ") + TextLiteral(item);
  return "ARRAY[" + items + "]::text[]";
}

std::string Literal(const Value& value) {
  if (const auto* text = std::get_if<Text>(&value)) return TextLiteral(*text);
  if (const auto* list = std::get_if<TextList>(&value)) return ListLiteral(*list);
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "true" : "false";
  if (const auto* date = std::get_if<OleDate>(&value)) return "'" + ZQ7Tool::IsoDate(*date) + "'";
  if (std::holds_alternative<Null>(value) || std::holds_alternative<Omitted>(value)) return "NULL";
  const std::string number = ZQ7Tool::PlainText(value);
  return number.starts_with('-') ? "(" + number + ")" : number;
}

// --- Functions ---

/// How a function is told apart from others of the same operation.
struct Form {
  bool by_convention = false;
  std::size_t parameters = 0;
};

/// Parameters without a default that may be left out: the operation distinguishes that.
std::size_t RequiredParameters(const OperationInfo& operation) {
  const auto left_out = [](const ParameterInfo& parameter) {
    return parameter.optional && !parameter.nullable &&
           std::holds_alternative<Omitted>(parameter.default_value);
  };
  const auto& parameters = operation.parameters;
  return static_cast<std::size_t>(std::ranges::find_if(parameters, left_out) - parameters.begin());
}

/// A function for all parameters, one without those that have no default, and both by convention.
std::vector<Form> FormsOf(const OperationInfo& operation) {
  const std::size_t all = operation.parameters.size();
  const std::size_t required = RequiredParameters(operation);
  std::vector<Form> forms;
  for (const bool by_convention : {false, true}) {
    if (by_convention && operation.effect != Effect::kConvention) continue;
    forms.push_back({by_convention, all});
    if (required < all) forms.push_back({by_convention, required});
  }
  return forms;
}

std::string FunctionName(const TableOperation& row, const Form& form) {
  return "zq7." + row.name + (form.by_convention ? "_by" : "");
}

std::string Symbol(const TableOperation& row, const Form& form) {
  return "zq7_" + std::string(row.owner->name) + "_" + std::string(row.operation->name) +
         (form.by_convention ? "_by" : "");
}

std::string Lowered(std::string_view name) {
  std::string lowered(name);
  std::ranges::transform(lowered, lowered.begin(), ZQ7Tool::Lower);
  return lowered;
}

/// In quotation marks because some are words of SQL; in lower case, as SQL folds a name without.
std::string Declared(const ParameterInfo& parameter) {
  std::string text = ZQ7Tool::Quoted(Lowered(parameter.name)) + " " + ParameterType(parameter);
  const bool has_default =
      parameter.nullable || !std::holds_alternative<Omitted>(parameter.default_value);
  if (parameter.optional && has_default) text += " DEFAULT " + Literal(parameter.default_value);
  return text;
}

template <typename Write>
std::string Listed(const TableOperation& row, const Form& form, const std::string& convention,
                   const Write& write) {
  std::string list = form.by_convention ? convention : "";
  for (std::size_t i = 0; i < form.parameters; ++i) {
    list += (list.empty() ? "" : ", ") + write(row.operation->parameters[i]);
  }
  return list;
}

bool TakesNull(const OperationInfo& operation) {
  return std::ranges::any_of(operation.parameters, &ParameterInfo::nullable);
}

std::string_view Volatility(const OperationInfo& operation, const Form& form) {
  const bool asks = operation.effect == Effect::kConvention || operation.effect == Effect::kClock;
  return asks && !form.by_convention ? "STABLE" : "IMMUTABLE";
}

int Cost(const OperationInfo& operation) {
  if (operation.effect == Effect::kInstance) return kNewInstanceCost;
  const Type type = operation.result.type;
  return type == Type::kText || type == Type::kTextList ? kTextCost : kCost;
}

std::string Comment(std::string_view function, std::string_view help) {
  return "COMMENT ON FUNCTION " + std::string(function) + " IS\n  " + TextLiteral(FromUtf8(help)) +
         ";\n";
}

std::string CreatedFunction(const TableOperation& row, const Form& form) {
  const OperationInfo& operation = *row.operation;
  const std::string name = FunctionName(row, form);
  const std::string types = Listed(row, form, "text", ParameterType);
  std::string text = "\nCREATE OR REPLACE FUNCTION " + name + "(" +
                     Listed(row, form, "\"convention\" text", Declared) + ")\n  RETURNS ";
  text.append(RowOf(operation.result.type).result)
      .append(" LANGUAGE c ")
      .append(Volatility(operation, form))
      .append(TakesNull(operation) ? "" : " STRICT")
      .append(" PARALLEL SAFE COST ")
      .append(std::to_string(Cost(operation)))
      .append("\n  AS 'MODULE_PATHNAME', '")
      .append(Symbol(row, form))
      .append("';\n");
  return text + Comment(name + "(" + types + ")", operation.help);
}

std::string CreatedMember(const EnumerationInfo& enumeration, const EnumeratorInfo& member) {
  const std::string name = "zq7." + std::string(member.name) + "()";
  const std::string help =
      std::string(enumeration.name) + (member.help.empty() ? "" : ": " + std::string(member.help));
  return "\nCREATE OR REPLACE FUNCTION " + name +
         "\n  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '" +
         std::to_string(member.value) + "';\n" + Comment(name, help);
}

/// Throws if SQL would take two names for one.
void RequireUnique(std::set<std::string>& names, std::string_view name) {
  if (names.insert(Lowered(name)).second) return;
  throw std::logic_error("two functions of PostgreSQL are named " + std::string(name));
}

std::string Functions() {
  std::string text;
  std::set<std::string> names;
  for (const TableOperation& row : TableOperations()) {
    const std::vector<Form> forms = FormsOf(*row.operation);
    RequireUnique(names, FunctionName(row, {}));
    if (forms.back().by_convention) RequireUnique(names, FunctionName(row, forms.back()));
    for (const Form& form : forms) text += CreatedFunction(row, form);
  }
  for (const EnumerationInfo& enumeration : Enumerations()) {
    for (const EnumeratorInfo& member : enumeration.members) {
      RequireUnique(names, "zq7." + std::string(member.name));
      text += CreatedMember(enumeration, member);
    }
  }
  return text;
}

std::string Symbols() {
  std::string text;
  for (const TableOperation& row : TableOperations()) {
    for (const Form& form : FormsOf(*row.operation)) {
      if (form.parameters < row.operation->parameters.size()) continue;
      text += "ZQ7_FUNCTION(" + Symbol(row, form) + ", \"" + std::string(row.owner->name) + "\", " +
              std::to_string(row.operation->number) + ", " +
              (form.by_convention ? "true" : "false") + ")\n";
    }
  }
  return text;
}

// --- Examples ---

std::string CallOf(const TableOperation& row, const Form& form, const Example& example) {
  std::string arguments =
      form.by_convention ? TextLiteral(FromUtf8(kConventionOfExamples)) : std::string();
  for (const Value& argument : example.arguments) {
    arguments += (arguments.empty() ? "" : ", ") + Literal(argument);
  }
  return FunctionName(row, form) + "(" + arguments + ")";
}

/// Whether the server can hold the result of an example, unless it is a text with what UTF-8 in a
/// database lacks.
bool IsStorable(const Value& result) {
  const auto* const text = std::get_if<Text>(&result);
  if (text == nullptr) return true;
  return text->find(u'\0') == Text::npos && FromUtf8(Utf8(*text)) == *text;
}

/// The row of an example: the call, its result, and the error that it raises instead.
std::string ExampleRow(const TableOperation& row, const Form& form, const Example& example) {
  const OperationInfo& operation = *row.operation;
  const bool storable = IsStorable(example.result);
  const bool returns = example.error == 0 && storable;
  const std::string type(RowOf(operation.result.type).result);
  const std::string result =
      std::holds_alternative<Omitted>(example.result) ? "''" : Literal(example.result);
  return "  (" + TextLiteral(FromUtf8(CallOf(row, form, example))) + ", " +
         (returns ? TextLiteral(FromUtf8(result + "::" + (type == "void" ? "text" : type)))
                  : "NULL") +
         ", " + (example.error == 0 ? "NULL" : std::to_string(example.error)) + ", " +
         (storable ? "NULL" : TextLiteral(FromUtf8(kCharacterNotInRepertoire))) + ")";
}

struct Examples {
  std::string rows;
  int with_calls_before = 0;
  int of_clock = 0;
};

Examples AllExamples() {
  Examples all;
  for (const TableOperation& row : TableOperations()) {
    for (const Example& example : row.operation->examples) {
      if (!example.before.empty()) ++all.with_calls_before;
      if (row.operation->effect == Effect::kClock) ++all.of_clock;
      if (!example.before.empty() || row.operation->effect == Effect::kClock) continue;
      for (const Form& form : FormsOf(*row.operation)) {
        if (form.parameters < row.operation->parameters.size()) continue;
        all.rows += (all.rows.empty() ? "" : ",\n") + ExampleRow(row, form, example);
      }
    }
  }
  return all;
}

}  // namespace

Fields PostgresqlFields() {
  const Examples examples = AllExamples();
  return {{"FUNCTIONS", Functions()},
          {"SYMBOLS", Symbols()},
          {"EXAMPLES", examples.rows},
          {"WITH_CALLS_BEFORE", std::to_string(examples.with_calls_before)},
          {"OF_CLOCK", std::to_string(examples.of_clock)}};
}

}  // namespace ZQ7Pages
