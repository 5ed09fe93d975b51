// Writes to a port that `tests/support/windows/serial_line` stands behind, if there is one.

#include <ZQ7Standard/PeripheralObject.h>
#include <ZQ7Standard/platform/serial_port.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include "base/code_page.h"
#include "platform/windows/handle.h"
#include "platform/windows/wide_text.h"
#include "tests/support/row_tests.h"

namespace ZQ7Standard {
namespace {

using namespace std::chrono_literals;

int Send(const std::shared_ptr<SerialPort>& port, TextView code, TextView settings = u"9600,N,8,1",
         std::int16_t number = 1) {
  return PeripheralObject().SendCommMsg(port, code, number, settings);
}

TEST(SerialPort, RefusesWhatIsNotThereOrCannotBe) {
  const auto port = SystemSerialPort({{1, "COM250"}, {8, "NUL"}, {9, "C:\\windows\\win.ini"}}, 0ms);
  ExpectTexts([&](TextView settings) { return Send(port, u"x", settings); },
              {{"380", {u"", u"9600,N,4,1", u"9600,N,8,1.5", u"9600,N,5,2", u"9601,N,8,1"}}});
  ExpectRows<std::int16_t>(
      [&](auto number) { return Send(port, u"x", u"9600,N,8,1", number); },
      {{0, "8002"}, {1, "8002"}, {8, "8002", "no line"}, {9, "8002", "a file"}, {249, "8002"}});
  EXPECT_EQ(ErrorOf([&] { port->SetSettings(u"9600,S,5,1.5"); }), 0);
  EXPECT_EQ(ErrorOf([&] { port->SetOutput(u"x"); }), 8018);
}

/// A port and the files of the program behind it: what it got, and one that keeps it from reading
/// while it is there.
class SerialLine : public testing::Test {
 protected:
  void SetUp() override {
    if (line_ == nullptr) GTEST_SKIP() << "needs ZQ7_SERIAL_LINE: the port and the file behind it";
    const std::string value = line_;
    port_ = value.substr(0, value.find('='));
    received_ = value.substr(value.find('=') + 1);
    asleep_ = received_.string() + ".asleep";
    std::ofstream(received_, std::ios::trunc).flush();
  }

  std::shared_ptr<SerialPort> NewPort(std::chrono::milliseconds limit = 0ms) const {
    return SystemSerialPort({{1, port_}}, limit);
  }
  std::string Received(std::size_t size) const {
    std::string bytes;
    for (int i = 0; i < 300 && bytes.size() < size; ++i) {
      std::this_thread::sleep_for(10ms);
      std::ifstream file(received_, std::ios::binary);
      bytes = {std::istreambuf_iterator<char>(file), {}};
    }
    return bytes;
  }

  const char* line_ = std::getenv("ZQ7_SERIAL_LINE");
  std::string port_;
  std::filesystem::path received_;
  std::filesystem::path asleep_;
};

TEST_F(SerialLine, CarriesEveryByte) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  ASSERT_EQ(Send(NewPort(1s), FromCodePage(bytes) + u"\u4E00"), 0);
  EXPECT_EQ(Received(257), bytes + "?");
  EXPECT_EQ(Send(NewPort(), u"x", u"9600,N,7,1"), 380) << "what a pseudo-terminal cannot do";
}

TEST_F(SerialLine, IsLockedWhileOpen) {
  const auto port = NewPort(1s);
  port->SetPortOpen(true);
  EXPECT_EQ(ErrorOf([&] { port->SetPortOpen(true); }), 8005);
  // Wine opens a port twice.
  const Handle second =
      FileHandle(CreateFileW((LR"(\\.\)" + Wide(FromUtf8(port_))).c_str(), GENERIC_READ, 0, nullptr,
                             OPEN_EXISTING, 0, nullptr));
  if (!second) {
    EXPECT_EQ(Send(NewPort(), u"x"), 8005);
  }
  port->SetPortOpen(false);
  EXPECT_EQ(Send(NewPort(1s), u"x"), 0);
}

TEST_F(SerialLine, GivesUpOnADeviceThatNeverReads) {
  std::ofstream(asleep_).flush();
  std::this_thread::sleep_for(300ms);
  const auto port = NewPort(100ms);
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ(Send(port, Text(100'000, u'x'), u"115200,N,8,1"), 8020);
  EXPECT_LT(std::chrono::steady_clock::now() - begin, 20s);
  port->SetPortOpen(false);
  std::filesystem::remove(asleep_);
}

}  // namespace
}  // namespace ZQ7Standard
