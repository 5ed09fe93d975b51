#include <ZQ7Standard/automation/catalogue.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "layout.h"
#include "signature.h"
#include "worked_example.h"
#include "writers.h"

/// The part of ZQ7Standard.cs that follows from the catalogue. Locals end in "_", so that they
/// clash with no parameter.
namespace ZQ7Pages {
namespace {

using namespace ZQ7Standard::Automation;

constexpr std::size_t kWidth = 100;

struct TypeRow {
  Type type;
  std::string_view name;
  std::string_view suffix;  ///< of its literals
  std::string_view take;    ///< reads a result
};

constexpr auto kTypes = std::to_array<TypeRow>({
    {Type::kNothing, "void", "", ""},
    {Type::kText, "string", "", "TakeText"},
    {Type::kByte, "byte", "", "TakeByte"},
    {Type::kInteger, "short", "", "TakeInteger"},
    {Type::kLong, "int", "", "TakeLong"},
    {Type::kSingle, "float", "f", "TakeSingle"},
    {Type::kDouble, "double", "", "TakeDouble"},
    {Type::kBoolean, "bool", "", "TakeBoolean"},
    {Type::kDate, "DateTime", "", "TakeDate"},
    {Type::kCurrency, "decimal", "m", "TakeCurrency"},
    {Type::kTextList, "string[]", "", "TakeTextList"},
});

constexpr auto kKeywords = std::to_array<std::string_view>(
    {"abstract", "as",         "base",    "bool",     "break",     "byte",     "case",
     "catch",    "char",       "checked", "class",    "const",     "continue", "decimal",
     "default",  "delegate",   "do",      "double",   "else",      "enum",     "event",
     "explicit", "extern",     "false",   "finally",  "fixed",     "float",    "for",
     "foreach",  "goto",       "if",      "implicit", "in",        "int",      "interface",
     "internal", "is",         "lock",    "long",     "namespace", "new",      "null",
     "object",   "operator",   "out",     "override", "params",    "private",  "protected",
     "public",   "readonly",   "ref",     "return",   "sbyte",     "sealed",   "short",
     "sizeof",   "stackalloc", "static",  "string",   "struct",    "switch",   "this",
     "throw",    "true",       "try",     "typeof",   "uint",      "ulong",    "unchecked",
     "unsafe",   "ushort",     "using",   "virtual",  "void",      "volatile", "while"});

/// Members that every class has already.
constexpr auto kTaken = std::to_array<std::string_view>(
    {"Dispose", "Equals", "Finalize", "From", "FromFile", "GetHashCode", "GetType", "Handle",
     "MemberwiseClone", "ReferenceEquals", "ToString"});

bool Contains(const auto& names, std::string_view name) {
  return std::ranges::find(names, name) != names.end();
}

std::string Name(std::string_view name) {
  return (Contains(kKeywords, name) ? "@" : "") + std::string(name);
}

std::string MemberName(const ClassInfo& owner, std::string_view name) {
  const bool taken = Contains(kTaken, name) || name == owner.name;
  return Name(name) + (taken ? "_" : "");
}

// --- Documentation ---

std::string Replaced(std::string text, std::string_view from, std::string_view to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size()) {
    text.replace(at, from.size(), to);
  }
  return text;
}

std::string Escaped(std::string_view text) {
  return Replaced(Replaced(Replaced(std::string(text), "&", "&amp;"), "<", "&lt;"), ">", "&gt;");
}

/// A paragraph as XML. Words in backticks are code.
std::string Xml(std::string_view text) {
  std::string xml;
  bool code = false;
  for (const char c : Escaped(text)) {
    if (c != '`') {
      xml += c;
      continue;
    }
    code = !code;
    xml += code ? "<c>" : "</c>";
  }
  return xml;
}

std::string_view Trimmed(std::string_view paragraph) {
  return paragraph.substr(0, paragraph.find_last_not_of('\n') + 1);
}

/// Lines of comment in front of a member.
std::string Comment(std::string_view lines, std::size_t indent) {
  std::string comment;
  for (std::size_t at = 0; at < lines.size();) {
    const std::size_t end = lines.find('\n', at);
    comment.append(indent, ' ').append("/// ").append(lines, at, end + 1 - at);
    at = end + 1;
  }
  return comment;
}

/// An element on as few lines as it takes.
std::string Element(std::string_view begin, std::string_view text, std::string_view end,
                    std::size_t indent) {
  if (text.empty()) return "";
  const std::string whole = std::string(begin).append(text).append(end);
  return Comment(ZQ7Tool::Wrapped("", whole, 0, kWidth - indent - 4), indent);
}

std::string Summary(std::string_view help, std::size_t indent) {
  return Element("<summary>", Xml(help), "</summary>", indent);
}

std::string Remarks(std::string_view details, std::size_t indent) {
  std::string paragraphs;
  for (const std::string& paragraph : ZQ7Tool::SplitParagraphs(details)) {
    paragraphs += paragraph.starts_with("  ")
                      ? Comment("<code>\n" + Escaped(paragraph) + "</code>\n", indent)
                      : Element("<para>", Xml(Trimmed(paragraph)), "</para>", indent);
  }
  if (paragraphs.empty()) return "";
  return Comment("<remarks>\n", indent) + paragraphs + Comment("</remarks>\n", indent);
}

/// The sentences that say which errors are raised.
std::string RaisedErrors(std::string_view details) {
  std::string raised;
  for (const std::string& paragraph : ZQ7Tool::SplitParagraphs(details)) {
    std::istringstream words(paragraph);
    std::string sentence;
    for (std::string word; words >> word;) {
      sentence += (sentence.empty() ? "" : " ") + word;
      if (!word.ends_with('.')) continue;
      if (sentence.starts_with("Raises ")) raised += (raised.empty() ? "" : " ") + sentence;
      sentence.clear();
    }
  }
  return raised;
}

std::string ParameterComments(const std::vector<ParameterInfo>& parameters) {
  const bool documented = std::ranges::any_of(
      parameters, [](const ParameterInfo& parameter) { return !parameter.help.empty(); });
  std::string comments;
  for (const ParameterInfo& parameter : parameters) {
    if (!documented) break;
    const std::string begin = "<param name=\"" + std::string(parameter.name) + "\">";
    comments +=
        Comment(ZQ7Tool::Wrapped("", begin + Xml(parameter.help) + "</param>", 0, kWidth - 6), 2);
  }
  return comments;
}

/// The first example that returns something.
std::string ReturnComment(const ClassInfo& owner, const OperationInfo& operation) {
  for (const Example& example : operation.examples) {
    if (example.error != 0 || std::holds_alternative<Omitted>(example.result)) continue;
    const std::string result = ZQ7Tool::Literal(example.result, operation.result);
    return Element("<returns>",
                   "For example, <c>" + Escaped(ExampleCalls(owner, operation, example)) +
                       "</c> returns <c>" + Escaped(result) + "</c>.",
                   "</returns>", 2);
  }
  return "";
}

// --- Code ---

const TypeRow& RowOf(const TypeInfo& type) {
  const auto* const row = std::ranges::find(kTypes, type.type, &TypeRow::type);
  if (row == kTypes.end()) throw std::logic_error("C# has no type for a result or an argument");
  return *row;
}

std::string TypeName(const TypeInfo& type) {
  if (type.enumeration != nullptr) return std::string(type.enumeration->name);
  if (!type.object_class.empty()) return std::string(type.object_class);
  return std::string(RowOf(type).name);
}

/// The name of the function that calls an operation.
std::string_view Caller(const OperationInfo& operation) {
  return operation.result.type == Type::kText ? "Handle.InvokeText(" : "Handle.Invoke(";
}

/// The expression that reads a result.
std::string Taken(const TypeInfo& type, const std::string& value) {
  if (value.starts_with("Handle.InvokeText(")) return value;
  const std::string cast = type.enumeration != nullptr ? "(" + TypeName(type) + ")" : "";
  return cast + value + "." + std::string(RowOf(type).take) + "()";
}

/// Whether C#'s null stands for an argument that is left out or null.
bool IsNullableValue(const ParameterInfo& parameter) {
  const bool is_reference =
      parameter.type.type == Type::kText || parameter.type.type == Type::kObject;
  const bool left_out =
      parameter.optional && std::holds_alternative<Omitted>(parameter.default_value);
  return !is_reference && (left_out || parameter.nullable);
}

std::string DefaultValue(const ParameterInfo& parameter) {
  const Value& value = parameter.default_value;
  const TypeInfo& type = parameter.type;
  if (std::holds_alternative<Omitted>(value) || std::holds_alternative<TextList>(value)) {
    return "null";
  }
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "true" : "false";
  const std::string literal = ZQ7Tool::Literal(value, type);
  if (type.enumeration == nullptr) return literal + std::string(RowOf(type).suffix);
  const bool member = literal.find_first_not_of("-0123456789") != std::string::npos;
  return member ? TypeName(type) + "." + literal : "(" + TypeName(type) + ")(" + literal + ")";
}

std::string Declared(const ParameterInfo& parameter) {
  std::string text = TypeName(parameter.type) + (IsNullableValue(parameter) ? "?" : "") + " " +
                     Name(parameter.name);
  if (parameter.optional) text += " = " + DefaultValue(parameter);
  return text;
}

/// "name(int Row, int Col)" after `prefix`, on as many lines as it takes.
std::string Declaration(const std::string& prefix, const std::vector<ParameterInfo>& parameters) {
  if (parameters.empty()) return prefix + "()";
  std::vector<std::string> pieces;
  pieces.reserve(parameters.size());
  for (const ParameterInfo& parameter : parameters) pieces.push_back(Declared(parameter) + ",");
  pieces.back().back() = ')';
  std::string lines = ZQ7Tool::Filled(prefix + "( ", pieces, 6, kWidth - 2);
  lines.pop_back();
  return lines.erase(prefix.size() + 1, 1);
}

std::string TextPointer(std::size_t place) {
  return "text" + std::to_string(place) + "_";
}

/// The statement that passes an argument.
std::string Passed(const ParameterInfo& parameter, std::size_t place, const std::string& value) {
  const std::string name = Name(parameter.name);
  const std::string cast = parameter.type.enumeration != nullptr ? "(int)" : "";
  if (parameter.type.type == Type::kTextList) {
    return value + ".Set(memory_.List(" + name + "), " + name + ");";
  }
  if (parameter.type.type == Type::kText) {
    return value + ".Set(" + TextPointer(place) + ", " + name + ");";
  }
  if (!IsNullableValue(parameter)) return value + ".Set(" + cast + name + ");";
  return "if (" + name + ".HasValue) " + value + ".Set(" + cast + name + ".Value); else " + value +
         (parameter.optional ? ".Omit();" : ".SetNull();");
}

/// Whether an argument is not the default of its parameter.
std::string IsGiven(const ParameterInfo& parameter) {
  std::string name = Name(parameter.name);
  const std::string value = DefaultValue(parameter);
  if (value == "false") return name;
  // Quicker than comparing texts.
  if (value == "\"\"") return "(" + name + " == null || " + name + ".Length > 0)";
  return name + " != " + value;
}

/// How many arguments are passed: not those at the end that are their defaults, each of which
/// would take the library some time.
std::string ArgumentCount(const std::vector<ParameterInfo>& parameters) {
  std::string count;
  for (std::size_t i = parameters.size(); i > 0; --i) {
    const ParameterInfo& parameter = parameters[i - 1];
    if (!parameter.optional) return count + std::to_string(i);
    count += IsGiven(parameter) + " ? " + std::to_string(i) + " : ";
  }
  return count + "0";
}

/// "fixed (char* text0_ = iText) {"; empty if there are no texts.
std::string PinnedTexts(const std::vector<ParameterInfo>& parameters) {
  std::vector<std::string> pieces;
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    if (parameters[i].type.type != Type::kText) continue;
    pieces.push_back(TextPointer(i) + " = " + Name(parameters[i].name) + ",");
  }
  if (pieces.empty()) return "";
  pieces.back().back() = ')';
  return ZQ7Tool::Filled("    fixed (char*", pieces, 8, kWidth - 2);
}

