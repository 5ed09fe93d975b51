#include <ZQ7Standard/PeripheralObject.h>
#include <ZQ7Standard/platform/serial_port.h>
#include <asm/termbits.h>
#include <fcntl.h>
#include <stdlib.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <filesystem>
#include <thread>

#include "base/code_page.h"
#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

/// A file that not even root can open for writing.
constexpr const char* kReadOnly = "/sys/kernel/uevent_seqnum";

/// A pseudo-terminal pair: its line is port 1 of the control, the other end a device.
struct SerialLine : testing::Test {
  std::shared_ptr<SerialPort> NewPort(int seconds) const {
    return SystemSerialPort({{1, path}, {8, "/dev/null"}, {9, kReadOnly}},
                            std::chrono::seconds(seconds));
  }
  int Send(TextView code, TextView settings = u"9600,N,8,1", std::int16_t number = 1) const {
    return PeripheralObject().SendCommMsg(port, code, number, settings);
  }
  std::string Received() const {
    std::string bytes(8192, '\0');
    bytes.resize(static_cast<std::size_t>(read(device, bytes.data(), bytes.size())));
    return bytes;
  }
  /// Speed, stop bits, output processing, echo, and the lock.
  std::array<unsigned, 5> State() const {
    termios2 t{};
    unsigned locked = 0;
    ioctl(line, TCGETS2, &t);
    ioctl(line, TIOCGEXCL, &locked);
    return {t.c_ospeed, t.c_cflag & CSTOPB, t.c_oflag & OPOST, t.c_lflag & ECHO, locked};
  }

  const int device = posix_openpt(O_RDWR | O_NOCTTY);
  const std::string path = unlockpt(device) == 0 ? ptsname(device) : "";
  const int line = open(path.c_str(), O_RDWR | O_NOCTTY);
  const std::array<unsigned, 5> found = State();
  std::shared_ptr<SerialPort> port = NewPort(0);
};

// A pseudo-terminal's driver supports only 8 data bits without parity.
TEST_F(SerialLine, RefusesWhatIsNotThereOrCannotBe) {
  ExpectTexts([&](TextView settings) { return Send(u"x", settings); },
              {{"380", {u"", u"9600,N,4,1", u"9600,N,8,1.5", u"9600,N,5,2"}},
               {"380", {u"9600,N,7,1", u"9600,M,8,1"}}});
  ExpectRows<std::int16_t>([&](auto number) { return Send(u"x", u"9600,N,8,1", number); },
                           {{0, "8002"}, {8, "8002", "no line"}});
  const bool is_there = std::filesystem::exists(kReadOnly);  // sysfs may not be mounted
  EXPECT_EQ(Send(u"x", u"9600,N,8,1", 9), is_there ? 70 : 8002);
  EXPECT_EQ(State(), found);
  EXPECT_EQ(ErrorOf([&] { port->SetSettings(u"9600,S,5,1.5"); }), 0);
  EXPECT_EQ(ErrorOf([&] { port->SetOutput(u"x"); }), 8018);
}

TEST_F(SerialLine, CarriesEveryByteAndGetsItsSettingsBack) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  ASSERT_EQ(Send(FromCodePage(bytes) + u"\u4E00", u"14400,N,8,1"), 0);
  EXPECT_EQ(Received(), bytes + "?");
  port->SetSettings(u"19200,N,8,2");
  port->SetPortOpen(true);
  EXPECT_EQ(State(), (std::array<unsigned, 5>{19200, CSTOPB, 0, 0, 1}));
  port.reset();
  EXPECT_EQ(State(), found) << "also of a port that nobody closed";
}

TEST_F(SerialLine, IsLockedWhileOpen) {
  const auto other = NewPort(0);
  other->SetPortOpen(true);
  EXPECT_EQ(ErrorOf([&] { other->SetPortOpen(true); }), 8005);
  EXPECT_EQ(Send(u"x"), 8005);
  other->SetPortOpen(false);
  flock(line, LOCK_EX);
  EXPECT_EQ(Send(u"x"), 8005) << "locked by another program";
  flock(line, LOCK_UN);
  ioctl(line, TIOCEXCL);
  EXPECT_EQ(Send(u"x"), 8005) << "open to one program alone";
}

const Text kMoreThanTheSystemHolds(100000, u'x');

TEST_F(SerialLine, GivesUpOnADeviceThatNeverReads) {
  EXPECT_EQ(Send(kMoreThanTheSystemHolds, u"4000000,N,8,1"), 8020);
  EXPECT_EQ(Send(u"x"), 8005) << "left open";
  port->SetPortOpen(false);
  Received();
  ASSERT_EQ(Send(u"kick"), 0);
  EXPECT_EQ(Received(), "kick") << "but for what the other end had, the text is gone";
}

TEST_F(SerialLine, FailsAtOnceWhenTheDeviceHangsUp) {
  port = NewPort(3600);
  std::jthread hang_up([this] {
    Received();
    close(device);
  });
  EXPECT_EQ(Send(kMoreThanTheSystemHolds), 8020);
}
