#include <ZQ7Standard/PeripheralObject.h>
#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/message_box.h>

#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

/// The steps of opening a drawer through a control that raises `raised` in the step that begins
/// with `failing`, then the result of `SendCommMsg` and the message shown.
std::string Kick(const std::string& failing, const auto& raised) {
  const auto port = std::make_shared<RecordingSerialPort>();
  port->on_call = [&](const std::string& calls) {
    if (calls.find(failing) != std::string::npos) throw raised;
  };
  const auto box = std::make_shared<RecordingMessageBox>();
  const PeripheralObject object({.message_box = box});
  const auto number = object.SendCommMsg(port, u"kick", 2);
  const std::string calls = std::exchange(port->calls, "");
  EXPECT_EQ(object.OpenDraw(port, u"kick", 2), 1);
  EXPECT_EQ(port->calls, calls) << "the default settings are those of the drawer";
  const std::vector<Message> shown = box->Take();
  if (shown.empty()) return calls + " -> " + std::to_string(number);
  EXPECT_EQ(shown.at(0).icon, MessageIcon::kCritical);
  return calls + " -> " + std::to_string(number) + " " + Utf8(shown.at(0).text);
}

TEST(PeripheralObject, StopsAtAFailedStepAndMakesANumberOfWhatItRaised) {
  std::string done;
  for (const std::string step :
       {" port 2", " settings 9600,N,8,1", " input 0", " open", " output kick", " close"}) {
    done += step;
    EXPECT_EQ(Kick(step, RunTimeError(8002, "no ๒")), done + " -> 8002 Error! : 8002\r\nno ๒");
  }
  EXPECT_EQ(Kick("none", 0), done + " -> 0");
  const RunTimeError wide(static_cast<int>(0x800A1F42), "in the low half");
  EXPECT_EQ(Kick("port", wide), " port 2 -> 8002 Error! : 8002\r\nin the low half");
  EXPECT_EQ(Kick("port", RunTimeError(0x10000, "x")), " port 2 -> 440 Error! : 440\r\nx");
  EXPECT_EQ(Kick("port", std::logic_error("x")), " port 2 -> 440 Error! : 440\r\nx");
  EXPECT_TRUE(Kick("port", 5).starts_with(" port 2 -> 440 Error! : 440\r\n"));
  EXPECT_EQ(PeripheralObject().SendCommMsg(nullptr, u"", 1, u""), 91);
}