/// The statements that return what `call` does, after keeping the objects in its arguments.
std::vector<std::string> Returned(const OperationInfo& operation, const std::string& call) {
  std::vector<std::string> kept;
  for (const ParameterInfo& parameter : operation.parameters) {
    if (parameter.type.type != Type::kObject) continue;
    kept.push_back("GC.KeepAlive(" + Name(parameter.name) + ");");
  }
  const bool none = operation.result.type == Type::kNothing;
  if (kept.empty()) return {none ? call + ";" : "return " + Taken(operation.result, call) + ";"};
  kept.insert(kept.begin(), (none ? "" : "Value result_ = ") + call + ";");
  if (!none) kept.push_back("return " + Taken(operation.result, "result_") + ";");
  return kept;
}

/// The statements that hold memory, the last of which begins a block.
std::string OpenedBlock(std::string statements) {
  if (!statements.empty()) statements.replace(statements.size() - 1, 1, " {\n");
  return statements;
}

std::string OperationBody(const OperationInfo& operation) {
  const auto& parameters = operation.parameters;
  const std::string number = std::to_string(operation.number);
  if (parameters.empty()) {
    const std::string call = std::string(Caller(operation)) + number + ", null, 0)";
    const bool none = operation.result.type == Type::kNothing;
    return " => " + (none ? call : Taken(operation.result, call)) + ";\n";
  }
  const bool one = parameters.size() == 1;
  std::vector<std::string> statements = {one ? "var value_ = new Value();"
                                             : "Value* values_ = stackalloc Value[" +
                                                   std::to_string(parameters.size()) + "];"};
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    statements.push_back(
        Passed(parameters[i], i, one ? "value_" : "values_[" + std::to_string(i) + "]"));
  }
  const std::string call = std::string(Caller(operation)) + number + ", " +
                           (one ? "&value_" : "values_") + ", " + ArgumentCount(parameters) + ")";
  for (std::string& statement : Returned(operation, call)) {
    statements.push_back(std::move(statement));
  }

  const bool lists = std::ranges::any_of(
      parameters, [](const ParameterInfo& p) { return p.type.type == Type::kTextList; });
  const std::string pinned =
      (lists ? "    using (var memory_ = new NativeMemory())\n" : "") + PinnedTexts(parameters);
  std::string body = " {\n" + OpenedBlock(pinned);
  const std::size_t indent = pinned.empty() ? 4 : 6;
  for (const std::string& statement : statements) {
    body += ZQ7Tool::Wrapped(std::string(indent, ' '), statement, indent + 4, kWidth);
  }
  return body + (pinned.empty() ? "" : "    }\n") + "  }\n";
}

