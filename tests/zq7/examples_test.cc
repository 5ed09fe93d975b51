// The worked examples of the catalogue, on the host for which they are shown.

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/automation/invoke.h>
#include <ZQ7Standard/platform/message_box.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "host.h"
#include "objects.h"

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

/// Whether an example shows a program or a folder of Linux, on another system.
bool IsOfAnotherSystem(const OperationInfo& operation, const Example& example) {
  constexpr bool kIsLinux = std::filesystem::path::preferred_separator == '/';
  return !kIsLinux && example.error == 0 &&
         (operation.name == "ExecuteProgram" || operation.name == "GetSpecialFolder");
}

TEST(Catalogue, ExamplesHold) {
  const Host host({.example = true}, std::make_shared<RecordingMessageBox>());
  for (const ClassInfo& owner : Classes()) {
    for (const OperationInfo& operation : owner.operations) {
      EXPECT_FALSE(operation.examples.empty()) << operation.name;
      for (const Example& example : operation.examples) {
        if (IsOfAnotherSystem(operation, example)) continue;
        const Object object = Create(owner.name, host.Services());
        TypedCall call = {owner, operation, example.arguments};
        for (const Call& earlier : example.before) {
          Invoke(object, earlier.operation, {earlier.arguments});
        }
        Value result;
        int error = 0;
        try {
          MakeObjects(call, host.Services());
          result = Invoke(object, operation, {call.positional});
        } catch (const RunTimeError& raised) {
          error = raised.Number();
        }
        EXPECT_EQ(error, example.error) << operation.name;
        EXPECT_TRUE(result == example.result) << owner.name << "." << operation.name << ": example "
                                              << &example - operation.examples.data() << " index "
                                              << result.index() << " vs " << example.result.index();
      }
    }
  }
}

}  // namespace
}  // namespace ZQ7Tool
