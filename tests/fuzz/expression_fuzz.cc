// Any expression is read and planned, or refused with a message that shows it.

#include <string>

#include "fill/expression.h"
#include "fill/plan.h"
#include "tests/fuzz/check.h"

using namespace ZQ7Tool;
using ZQ7Standard::Check;

namespace {

void CheckPlan(const Plan& plan) {
  Check(plan.columns.size() == 1 && plan.columns[0].call == plan.calls.size() - 1);
  for (std::size_t i = 0; i < plan.calls.size(); ++i) {
    const auto& parameters = plan.calls[i].operation->parameters;
    Check(plan.calls[i].arguments.size() == parameters.size());
    for (std::size_t p = 0; p < parameters.size(); ++p) {
      const PlannedArgument& argument = plan.calls[i].arguments[p];
      Check(argument.source != Source::kDefault || parameters[p].optional);
      Check(argument.source != Source::kResult || argument.index < i);
      Check(argument.source != Source::kCell || argument.index < plan.header.size());
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string source(data, data + size);
  std::erase(source, '\0');  // which no command line has
  // A first byte that is no letter chooses a call, to bring arguments within reach.
  if (!source.empty() && source[0] > 0 && source[0] < ' ') {
    constexpr const char* kCalls[] = {"w=BahtStringObject.BahtString(",
                                      "w=StandardObject.AddMonth(",
                                      "w=StandardObject.FormatTDate2(StandardObject.CTDATE("};
    source.replace(0, 1, kCalls[source[0] % 3]);
  }
  try {
    CheckPlan(PlanColumns({"amount", "date", "ราคา", "date"}, {ReadColumnExpression(source)}));
  } catch (const WrongUse& mistake) {
    const std::string message = mistake.what();
    Check(message.ends_with("^") || message.starts_with("An expression is not UTF-8"));
  }
  return 0;
}