std::string Operation(const ClassInfo& owner, const OperationInfo& operation) {
  const std::string name = MemberName(owner, operation.name);
  const std::string errors = Xml(RaisedErrors(operation.details));
  return "\n" + Summary(operation.help, 2) + ParameterComments(operation.parameters) +
         ReturnComment(owner, operation) +
         Element("<exception cref=\"RunTimeException\">", errors, "</exception>", 2) +
         Remarks(operation.details, 2) + "  " +
         Declaration("public " + TypeName(operation.result) + " " + name, operation.parameters) +
         OperationBody(operation);
}

std::string SetAccessor(const PropertyInfo& property) {
  const std::string set = "Handle.Set(" + std::to_string(property.number) + ", &value_)";
  const std::string begin = "    set {\n      var value_ = new Value();\n      ";
  if (property.type.type == Type::kText) {
    return begin + "fixed (char* text_ = value) {\n        value_.Set(text_, value);\n        " +
           set + ";\n      }\n    }\n";
  }
  const std::string cast = property.type.enumeration != nullptr ? "(int)" : "";
  return begin + "value_.Set(" + cast + "value);\n      " + set + ";\n    }\n";
}

std::string Property(const ClassInfo& owner, const PropertyInfo& property) {
  const std::string begin = "\n" + Summary(property.help, 2) + Remarks(property.details, 2) +
                            "  public " + TypeName(property.type) + " " +
                            MemberName(owner, property.name);
  const std::string read =
      Taken(property.type, "Handle.Get(" + std::to_string(property.number) + ")");
  if (!property.writable) return begin + " => " + read + ";\n";
  return begin + " {\n" + (property.readable ? "    get => " + read + ";\n" : "") +
         SetAccessor(property) + "  }\n";
}

