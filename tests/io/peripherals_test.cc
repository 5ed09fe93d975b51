#include <ZQ7Standard/PeripheralObject.h>
#include <ZQ7Standard/RunTimeError.h>

#include "tests/support/rows.h"

using namespace ZQ7Standard;

/// What a drawer's kick on port 2 makes of a control that does `on_call`: the calls it
/// saw, the result of `SendCommMsg`, and what `OpenDraw` returned and showed.
std::string Kick(const std::function<void(int)>& on_call) {
  std::string calls;
  std::string ignored;
  std::string shown;
  const PeripheralObject object({.message_box = std::make_shared<RecordingMessageBox>(shown)});
  const auto control = [&](std::string& log) {
    return std::make_shared<RecordingSerialPort>(log, on_call);
  };
  const auto sent = object.SendCommMsg(control(calls), u"\x1Bp0", 2);
  EXPECT_EQ(shown, "");
  const auto result = object.OpenDraw(control(ignored), u"\x1Bp0", 2);
  EXPECT_EQ(ignored, calls) << "the settings of both are the same";
  return calls + " -> " + std::to_string(sent) + " -> " + std::to_string(result) + " " + shown;
}

TEST(PeripheralObject, SkipsTheStepsBehindAFailedOne) {
  const std::array<std::string, 6> calls = {"port 2", "; settings 9600,N,8,1", "; input 0",
                                            "; open", "; output \x1Bp0",       "; close"};
  std::string expected;
  for (int failing = 1; failing <= 6; ++failing) {
    expected += calls[static_cast<std::size_t>(failing) - 1];
    EXPECT_EQ(Kick([failing](int call) {
                if (call == failing) throw RunTimeError(8002, "no port ๒");
              }),
              expected + " -> 8002 -> 1 critical, ok: : Error! : 8002\r\nno port ๒");
  }
  EXPECT_EQ(Kick([](int) {}), expected + " -> 0 -> 1 ");
}

TEST(PeripheralObject, MakesANumberOfWhateverIsRaised) {
  const auto kick = [](const auto& raised) { return Kick([&raised](int) { throw raised; }); };
  EXPECT_EQ(kick(RunTimeError(static_cast<int>(0x800A1F42), "wide")),
            "port 2 -> 8002 -> 1 critical, ok: : Error! : 8002\r\nwide");
  EXPECT_EQ(kick(RunTimeError(0x10000, "no success")),
            "port 2 -> 440 -> 1 critical, ok: : Error! : 440\r\nno success");
  EXPECT_EQ(kick(std::runtime_error("plain")),
            "port 2 -> 440 -> 1 critical, ok: : Error! : 440\r\nplain");
  EXPECT_TRUE(kick(5).starts_with("port 2 -> 440 -> 1 "));
  EXPECT_EQ(PeripheralObject().SendCommMsg(nullptr, u"", 1, u""), 91);
}
