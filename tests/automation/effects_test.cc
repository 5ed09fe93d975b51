#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/automation/tables.h>
#include <ZQ7Standard/platform/file_contents.h>
#include <ZQ7Standard/platform/file_copier.h>
#include <ZQ7Standard/platform/file_rewrite.h>
#include <ZQ7Standard/platform/file_status.h>
#include <ZQ7Standard/platform/folders.h>
#include <ZQ7Standard/platform/printers.h>
#include <ZQ7Standard/platform/time_text.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include "tests/support/row_tests.h"

namespace ZQ7Standard::Automation {
namespace {

using Asked = std::set<Effect>;

[[noreturn]] void Refuse() {
  throw RunTimeError({.number = 70, .text = "refused"});
}

// Services that note that they were asked, and refuse what reaches outside the program.

class CountingClock final : public Clock {
 public:
  explicit CountingClock(Asked& asked) : asked_(asked) {}
  OleDate Now() override {
    asked_.insert(Effect::kClock);
    return TestNow();
  }

 private:
  Asked& asked_;
};

class CountingConvention final : public DateConventionSource {
 public:
  explicit CountingConvention(Asked& asked) : asked_(asked) {}
  DateConvention Current() override {
    asked_.insert(Effect::kConvention);
    return kDmyBe;
  }

 private:
  Asked& asked_;
};

class CountingRandom final : public RandomSource {
 public:
  explicit CountingRandom(Asked& asked) : asked_(asked) {}
  void Reseed() override { asked_.insert(Effect::kRandom); }
  float Next() override { return 0.5; }