std::string Event(const ClassInfo& owner, const EventInfo& event) {
  const std::string name = MemberName(owner, event.name);
  const std::string handler = std::string(event.name) + "Handler";
  const std::string number = std::to_string(event.number);
  std::string arguments;
  for (std::size_t i = 0; i < event.parameters.size(); ++i) {
    arguments += (i == 0 ? "" : ", ") +
                 Taken(event.parameters[i].type, "values_[" + std::to_string(i) + "]");
  }
  return "\n  /// <summary>Handles <see cref=\"" + name + "\"/>.</summary>\n  " +
         Declaration("public delegate void " + handler, event.parameters) + ";\n\n" +
         Summary(event.help, 2) + Remarks(event.details, 2) + "  public event " + handler + " " +
         name + " {\n    add => Handle.Events.Add(" + number +
         ", value, (handlers_, values_) =>\n        ((" + handler + ")handlers_)(" + arguments +
         "));\n    remove => Handle.Events.Remove(" + number + ", value);\n  }\n";
}

std::string Constructor(const ClassInfo& owner) {
  if (!owner.creatable) return "";
  const std::string name(owner.name);
  return "  /// <summary>Makes an instance with the machine's services or the host's.</summary>\n"
         "  public " +
         name + "(Services services = null)\n      : base(ObjectHandle.Create(\"" + name +
         "\", services)) {}\n";
}

