#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/automation/invoke.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/support/printers.h"
#include "tests/support/row_tests.h"

namespace ZQ7Standard::Automation {
namespace {

struct CallRow {
  const char* operation;
  std::vector<Value> positional;
  std::vector<NamedArgument> named;
  const char* expected;  // the result as text, or "error N: " and part of the message
};

std::string Outcome(const Object& object, const CallRow& row) {
  try {
    const Value result = Invoke(object, row.operation, {row.positional, row.named});
    if (const auto* text = std::get_if<Text>(&result)) return Utf8(*text);
    return std::holds_alternative<bool>(result) ? Shown(std::get<bool>(result)) : "?";
  } catch (const RunTimeError& error) {
    return error.what();
  }
}

TEST(Invoke, TakesArgumentsByPositionAndByName) {
  const Object object = Create("standardobject", ExampleServices());
  const std::vector<CallRow> rows = {
      {"TrimSpaceToOne", {u" a  b ", false}, {}, " a b"},
      {"TRIMSPACETOONE", {u" a  b "}, {{"trimback", false}}, "a b "},
      {"TrimSpaceToOne", {}, {{"TrimFront", false}, {"inString", u" a "}}, " a"},
      {"TrimSpaceToOne", {u" a ", Omitted{}, 0}, {}, "a "},
      {"TrimSpaceToOne", {u" a ", Omitted{}}, {{"TrimFront", 0}}, " a"},
      {"TrimSpaceToOne", {u" a "}, {{"TrimFront", Omitted{}}}, "a"},
      {"MonthText", {u"1", u"True", 1}, {}, "มกราคม"},
      {"d2Str", {Currency(10.25)}, {}, "10.25"},
      {"FormatTime", {u"15/1/2567 9:05"}, {}, "09:05"},
      {"Foo", {}, {}, "StandardObject.Foo: object"},
      {"StrVal",
       {u"1", u"2"},
       {},
       "StandardObject.StrVal: wrong number of arguments: 2 for 1 (error 450)"},
      {"StrVal", {}, {}, "(error 449): istr"},
      {"IncreaseString", {Omitted{}, u"7"}, {}, "7"},
      {"AddList", {u"a", Omitted{}}, {}, "a;"},
      {"AddList", {u"a;b"}, {{"SeparateChar", u","}, {"iAdd", Omitted{}}}, "a,b,"},
      {"TrimSpaceToOne", {Omitted{}}, {{"inString", u" a"}}, "a"},
      {"AddList", {u"a"}, {}, "(error 449): iAdd"},
      {"d2Str", {Omitted{}}, {}, "d2Str: argument not optional (error 449): iValue"},
      {"StrVal", {}, {{"text", u"1"}}, "(error 448): \"text\""},
      {"StrVal", {u"1"}, {{"istr", u"1"}}, "given twice (error 450): istr"},
      {"MonthText",
       {u"x", true, true},
       {},
       "MonthText: type mismatch (error 13): MonthNumber: \"x\""},
      {"MonthText",
       {40000, true, true},
       {},
       "MonthText: overflow (error 6): MonthNumber: \"40000\""},
      {"StrInt", {u"99999"}, {}, "StrInt: overflow (error 6): istr: \"99999\""}};
  for (const CallRow& row : rows) {
    EXPECT_NE(Outcome(object, row).find(row.expected), std::string::npos)
        << row.operation << " gave " << Outcome(object, row) << ", not " << row.expected;
  }
  EXPECT_EQ(ErrorOf([] { Create("Standard"); }), 429);
}

TEST(Invoke, TakesObjectsAndNulls) {
  const Object printer = Create("PrintObject", {.printers = RecordingPrinters()});
  const Object devices =
      Create("PeripheralObject", {.message_box = std::make_shared<RecordingMessageBox>()});
  const Object standard = Create("StandardObject", ExampleServices());
  const Object picture = Wrap(std::make_shared<PlainPicture>());
  const auto control = std::make_shared<RecordingSerialPort>();
  control->on_call = [](const std::string& /*calls*/) {};
  const Object port = Wrap(control);
  const struct {
    const Object& object;
    const char* operation;
    std::vector<Value> arguments;
    Value expected;  // or the number of the error
  } rows[] = {
      {printer, "PrintGraphicObject", {picture}, std::int16_t{0}},
      {printer, "PrintGraphicObject", {Null{}}, 5},
      {printer, "PrintGraphicObject", {u"C:\\shop\\logo.png"}, 13},
      {printer, "PrintGraphicObject", {port}, 13},
      {devices, "SendCommMsg", {port, u"x", 1}, std::int16_t{0}},
      {devices, "SendCommMsg", {Null{}, u"x", 1}, std::int16_t{91}},
      {devices, "SendCommMsg", {u"SerialPort", u"x", 1}, 13},
      {devices, "SendCommMsg", {port, Null{}, 1}, 13},
      {standard, "Null2Zero", {Null{}}, 0.0},
      {standard, "FormatTimeleft", {1.5, Null{}}, 13},
      {standard, "TrimSpaceToOne", {u"a", Null{}}, 13},
      {standard, "ReverseString", {Null{}}, 13},
  };
  for (const auto& row : rows) {
    Value result;
    const int error = ErrorOf([&] { result = Invoke(row.object, row.operation, {row.arguments}); });
    EXPECT_EQ(error == 0 ? result : Value(error), row.expected)
        << row.operation << " " << &row - rows;
  }
  SetProperty(port, "PortOpen", true);
  EXPECT_TRUE(control->calls.ends_with(" close open")) << control->calls;
  EXPECT_EQ(GetProperty(port, "PortOpen"), Value(false));
  EXPECT_EQ(ErrorOf([&] { SetProperty(port, "PortOpen", Null{}); }), 13);
  EXPECT_EQ(ErrorOf([] { Wrap(std::shared_ptr<SerialPort>()); }), 91);
}

TEST(Invoke, ReadsProperties) {
  const Object grid = Create("GridValueObject");
  EXPECT_EQ(GetProperty(grid, "cols"), Value(-1));
  const std::vector<Value> three = {3};
  EXPECT_EQ(Invoke(grid, "SetCols", {three}), Value(Omitted{}));
  EXPECT_EQ(GetProperty(grid, "Cols"), Value(3));
  EXPECT_EQ(ErrorOf([&] { GetProperty(grid, "SetCols"); }), 438);
  EXPECT_EQ(ErrorOf([&] { SetProperty(grid, "Cols", 3); }), 438) << "read-only";
  EXPECT_EQ(ErrorOf([&] { SetProperty(grid, "Width", 3); }), 438);
}

class RecordingSink final : public EventSink {
 public:
  void Raise(const EventInfo& event, std::span<const Value> arguments) override {
    events_ += std::string(event.name);
    for (const Value& argument : arguments) {
      events_ += " " + std::to_string(std::get<std::int32_t>(argument));
    }
    events_ += ";";
  }
  const std::string& Events() const { return events_; }

 private:
  std::string events_;
};

TEST(Invoke, SendsEventsWhileTheSubscriptionIsKept) {
  const auto sink = std::make_shared<RecordingSink>();
  Object grid = Create("GridValueObject");
  auto subscription = Subscribe(grid, sink);
  const std::vector<Value> three = {3};
  const std::vector<Value> cell = {7, 2, 1.5};
  Invoke(grid, "SetCols", {three});
  Invoke(grid, "Setvalue", {cell});
  subscription.reset();
  Invoke(grid, "Setvalue", {cell});
  EXPECT_EQ(sink->Events(), "CellDataChange 7 2;");
  subscription = Subscribe(grid, sink);
  grid = Create("BitByteObject");
  subscription.reset();  // until now the grid lived on for it
  EXPECT_EQ(Subscribe(grid, sink), nullptr);
}

}  // namespace
}  // namespace ZQ7Standard::Automation