 private:
  Asked& asked_;
};

class Outside final : public FileStatusSource,
                      public Folders,
                      public FileReader,
                      public FileWriter,
                      public FileRewriter,
                      public FileCopier,
                      public MessageBox,
                      public PrinterList,
                      public Registry,
                      public TimeTextSource {
 public:
  explicit Outside(Asked& asked) : asked_(asked) {}

  std::optional<FileStatus> StatusOf(TextView) override { Ask(); }
  std::chrono::nanoseconds TimeStep(TextView) override { Ask(); }
  void ClearReadOnly(TextView) override { Ask(); }
  void Create(TextView) override { Ask(); }
  std::vector<FolderEntry> List(TextView) override { Ask(); }
  std::vector<FolderIdentity> Enclosing(TextView) override { Ask(); }
  std::optional<std::string> ReadAll(TextView) override { Ask(); }
  std::size_t ReadStart(TextView, std::span<char>) override { Ask(); }
  bool Create(TextView, std::string_view) override { Ask(); }
  void Append(TextView, std::string_view) override { Ask(); }
  bool Rewrite(TextView, const FileChange&) override { Ask(); }
  void Copy(TextView, TextView, ExistingTarget) override { Ask(); }
  void Show(const Message&) override { Ask(); }
  std::vector<Printer> Installed() override { Ask(); }
  Printer Current() override { Ask(); }
  void MakeCurrent(const Printer&) override { Ask(); }
  Text LongTime(OleDate) override { Ask(); }
  std::unique_ptr<RegistryKey> Open(std::int32_t, TextView, std::uint32_t) override { Ask(); }
  std::unique_ptr<RegistryKey> Create(std::int32_t, TextView, const KeyCreation&) override {
    Ask();
  }

 private:
  [[noreturn]] void Ask() {
    asked_.insert(Effect::kOutside);
    Refuse();
  }

  Asked& asked_;
};

Services CountingServices(Asked& asked) {
  const auto outside = std::make_shared<Outside>(asked);
  return {.file_status = outside,
          .folders = outside,
          .file_reader = outside,
          .file_writer = outside,
          .file_rewriter = outside,
          .file_copier = outside,
          .clock = std::make_shared<CountingClock>(asked),
          .date_convention = std::make_shared<CountingConvention>(asked),
          .time_text = outside,
          .random_source = std::make_shared<CountingRandom>(asked),
          .block_cipher = [&asked]() -> std::unique_ptr<BlockCipher> {
            asked.insert(Effect::kOutside);
            return nullptr;
          },
          .message_box = outside,
          .registry = outside,
          .printers = outside};
}

/// Arguments of every kind that an operation meets, for one parameter.
std::vector<Value> ArgumentsFor(const ParameterInfo& parameter) {
  switch (parameter.type.type) {
    case Type::kText:
      return {u"", u"15/1/2567", u"15/1", u"2567/03", u"2567-01-15", u"9:30", u"BLACKHORSE", u"12"};
    case Type::kBoolean:
      return {true, false};
    case Type::kDate:
      return {OleDate::FromParts(2024, 1, 31, 9, 30), OleDate::FromParts(3333, 3, 3),
              OleDate::FromParts(100, 1, 1)};
    case Type::kTextList:
      return {TextList{u"a", u"b"}};
    default:
      return {1.0, 0.0, 12.5, -1.0};
  }
}

/// Argument lists of an operation: those of its examples, and every combination of the arguments of
/// its first parameters, with and without the optional ones.
std::vector<std::vector<Value>> CallsOf(const OperationInfo& operation) {
  std::vector<std::vector<Value>> calls;
  for (const Example& example : operation.examples) calls.push_back(example.arguments);
  const auto required = static_cast<std::size_t>(
      std::ranges::count(operation.parameters, false, &ParameterInfo::optional));
  for (std::size_t turn = 0; turn < 64; ++turn) {
    for (const std::size_t count : {required, operation.parameters.size()}) {
      std::vector<Value> arguments;
      std::size_t rest = turn;
      for (std::size_t i = 0; i < count; ++i) {
        const auto values = ArgumentsFor(operation.parameters[i]);
        arguments.push_back(values[rest % values.size()]);
        rest /= values.size();
      }
      calls.push_back(std::move(arguments));
    }
  }
  return calls;
}

/// The result of a call, or the number of the error it raises.
std::variant<Value, int> OutcomeOf(const Object& object, const OperationInfo& operation,
                                   const std::vector<Value>& arguments) {
  try {
    return Invoke(object, operation, {arguments});
  } catch (const RunTimeError& error) {
    return error.Number();
  }
}

Asked AskedBy(const ClassInfo& owner, const OperationInfo& operation) {
  Asked all;
  for (const auto& arguments : CallsOf(operation)) {
    Asked asked;
    const Object object = Create(owner.name, CountingServices(asked));
    asked.clear();  // making an object may ask for more
    OutcomeOf(object, operation, arguments);
    all.merge(asked);
  }
  return all;
}

// No operation asks for more than its row states, and each asks for that.
TEST(Effects, AreWhatServicesSee) {
  for (const ClassInfo& owner : Classes()) {
    if (!owner.creatable) continue;
    for (const OperationInfo& operation : owner.operations) {
      const std::string name = QualifiedName(owner, operation.name);
      EXPECT_TRUE(!operation.may_block || operation.effect == Effect::kOutside) << name;
      if (operation.effect == Effect::kOutside) continue;
      const Asked asked = AskedBy(owner, operation);
      const bool alone = operation.effect == Effect::kNone || operation.effect == Effect::kInstance;
      const Effect most = asked.empty() ? Effect::kNone : *asked.rbegin();
      EXPECT_EQ(most, alone ? Effect::kNone : operation.effect) << name;
    }
  }
}

/// Calls every operation of an instance that stays inside the program.
void UseEverything(const Object& object) {
  for (const OperationInfo& operation : object.Class().operations) {
    if (operation.effect == Effect::kOutside) continue;
    for (const auto& arguments : CallsOf(operation)) OutcomeOf(object, operation, arguments);
  }
}

// What is not said to use the instance answers alike on a new and on a used one.
TEST(Effects, InstancesAnswerLikeNewOnes) {
  Asked asked;
  for (const ClassInfo& owner : Classes()) {
    if (!owner.creatable) continue;
    const Object used = Create(owner.name, CountingServices(asked));
    UseEverything(used);
    for (const OperationInfo& operation : owner.operations) {
      if (operation.effect >= Effect::kInstance) continue;
      for (const auto& arguments : CallsOf(operation)) {
        const Object fresh = Create(owner.name, CountingServices(asked));
        EXPECT_EQ(OutcomeOf(used, operation, arguments), OutcomeOf(fresh, operation, arguments))
            << QualifiedName(owner, operation.name);
      }
    }
  }
}

TEST(TableOperations, HaveNamesOfTheirOwn) {
  std::map<std::string, std::string> owners;
  for (const auto& [owner, operation, name] : TableOperations()) {
    std::string lower = name;
    std::ranges::transform(lower, lower.begin(), [](char c) { return std::tolower(c); });
    EXPECT_TRUE(owners.emplace(lower, owner->name).second) << name;
    for (const ParameterInfo& parameter : operation->parameters) {
      EXPECT_NE(parameter.type.type, Type::kObject) << name;
    }
  }
  const std::vector<std::pair<std::string, std::string>> rows = {
      {"bahtstring", "BahtStringObject"},
      {"monthtext", "StandardObject"},
      {"bahtstringobject_monthtext", "BahtStringObject"},
      {"registryobject_encrypt", "RegistryObject"},
      {"getvalue", ""},  // a file's
      {"gridvalueobject_getvalue", "GridValueObject"},
      {"random", ""}};
  for (const auto& [name, owner] : rows) {
    EXPECT_EQ(owners.contains(name) ? owners[name] : "", owner) << name;
  }
}

TEST(RowObjects, KeepNothingBetweenCalls) {
  const ClassInfo& owner = *FindClass("BahtStringObject");
  const std::vector<Value> dollars = {1.0, false, false, u"ดอลลาร์"};
  const std::vector<Value> twenty = {20.0};
  RowObjects objects(ExampleServices());
  EXPECT_EQ(objects.Call(owner, *FindOperation(owner, "MoneyText"), dollars),
            Value(u"หนึ่งดอลลาร์ถ้วน"));
  EXPECT_EQ(objects.Call(owner, *FindOperation(owner, "MoneyTextT"), twenty), Value(u"ยี่สิบบาทถ้วน"));
}

}  // namespace
}  // namespace ZQ7Standard::Automation
