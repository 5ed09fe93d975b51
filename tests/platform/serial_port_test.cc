#include <ZQ7Standard/PeripheralObject.h>
#include <asm/termbits.h>
#include <fcntl.h>
#include <stdlib.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <numeric>
#include <thread>

#include "tests/support/rows.h"
#include "text/code_page.h"

using namespace ZQ7Standard;
using namespace std::chrono_literals;

/// A pseudo-terminal pair: its line is port 7 of the control, the other end a device.
class SerialLine : public testing::Test {
 protected:
  ~SerialLine() override {
    close(line_);
    close(device_);
  }

  static int NewDevice() {
    const int device = posix_openpt(O_RDWR | O_NOCTTY);
    unlockpt(device);
    return device;
  }
  std::shared_ptr<SerialPort> NewPort(std::chrono::milliseconds limit) const {
    auto port =
        SystemSerialPort({{7, path_}, {8, "/dev/null"}, {9, "/sys/kernel/uevent_seqnum"}}, limit);
    port->SetCommPort(7);
    return port;
  }
  int Send(TextView code, TextView settings = u"9600,N,8,1", std::int16_t port = 7) const {
    return PeripheralObject().SendCommMsg(port_, code, port, settings);
  }
  std::string Received() const {
    std::string bytes(8192, '\0');
    bytes.resize(static_cast<std::size_t>(read(device_, bytes.data(), bytes.size())));
    return bytes;
  }
  std::string LineState() const {
    termios2 line{};
    int locked = 0;
    ioctl(line_, TCGETS2, &line);
    ioctl(line_, TIOCGEXCL, &locked);
    return std::to_string(line.c_ospeed) +
           ((line.c_cflag & CSTOPB) != 0 ? ", 2 stop bits" : ", 1 stop bit") +
           ((line.c_oflag & OPOST) != 0 ? ", cooked" : ", raw") +
           ((line.c_lflag & ECHO) != 0 ? ", echo" : "") + (locked != 0 ? ", locked" : "");
  }

  int device_ = NewDevice();
  std::string path_ = ptsname(device_);
  int line_ = open(path_.c_str(), O_RDWR | O_NOCTTY);
  std::shared_ptr<SerialPort> port_ = NewPort(50ms);
};

constexpr const char* kFound = "38400, 1 stop bit, cooked, echo";

TEST_F(SerialLine, CarriesEveryByteAndGetsItsSettingsBack) {
  std::string bytes(256, '\0');
  std::iota(bytes.begin(), bytes.end(), '\0');
  EXPECT_EQ(Send(FromCodePage(bytes) + u"\u4E00"), 0);
  EXPECT_EQ(Received(), bytes + "?");
  port_->SetSettings(u"19200,N,8,2");
  port_->SetPortOpen(true);
  EXPECT_EQ(LineState(), "19200, 2 stop bits, raw, locked");
  port_.reset();
  EXPECT_EQ(LineState(), kFound) << "also of a port that nobody closed";
}

// clang-format off
// A pseudo-terminal's driver does 8 data bits without parity alone.
TEST_F(SerialLine, RefusesWhatIsNotThereOrCannotBe) {
  ExpectRows<std::int16_t, const char16_t*>([&](auto port, const char16_t* settings) {
    const int error = Send(u"x", settings, port);
    EXPECT_EQ(LineState(), kFound) << error;
    return error;
  }, {{{7, u""}, "380"}, {{7, u"9600,N,4,1"}, "380"}, {{7, u"9600,N,8,1.5"}, "380"},
      {{7, u"9600,N,5,2"}, "380"}, {{7, u"9600,N,7,1"}, "380", "the driver's refusal"},
      {{7, u"9600,M,8,1"}, "380", "the driver's refusal"}, {{7, u"14400,N,8,1"}, "0"},
      {{0, u"9600,N,8,1"}, "8002"}, {{8, u"9600,N,8,1"}, "8002", "no line"},
      {{9, u"9600,N,8,1"}, "70", "nobody may write to it"}});
  port_->SetSettings(u"9600,S,5,1.5");
  EXPECT_EQ(ErrorOf([&] { port_->SetOutput(u"x"); }), 8018);
  EXPECT_EQ(Received(), "x") << "of 14400,N,8,1";
}
// clang-format on

TEST_F(SerialLine, IsLockedWhileOpen) {
  const auto other = NewPort(50ms);
  other->SetPortOpen(true);
  EXPECT_EQ(Send(u"x"), 8005);
  EXPECT_EQ(ErrorOf([&] { other->SetPortOpen(true); }), 8005);
  other->SetPortOpen(false);
  flock(line_, LOCK_EX);
  EXPECT_EQ(Send(u"x"), 8005) << "locked by another program";
  flock(line_, LOCK_UN);
  ioctl(line_, TIOCEXCL);
  EXPECT_EQ(Send(u"x"), 8005) << "open to one program alone";
  ioctl(line_, TIOCNXCL);
  EXPECT_EQ(Send(u"x"), 0);
}

const Text kMoreThanTheSystemHolds(100000, u'x');

TEST_F(SerialLine, GivesUpOnADeviceThatNeverReads) {
  EXPECT_EQ(Send(kMoreThanTheSystemHolds, u"4000000,N,8,1"), 8020);
  EXPECT_TRUE(port_->PortOpen());
  EXPECT_EQ(Send(u"x"), 8005);
  port_->SetPortOpen(false);
  Received();
  EXPECT_EQ(Send(u"kick"), 0);
  EXPECT_EQ(Received(), "kick") << "but for what the other end had, the text is gone";
}

TEST_F(SerialLine, FailsAtOnceWhenTheDeviceHangsUp) {
  port_ = NewPort(1h);
  std::thread device([this] {
    Received();
    close(std::exchange(device_, -1));
  });
  EXPECT_EQ(Send(kMoreThanTheSystemHolds), 8020);
  device.join();
  port_->SetPortOpen(false);
  EXPECT_EQ(Send(u"x"), 8002);
}