std::string Class(const ClassInfo& owner) {
  std::string code = Summary(owner.help, 0) + Remarks(owner.details, 0) +
                     "public sealed unsafe partial class " + std::string(owner.name) +
                     " : ZQ7Object {\n" + Constructor(owner);
  for (const PropertyInfo& property : owner.properties) code += Property(owner, property);
  for (const OperationInfo& operation : owner.operations) code += Operation(owner, operation);
  for (const EventInfo& event : owner.events) code += Event(owner, event);
  return code + "}\n\n";
}

std::string Enumeration(const EnumerationInfo& enumeration) {
  std::string code = Summary(enumeration.help, 0) + Remarks(enumeration.details, 0) +
                     "public enum " + std::string(enumeration.name) + " {\n";
  for (const EnumeratorInfo& member : enumeration.members) {
    code += Summary(member.help, 2) + "  " + Name(member.name) + " = " +
            std::to_string(member.value) + ",\n";
  }
  return code + "}\n\n";
}

}  // namespace

Fields CSharpFields() {
  std::string code;
  for (const EnumerationInfo& enumeration : Enumerations()) code += Enumeration(enumeration);
  for (const ClassInfo& owner : Classes()) code += Class(owner);
  return {{"MADE", "Made by scripts/pages from the catalogue and ZQ7Standard.cs.in."},
          {"VERSION", ZQ7_VERSION},
          {"VERSION_NUMBER", std::to_string(ZQ7_VERSION_NUMBER)},
          {"SOVERSION", ZQ7_SOVERSION},
          {"CODE", code}};
}

}  // namespace ZQ7Pages
