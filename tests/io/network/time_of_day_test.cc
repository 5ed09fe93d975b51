// Asks servers of this machine for the time: suites named Network*.

#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/platform/time_servers.h>
#include <ZQ7Standard/platform/time_zone.h>
#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <thread>

#include "formats/time_packet.h"
#include "platform/linux/descriptor.h"
#include "platform/linux/name_lookup.h"
#include "tests/support/child_server.h"
#include "tests/support/row_tests.h"
#include "tests/support/temp_folder.h"

namespace ZQ7Standard {
namespace {

/// A socket on a loopback port of its own, and the name of the server there.
struct Port {
  Port() : socket(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    bind(socket.Number(), reinterpret_cast<sockaddr*>(&address), size);
    getsockname(socket.Number(), reinterpret_cast<sockaddr*>(&address), &size);
    number = std::to_string(ntohs(address.sin_port));
  }

  Text Server() const { return FromUtf8("127.0.0.1:" + number); }

  Descriptor socket;
  std::string number;
};

/// The answer of an honest server whose clock shows 2024-01-15 02:30 UTC.
std::string HonestAnswer(const std::string& question) {
  std::string answer(kTimePacketSize, '\0');
  answer[0] = 0x24;
  answer[1] = 2;
  answer.replace(24, 8, question.substr(40, 8));
  answer.replace(40, 8, std::string("\xE9\x4F\x17\x28\x00\x00\x00\x00", 8));
  return answer;
}

/// A server that answers the n-th question (from 0) with what `answers` returns.
class FakeTimeServer {
 public:
  using Answers = std::function<std::vector<std::string>(int n, const std::string& question)>;
  explicit FakeTimeServer(Answers answers) : thread_([this, answers] { Run(answers); }) {}
  ~FakeTimeServer() {
    shutdown(port_.socket.Number(), SHUT_RD);
    thread_.join();
  }

  Text Name() const { return port_.Server(); }
  int Questions() const { return questions_; }

 private:
  void Run(const Answers& answers) {
    std::string question(100, '\0');
    sockaddr_in from{};
    for (;;) {
      socklen_t size = sizeof from;
      const ssize_t count = recvfrom(port_.socket.Number(), question.data(), question.size(), 0,
                                     reinterpret_cast<sockaddr*>(&from), &size);
      if (count <= 0) return;
      for (const std::string& answer : answers(questions_++, question)) {
        sendto(port_.socket.Number(), answer.data(), answer.size(), 0,
               reinterpret_cast<sockaddr*>(&from), size);
      }
    }
  }

  Port port_;
  std::atomic<int> questions_ = 0;
  std::thread thread_;
};

/// A zone seven hours ahead of UTC.
struct BangkokZone final : TimeZone {
  OleDate ToUtc(OleDate local) override { return OleDate(local.Days() - 7 / 24.0); }
  OleDate ToLocal(OleDate utc) override { return OleDate(utc.Days() + 7 / 24.0); }
};

std::string TimeOf(const Text& server) {
  const StandardObject standard({.time_zone = std::make_shared<BangkokZone>()});
  return ResultOf([&] { return standard.getRemoteTOD(server); });
}

std::string Changed(std::string packet, std::size_t index, char byte) {
  packet[index] = byte;
  return packet;
}

TEST(NetworkTime, IsTheServersInTheLocalZone) {
  const FakeTimeServer server(
      [](int, const std::string& question) { return std::vector{HonestAnswer(question)}; });
  EXPECT_EQ(TimeOf(server.Name()), "2024-01-15 09:30:00");
}

// Lies come first: what cannot be the answer is passed over.
TEST(NetworkTime, PassesOverForgedAnswers) {
  const FakeTimeServer server([](int, const std::string& question) {
    const std::string honest = HonestAnswer(question);
    return std::vector{std::string(), honest.substr(0, 47), Changed(honest, 0, 0x23),
                       Changed(honest, 24, static_cast<char>(honest[24] + 1)), honest};
  });
  EXPECT_EQ(TimeOf(server.Name()), "2024-01-15 09:30:00");
  EXPECT_EQ(server.Questions(), 1);
}

TEST(NetworkTime, RefusesServersThatDoNotKnow) {
  for (const auto& [index, byte] :
       std::vector<std::pair<std::size_t, char>>{{0, '\xE4'}, {1, 0}, {1, 16}}) {
    const FakeTimeServer server([index = index, byte = byte](int, const std::string& question) {
      return std::vector{Changed(HonestAnswer(question), index, byte)};
    });
    EXPECT_EQ(TimeOf(server.Name()), "error 68");
    EXPECT_EQ(server.Questions(), 1) << "a server that refuses is not asked again";
  }
}

// The first question gets no answer; the second one that of the first, and its own.
TEST(NetworkTime, AsksAgain) {
  std::string first;
  const FakeTimeServer server([&first](int n, const std::string& question) {
    if (n == 0) first = Changed(HonestAnswer(question), 40, '\xEA');
    return n == 0 ? std::vector<std::string>() : std::vector{first, HonestAnswer(question)};
  });
  EXPECT_EQ(TimeOf(server.Name()), "2024-01-15 09:30:00");
  EXPECT_EQ(server.Questions(), 2);
}

TEST(NetworkTime, DoesNotWaitForEver) {
  const auto begin = std::chrono::steady_clock::now();
  const FakeTimeServer server([](int, const std::string&) { return std::vector<std::string>(); });
  EXPECT_EQ(TimeOf(server.Name()), "error 68");
  EXPECT_EQ(server.Questions(), 3);
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));
  EXPECT_EQ(TimeOf(u"zq7-no-such-host.invalid"), "error 68");
  for (int i = 0; i < 3; ++i) {  // the name service has no time at all
    const auto look_up = [] { AddressesOf("zq7-no-such-host.invalid", 1, {}); };
    EXPECT_EQ(ErrorOf(look_up), 68);
  }
  for (const TextView wrong : {u"", u"a b", u"host:0", u"host:70000", u"[::1", u"http://host/"}) {
    EXPECT_EQ(TimeOf(Text(wrong)), "error 5") << Utf8(wrong);
  }
}

TEST(NetworkTime, IsThatOfARealServer) {
  const TempFolder folder;
  const std::string port = Port().number;
  const ChildServer server({ZQ7_SOURCE_DIR "/tests/support/time_server", folder.Native(), port});
  ASSERT_EQ(server.FirstLine(), "started");
  const StandardObject standard;
  const Text name = FromUtf8("localhost:" + port);
  OleDate shown;
  const auto ask = [&] { shown = standard.getRemoteTOD(name); };
  for (int i = 0; i < 200 && ErrorOf(ask) != 0; ++i) {  // until it listens
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
  }
  const auto utc = std::chrono::system_clock::now().time_since_epoch();
  const double days = 25569 + std::chrono::duration<double>(utc).count() / 86400;
  EXPECT_NEAR(shown.Days(), SystemTimeZone()->ToLocal(OleDate(days)).Days(), 10 / 86400.0);
}

}  // namespace
}  // namespace ZQ7Standard
