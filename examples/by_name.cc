// Calls an operation by its name, as a script engine or another language does: what the catalogue
// tells about it, a call whose texts become what it wants, and a call that fails.
#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/automation/catalogue.h>
#include <ZQ7Standard/automation/invoke.h>
#include <ZQ7Standard/platform/date_convention.h>

#include <iostream>
#include <variant>
#include <vector>

int main() {
  using namespace ZQ7Standard;
  using namespace ZQ7Standard::Automation;

  const ClassInfo* const owner = FindClass("standardobject");  // in any case
  const OperationInfo* const operation = FindOperation(*owner, "addmonth");
  std::cout << QualifiedName(*owner, operation->name) << " takes:\n";
  for (const ParameterInfo& parameter : operation->parameters) {
    std::cout << "  " << parameter.name << (parameter.optional ? ", optional\n" : "\n");
  }

  const Object standard =
      Create(owner->name,
             {.date_convention = FixedDateConvention({FieldOrder::kDayFirst, Era::kBuddhist})});
  for (const Text typed : {u"31/1/2567", u"soon"}) {
    try {
      const std::vector<Value> arguments = {typed, u"1"};
      const Value date = Invoke(standard, operation->name, {arguments});
      std::cout << Utf8(typed) << " and a month: " << Utf8(std::get<OleDate>(date).ToText())
                << '\n';
    } catch (const RunTimeError& error) {
      std::cout << Utf8(typed) << ": error " << error.Number() << ", " << error.Details().text
                << ", in " << error.Details().parameter << '\n';
    }
  }
}
