#include <ZQ7Standard/automation/catalogue.h>
#include <ZQ7Standard/automation/invoke.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>

#include "tests/support/row_tests.h"

namespace ZQ7Standard::Automation {
namespace {

/// All public headers, concatenated.
std::string Headers() {
  std::ostringstream text;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(ZQ7STANDARD_HEADERS)) {
    if (entry.is_regular_file()) text << std::ifstream(entry.path()).rdbuf();
  }
  return text.str();
}

/// The public members that a class declares: name, and "result name(type parameter = default, ...)"
/// with single blanks.
std::map<std::string, std::string> Declarations(const std::string& headers,
                                                const std::string& class_name) {
  std::string body = headers.substr(headers.find("class ZQ7STANDARD_EXPORT " + class_name + " "));
  body = body.substr(0, std::min(body.find("\n private:"), body.find("\n};")));
  body = std::regex_replace(body, std::regex("//[^\n]*"), "");
  body = std::regex_replace(body, std::regex("\\s+"), " ");
  body = std::regex_replace(body, std::regex("std::|virtual "), "");
  std::map<std::string, std::string> members;
  const std::regex declaration("([A-Za-z][\\w<>]*) (\\w+)\\(([^()]*)\\)( const)?( = 0)?(;| \\{)");
  for (std::sregex_iterator it(body.begin(), body.end(), declaration), end; it != end; ++it) {
    members[it->str(2)] = it->str(1) + " " + it->str(2) + "(" + it->str(3) + ")";
  }
  return members;
}

/// The C++ type of a parameter or a result.
std::string CppType(const TypeInfo& type, bool parameter, bool tells_missing) {
  // A root is any 32-bit number.
  if (type.enumeration != nullptr && type.enumeration->name != "KetRootType") {
    return std::string(type.enumeration->name);
  }
  if (tells_missing) return "optional<" + CppType({.type = type.type}, false, false) + ">";
  if (type.type == Type::kObject) {
    return "const shared_ptr<" + std::string(type.object_class) + ">&";
  }
  if (parameter && type.type == Type::kTextList) return "const vector<Text>&";
  static const std::map<Type, std::string> names = {
      {Type::kNothing, "void"},         {Type::kText, "Text"},
      {Type::kByte, "uint8_t"},         {Type::kInteger, "int16_t"},
      {Type::kLong, "int32_t"},         {Type::kSingle, "float"},
      {Type::kDouble, "double"},        {Type::kBoolean, "bool"},
      {Type::kDate, "OleDate"},         {Type::kCurrency, "Currency"},
      {Type::kTextList, "vector<Text>"}};
  return names.at(type.type) + (parameter && type.type == Type::kText ? "View" : "");
}

std::string CppDefault(const ParameterInfo& parameter) {
  const Value& value = parameter.default_value;
  if (std::holds_alternative<Omitted>(value)) return "nullopt";
  if (const auto* text = std::get_if<Text>(&value)) {
    return text->empty() ? "{}" : "u\"" + Utf8(*text) + "\"";
  }
  if (std::holds_alternative<TextList>(value)) return "{}";
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "true" : "false";
  if (const auto* number = std::get_if<std::int16_t>(&value)) return std::to_string(*number);
  if (std::holds_alternative<float>(value)) return Shown(std::get<float>(value));
  if (std::holds_alternative<double>(value)) return Shown(std::get<double>(value));
  const std::int32_t number = std::get<std::int32_t>(value);
  if (parameter.type.enumeration == nullptr) return std::to_string(number);
  return std::string(
      std::ranges::find(parameter.type.enumeration->members, number, &EnumeratorInfo::value)->name);
}

std::string Declaration(const OperationInfo& operation) {
  std::string text = CppType(operation.result, false, false) + " " + std::string(operation.name);
  std::string separator = "(";
  for (const ParameterInfo& parameter : operation.parameters) {
    const bool tells_missing =
        parameter.optional && std::holds_alternative<Omitted>(parameter.default_value);
    text += separator + CppType(parameter.type, true, tells_missing) + " " +
            std::string(parameter.name);
    if (parameter.optional) text += " = " + CppDefault(parameter);
    separator = ", ";
  }
  return text + (separator == "(" ? "()" : ")");
}

/// Members of a header that are not in the catalogue: event listeners in C++, and bytes.
const std::set<std::string> kOutside = {"AddListener", "RemoveListener", "Picture"};

// Every operation and property of a public header is in the catalogue with exactly its signature,
// and nothing else is.
TEST(Catalogue, AgreesWithTheHeaders) {
  const std::string headers = Headers();
  for (const ClassInfo& owner : Classes()) {
    auto declared = Declarations(headers, std::string(owner.name));
    for (const std::string& name : kOutside) declared.erase(name);
    declared.erase(std::string(owner.name));
    for (const OperationInfo& operation : owner.operations) {
      const std::string name(operation.name);
      EXPECT_EQ(Declaration(operation), declared[name]) << owner.name;
      declared.erase(name);
    }
    for (const PropertyInfo& property : owner.properties) {
      const std::string name(property.name);
      if (property.readable) {
        EXPECT_EQ(CppType(property.type, false, false) + " " + name + "()", declared[name]);
      }
      EXPECT_EQ(property.writable, declared.erase("Set" + name) == 1) << name;
      declared.erase(name);
    }
    for (const auto& [name, declaration] : declared) {
      ADD_FAILURE() << owner.name << "." << name << " is not in the catalogue";
    }
  }
}

/// The first paragraph of a comment must fit on a line of a list.
constexpr std::size_t kLongestHelp = 90;

/// "StandardObject CTDATE 17" for each member, as in the list of released ones.
std::set<std::string> NumberedMembers() {
  std::set<std::string> lines;
  for (const ClassInfo& owner : Classes()) {
    std::set<int> taken;
    const auto add = [&](const auto& members) {
      for (const auto& member : members) {
        const std::string name(member.name);
        EXPECT_GT(member.number, 0) << name;
        EXPECT_FALSE(member.help.empty()) << name;
        EXPECT_LE(member.help.size(), kLongestHelp) << name;
        EXPECT_TRUE(taken.insert(member.number).second) << name << " has another's number";
        lines.insert(std::string(owner.name) + " " + name + " " + std::to_string(member.number));
      }
    };
    add(owner.operations);
    add(owner.properties);
    add(owner.events);
  }
  return lines;
}

// scripts/freeze adds members to the list; none may change or disappear.
TEST(Catalogue, KeepsReleasedNumbers) {
  const std::set<std::string> members = NumberedMembers();
  std::ifstream released(ZQ7STANDARD_RELEASED_NUMBERS);
  ASSERT_TRUE(released);
  for (std::string line; std::getline(released, line);) {
    EXPECT_TRUE(line.starts_with("#") || members.contains(line)) << line;
  }
}

// Copies work like the originals, and members of other classes are refused.
TEST(Catalogue, CopiesWork) {
  const ClassInfo grid = *FindClass("GridValueObject");
  const OperationInfo sum = *FindOperation(grid, "sumcol");
  const PropertyInfo rows = *FindMember(grid, "rows").property;
  const Object object = Create(grid.name);
  const std::vector<Value> first = {0};
  EXPECT_EQ(Invoke(object, sum, {first}), Value(0.0));
  EXPECT_EQ(GetProperty(object, rows), Value(1));
  EXPECT_EQ(ErrorOf([&] { SetProperty(object, rows, 3); }), 438) << "read-only";
  EXPECT_EQ(FindEvent(grid, "celldatachange")->parameters.size(), 2U);
  const Object bits = Create("BitByteObject");
  EXPECT_EQ(ErrorOf([&] { Invoke(bits, sum, {first}); }), 438);
  EXPECT_EQ(ErrorOf([&] { GetProperty(bits, rows); }), 438);
  EXPECT_EQ(FindEnumeration("zq7fixunit")->members[2].help, "up");
  EXPECT_EQ(FindOperation(grid, "SetCols")->parameters[0].help,
            "Does nothing when they are set already, or `Cols` is not above 0.");
}

TEST(Catalogue, HoldsEveryPublicClass) {
  for (const auto& entry : std::filesystem::directory_iterator(ZQ7STANDARD_HEADERS)) {
    const std::string name = entry.path().stem().string();
    const std::string text = (std::ostringstream() << std::ifstream(entry.path()).rdbuf()).str();
    const bool is_class = text.find("class ZQ7STANDARD_EXPORT " + name + " {") != std::string::npos;
    EXPECT_TRUE(!is_class || name == "GridValueListener" || FindClass(name) != nullptr) << name;
  }
}

}  // namespace
}  // namespace ZQ7Standard::Automation
