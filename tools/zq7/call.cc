#include "call.h"

#include <ZQ7Standard/RunTimeError.h>

#include <algorithm>
#include <array>

#include "call_words.h"
#include "enumerators.h"
#include "layout.h"
#include "members.h"
#include "names.h"
#include "objects.h"
#include "signature.h"
#include "wrong_use.h"

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

constexpr int kArgumentNotOptional = 449;
constexpr int kWrongNumberOfArguments = 450;

Member FindOperationNamed(std::string_view name) {
  const Member member = MemberNamed(name);
  if (member.operation != nullptr) return member;
  if (member.property != nullptr) {
    throw WrongUse(Quoted(name) + " is a property. A batch gets and sets properties.");
  }
  const std::string list = "zq7 list " + std::string(member.owner->name);
  throw WrongUse(Quoted(name) + " is not an operation. " + Quoted(list) + " shows the operations.");
}

Text TextOfWord(const std::string& word) {
  Text text = FromUtf8(word);
  if (Utf8(text) != word) throw WrongUse("An argument is not UTF-8: " + Quoted(Utf8(text)) + ".");
  return text;
}

/// The member of an enumeration by name. Any other word that looks like a name would not be a
/// number either.
Value EnumeratorOf(const EnumerationInfo& enumeration, const std::string& word) {
  if (const auto value = ValueOfEnumerator(enumeration, word)) return *value;
  throw WrongUse(Quoted(word) + " is not a member of " + std::string(enumeration.name) + "." +
                 EnumeratorHint(enumeration, word));
}

Value ValueOfWord(const std::string& word, const TypeInfo& type) {
  const bool member = type.enumeration != nullptr && IsIdentifier(word);
  return member ? EnumeratorOf(*type.enumeration, word) : Value(TextOfWord(word));
}

/// Collects the arguments of a call word by word.
class WordArguments {
 public:
  explicit WordArguments(const OperationInfo& operation) : operation_(operation) {}

  void Take(const std::string& word) {
    const std::string_view name = ArgumentName(word);
    if (name.empty()) {
      TakePositional(word);
    } else {
      const ParameterInfo& parameter = ParameterNamed(name);
      named_.push_back({parameter.name, ValueOfWord(word.substr(name.size() + 1), parameter.type)});
    }
  }

  void TakePositional(const std::string& word) {
    const std::size_t place = positional_.size();
    const auto& parameters = operation_.parameters;
    // The call reports one argument too many.
    const TypeInfo type = place < parameters.size() ? parameters[place].type : TypeInfo();
    positional_.push_back(ValueOfWord(word, type));
  }

  TypedCall In(const ClassInfo& owner) const { return {owner, operation_, positional_, named_}; }

 private:
  const ParameterInfo& ParameterNamed(std::string_view name) const {
    std::vector<std::string> names;
    for (const ParameterInfo& parameter : operation_.parameters) {
      if (SameName(parameter.name, name)) return parameter;
      names.emplace_back(parameter.name);
    }
    throw WrongUse(Quoted(name) + " is not a parameter of " + std::string(operation_.name) + "." +
                   Hint(name, names) +
                   R"( A text with "=" in it goes after "--" or its parameter's name.)");
  }

  const OperationInfo& operation_;
  std::vector<Value> positional_;
  std::vector<NamedArgument> named_;
};

}  // namespace

Value CallByWords(const CallWords& words, const Services& services) {
  const Member member = FindOperationNamed(words.operation);
  WordArguments arguments(*member.operation);
  for (const std::string& word : words.arguments) arguments.Take(word);
  for (const std::string& word : words.verbatim) arguments.TakePositional(word);
  const Object object = Create(member.owner->name, services);
  try {
    TypedCall call = arguments.In(*member.owner);
    MakeObjects(call, services);
    return Invoke(object, call.operation, {call.positional, call.named});
  } catch (const RunTimeError& error) {
    constexpr std::array kWrongWords = {kArgumentNotOptional, kWrongNumberOfArguments};
    if (std::ranges::find(kWrongWords, error.Number()) == kWrongWords.end()) throw;
    throw WrongUse(std::string(error.what()) +
                   "\nusage: " + SignatureLine(*member.owner, *member.operation));
  }
}

}  // namespace ZQ7Tool
