#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/automation/catalogue.h>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "layout.h"
#include "signature.h"
#include "writers.h"

/// The files of the automation server of Windows that follow from the catalogue: its type library,
/// the functions that typed hosts call, and the manifest for use without registration.
namespace ZQ7Pages {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

constexpr std::size_t kWidth = 100;

/// The project's namespace of names, {37F7D0C3-91B4-4E0B-9C52-5A1D6B8E2F40}, as bytes.
constexpr std::string_view kNamespace =
    "\x37\xF7\xD0\xC3\x91\xB4\x4E\x0B\x9C\x52\x5A\x1D\x6B\x8E\x2F\x40";

struct TypeRow {
  Type type;
  std::string_view idl;
  std::string_view cpp;
};

constexpr auto kTypes = std::to_array<TypeRow>({
    {Type::kText, "BSTR", "BSTR"},
    {Type::kByte, "unsigned char", "unsigned char"},
    {Type::kInteger, "short", "short"},
    {Type::kLong, "long", "long"},
    {Type::kSingle, "float", "float"},
    {Type::kDouble, "double", "double"},
    {Type::kBoolean, "VARIANT_BOOL", "VARIANT_BOOL"},
    {Type::kDate, "DATE", "DATE"},
    {Type::kCurrency, "CURRENCY", "CURRENCY"},
    {Type::kTextList, "SAFEARRAY(BSTR)", "SAFEARRAY*"},
});

/// The identifier of a name: a UUID of version 3 (RFC 4122).
std::string Guid(const std::string& name) {
  const std::string bytes = std::string(kNamespace) + name;
  std::string digits = Utf8(StandardObject().CalculateMD5(FromWindows874(bytes)));
  std::ranges::transform(digits, digits.begin(),
                         [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
  digits[12] = '3';
  constexpr std::string_view kHex = "0123456789ABCDEF";
  digits[16] = kHex[8 + kHex.find(digits[16]) % 4];
  for (const std::size_t dash : {8U, 13U, 18U, 23U}) digits.insert(dash, "-");
  return digits;
}

std::string InterfaceName(const ClassInfo& owner) {
  return "I" + std::string(owner.name);
}

std::string EventsName(const ClassInfo& owner) {
  return "D" + std::string(owner.name) + "Events";
}

std::vector<const ClassInfo*> Creatable() {
  std::vector<const ClassInfo*> classes;
  for (const ClassInfo& owner : Classes()) {
    if (owner.creatable) classes.push_back(&owner);
  }
  return classes;
}

/// The operation or the property with each number, in their order: the functions of an interface
/// stay where they are when members are added.
std::vector<MemberInfo> Members(const ClassInfo& owner) {
  std::vector<MemberInfo> members;
  for (const OperationInfo& operation : owner.operations) members.push_back({&operation, nullptr});
  for (const PropertyInfo& property : owner.properties) members.push_back({nullptr, &property});
  std::ranges::sort(members, {}, [](const MemberInfo& member) {
    return member.operation != nullptr ? member.operation->number : member.property->number;
  });
  return members;
}

// --- Types ---

const TypeRow& RowOf(const TypeInfo& type) {
  const auto* const row = std::ranges::find(kTypes, type.type, &TypeRow::type);
  if (row == kTypes.end()) throw std::logic_error("automation has no type for a result");
  return *row;
}

/// Whether a parameter is a VARIANT: for lists of both kinds, null, none, or a default that widl
/// cannot write.
bool IsVariant(const ParameterInfo& parameter) {
  const Type type = parameter.type.type;
  const bool left_out =
      parameter.optional && (std::holds_alternative<Omitted>(parameter.default_value) ||
                             type == Type::kSingle || type == Type::kDouble);
  const bool null = parameter.nullable && type != Type::kObject;
  return left_out || null || type == Type::kTextList;
}

/// Whether a parameter is a reference. One with a default is a value, as widl writes no default of
/// a reference; hosts see no difference, as no operation writes to one.
bool IsReference(const ParameterInfo& parameter) {
  return parameter.by_reference && !parameter.optional;
}

std::string ResultType(const TypeInfo& type, std::string_view TypeRow::*language) {
  if (type.enumeration == nullptr) return std::string(RowOf(type).*language);
  return (language == &TypeRow::cpp ? "::" : "") + std::string(type.enumeration->name);
}

std::string ParameterType(const ParameterInfo& parameter, std::string_view TypeRow::*language) {
  const std::string pointer = IsReference(parameter) ? "*" : "";
  if (IsVariant(parameter)) return "VARIANT" + pointer;
  if (parameter.type.type == Type::kObject) return "IDispatch*" + pointer;
  return ResultType(parameter.type, language) + pointer;
}

// --- The type library ---

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) quoted += c == '"' || c == '\\' ? std::string{'\\', c} : std::string{c};
  return quoted + "\"";
}

/// The attribute that a viewer of the library shows; none for what its code page may lack.
std::string HelpString(std::string_view help) {
  const bool ascii = std::ranges::all_of(help, [](char c) { return c >= ' ' && c <= '~'; });
  return help.empty() || !ascii ? "" : ", helpstring(" + Quoted(help) + ")";
}

std::string DefaultValue(const ParameterInfo& parameter) {
  if (const auto* flag = std::get_if<bool>(&parameter.default_value)) return *flag ? "-1" : "0";
  if (const auto* text = std::get_if<Text>(&parameter.default_value)) return Quoted(Utf8(*text));
  return ZQ7Tool::Literal(parameter.default_value, {.type = parameter.type.type});
}

std::string IdlParameter(const ParameterInfo& parameter) {
  std::string attributes = IsReference(parameter) ? "in, out" : "in";
  if (parameter.optional) {
    attributes +=
        IsVariant(parameter) ? ", optional" : ", defaultvalue(" + DefaultValue(parameter) + ")";
  }
  return "[" + attributes + "] " + ParameterType(parameter, &TypeRow::idl) + " " +
         std::string(parameter.name);
}

/// A function on as many lines as it takes.
std::string IdlFunction(const std::string& begin, std::vector<std::string> parameters) {
  if (parameters.empty()) return begin + "();\n";
  for (std::string& parameter : parameters) parameter += ",";
  parameters.back().back() = ')';
  std::string lines = ZQ7Tool::Filled(begin + "( ", parameters, 8, kWidth - 1);
  lines.back() = ';';
  return lines.erase(begin.size() + 1, 1) + "\n";
}

std::string IdlBegin(int number, std::string_view attribute, std::string_view help) {
  return "    [id(" + std::to_string(number) + ")" + std::string(attribute) + HelpString(help) +
         "]\n    HRESULT ";
}

std::string IdlOperation(const OperationInfo& operation) {
  std::vector<std::string> parameters;
  for (const ParameterInfo& parameter : operation.parameters) {
    parameters.push_back(IdlParameter(parameter));
  }
  if (operation.result.type != Type::kNothing) {
    parameters.push_back("[out, retval] " + ResultType(operation.result, &TypeRow::idl) +
                         "* result");
  }
  const std::string begin = IdlBegin(operation.number, "", operation.help);
  const std::size_t line = begin.rfind('\n') + 1;
  return begin.substr(0, line) +
         IdlFunction(begin.substr(line) + std::string(operation.name), parameters);
}

std::string IdlProperty(const PropertyInfo& property) {
  const std::string type = ResultType(property.type, &TypeRow::idl);
  const std::string name(property.name);
  std::string lines;
  if (property.readable) {
    lines += IdlBegin(property.number, ", propget", property.help) + name + "([out, retval] " +
             type + "* result);\n";
  }
  if (property.writable) {
    lines += IdlBegin(property.number, ", propput", property.help) + name + "([in] " + type +
             " value);\n";
  }
  return lines;
}

std::string IdlInterface(const ClassInfo& owner) {
  const std::string name = InterfaceName(owner);
  std::string lines = "  [odl, dual, oleautomation, uuid(" + Guid(name) + ")" +
                      HelpString("The members of " + std::string(owner.name)) + "]\n  interface " +
                      name + " : IDispatch {\n";
  for (const auto& [operation, property] : Members(owner)) {
    lines += operation != nullptr ? IdlOperation(*operation) : IdlProperty(*property);
  }
  return lines + "  };\n\n";
}

std::string IdlEvents(const ClassInfo& owner) {
  if (owner.events.empty()) return "";
  const std::string name = EventsName(owner);
  std::string lines = "  [uuid(" + Guid(name) + ")" +
                      HelpString("The events of " + std::string(owner.name)) +
                      "]\n  dispinterface " + name + " {\n    properties:\n    methods:\n";
  for (const EventInfo& event : owner.events) {
    std::vector<std::string> parameters;
    for (const ParameterInfo& parameter : event.parameters) {
      parameters.push_back(IdlParameter(parameter));
    }
    lines += IdlFunction(
        "      [id(" + std::to_string(event.number) + ")] void " + std::string(event.name),
        parameters);
  }
  return lines + "  };\n\n";
}

std::string IdlClass(const ClassInfo& owner) {
  std::string lines = "  [uuid(" + Guid(std::string(owner.name)) + ")" + HelpString(owner.help) +
                      "]\n  coclass " + std::string(owner.name) + " {\n    [default] interface " +
                      InterfaceName(owner) + ";\n";
  if (!owner.events.empty()) {
    lines += "    [default, source] dispinterface " + EventsName(owner) + ";\n";
  }
  return lines + "  };\n\n";
}

/// Lines of the header alone that set the system's macros of such names aside, or bring them back.
std::string MacroLines(const EnumerationInfo& enumeration, bool aside) {
  std::string lines;
  for (const EnumeratorInfo& member : enumeration.members) {
    const std::string name(member.name);
    if (!name.starts_with("HKEY_") && !name.starts_with("CSIDL_")) continue;
    const std::string verb = aside ? "push" : "pop";
    lines += "  cpp_quote(\"#pragma " + verb + "_macro(\\\"" + name + "\\\")\")\n";
    if (aside) lines += "  cpp_quote(\"#undef " + name + "\")\n";
  }
  return lines;
}

std::string IdlEnumeration(const EnumerationInfo& enumeration) {
  const std::string name(enumeration.name);
  std::string lines = MacroLines(enumeration, true) + "  typedef [v1_enum, uuid(" + Guid(name) +
                      ")" + HelpString(enumeration.help) + "]\n  enum " + name + " {\n";
  for (const EnumeratorInfo& member : enumeration.members) {
    lines += "    " + std::string(member.name) + " = " + std::to_string(member.value) + ",\n";
  }
  lines.erase(lines.size() - 2, 1);
  return lines + "  } " + name + ";\n" + MacroLines(enumeration, false) + "\n";
}

std::string Idl() {
  std::string lines;
  for (const EnumerationInfo& enumeration : Enumerations()) lines += IdlEnumeration(enumeration);
  for (const ClassInfo* owner : Creatable()) {
    lines += IdlInterface(*owner) + IdlEvents(*owner) + IdlClass(*owner);
  }
  lines.pop_back();
  return lines;
}

// --- What typed hosts call ---

/// "StandardObject::CTDATE".
std::string QualifiedMember(const ClassInfo& owner, std::string_view prefix,
                            std::string_view name) {
  return std::string(owner.name).append("::").append(prefix).append(name);
}

/// The function `name` of an interface, which calls a member of the class.
std::string CppFunction(const std::string& name, const std::string& result,
                        const std::vector<std::string>& types, const std::string& member,
                        int number) {
  std::vector<std::string> parameters;
  std::string arguments;
  for (const std::string& type : types) {
    const std::string argument = "a" + std::to_string(parameters.size());
    parameters.push_back(type + " " + argument + ",");
    arguments += ", " + argument;
  }
  if (!result.empty()) {
    parameters.push_back(result + "* result,");
    arguments = ", result" + arguments;
  }
  if (parameters.empty()) parameters.emplace_back(" ");
  parameters.back().back() = ')';
  const std::string begin = "  STDMETHODIMP " + name;
  std::string lines = ZQ7Tool::Filled(begin + "( ", parameters, 6, kWidth - 11);
  lines.pop_back();
  lines.erase(begin.size() + 1, 1);
  return lines + " override {\n    return " + (result.empty() ? "Call<&" : "CallForResult<&") +
         member + ">(*this, " + std::to_string(number) + arguments + ");\n  }\n";
}

std::string CppOperation(const ClassInfo& owner, const OperationInfo& operation) {
  std::vector<std::string> types;
  for (const ParameterInfo& parameter : operation.parameters) {
    types.push_back(ParameterType(parameter, &TypeRow::cpp));
  }
  const bool none = operation.result.type == Type::kNothing;
  return CppFunction(std::string(operation.name),
                     none ? "" : ResultType(operation.result, &TypeRow::cpp), types,
                     QualifiedMember(owner, "", operation.name), operation.number);
}

std::string CppProperty(const ClassInfo& owner, const PropertyInfo& property) {
  const std::string type = ResultType(property.type, &TypeRow::cpp);
  const std::string name(property.name);
  std::string lines;
  if (property.readable) {
    lines +=
        CppFunction("get_" + name, type, {}, QualifiedMember(owner, "", name), property.number);
  }
  if (property.writable) {
    lines += CppFunction("put_" + name, "", {type}, QualifiedMember(owner, "Set", name),
                         property.number);
  }
  return lines;
}

std::string CppClass(const ClassInfo& owner) {
  const std::string name(owner.name);
  std::string lines = "class " + name + "Server final : public Server<::" + InterfaceName(owner) +
                      ", " + name + "> {\n public:\n  using Server::Server;\n\n";
  for (const auto& [operation, property] : Members(owner)) {
    lines += operation != nullptr ? CppOperation(owner, *operation) : CppProperty(owner, *property);
  }
  return lines + "};\n\n";
}

std::string CppRows() {
  std::string lines;
  for (const ClassInfo* owner : Creatable()) {
    const std::string name(owner->name);
    const std::string events = owner->events.empty() ? "nullptr" : "&DIID_" + EventsName(*owner);
    lines += "    {\"" + name + "\", &CLSID_" + name + ", &IID_" + InterfaceName(*owner) + ", " +
             events + ",\n     NewServer<" + name + "Server>},\n";
  }
  return lines;
}

// --- The manifest ---

std::string ManifestClasses() {
  std::string lines;
  for (const ClassInfo* owner : Creatable()) {
    const std::string name(owner->name);
    const std::string prog_id = "ZQ7Standard." + name;
    lines += "    <comClass clsid=\"{" + Guid(name) + "}\" progid=\"" + prog_id +
             "\"\n              tlbid=\"{" + Guid("ZQ7Standard") +
             "}\" threadingModel=\"Apartment\"\n              description=\"" + prog_id +
             "\">\n      <progid>" + prog_id + ".1</progid>\n    </comClass>\n";
  }
  return lines;
}

std::string Proxy(const std::string& name, std::string_view stub) {
  return "  <comInterfaceExternalProxyStub name=\"" + name + "\" iid=\"{" + Guid(name) +
         "}\"\n      tlbid=\"{" + Guid("ZQ7Standard") + "}\" proxyStubClsid32=\"{" +
         std::string(stub) + "}\"/>\n";
}

std::string ManifestInterfaces() {
  constexpr std::string_view kUniversal = "00020424-0000-0000-C000-000000000046";
  constexpr std::string_view kDispatch = "00020420-0000-0000-C000-000000000046";
  std::string lines;
  for (const ClassInfo* owner : Creatable()) {
    lines += Proxy(InterfaceName(*owner), kUniversal);
    if (!owner->events.empty()) lines += Proxy(EventsName(*owner), kDispatch);
  }
  return lines;
}

}  // namespace

Fields WindowsFields() {
  std::string servers;
  for (const ClassInfo* owner : Creatable()) servers += CppClass(*owner);
  return {{"MADE", "Made by scripts/pages from the catalogue."},
          {"VERSION", ZQ7_VERSION},
          {"LIBRARY", Guid("ZQ7Standard")},
          {"IDL", Idl()},
          {"SERVERS", servers},
          {"ROWS", CppRows()},
          {"CLASSES", ManifestClasses()},
          {"INTERFACES", ManifestInterfaces()}};
}

}  // namespace ZQ7Pages
