// Asks servers of this machine for the time: suites named Network*.

#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/platform/time_servers.h>
#include <ZQ7Standard/platform/time_zone.h>
#include <gtest/gtest.h>
#include <winsock2.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <thread>

#include "formats/time_packet.h"
#include "platform/windows/winsock.h"
#include "tests/support/row_tests.h"

namespace ZQ7Standard {
namespace {

using namespace std::string_literals;

/// The answer of an honest server whose clock shows 2024-01-15 02:30 UTC.
std::string HonestAnswer(const std::string& question) {
  std::string answer(kTimePacketSize, '\0');
  answer[0] = 0x24;
  answer[1] = 2;
  answer.replace(24, 8, question.substr(40, 8));
  answer.replace(40, 8, "\xE9\x4F\x17\x28\x00\x00\x00\x00"s);
  return answer;
}

std::string Changed(std::string packet, std::size_t index, char byte) {
  packet[index] = byte;
  return packet;
}

/// A server on a port of its own that answers the n-th question (from 0) with what `answers`
/// returns.
class FakeTimeServer {
 public:
  using Answers = std::function<std::vector<std::string>(int n, const std::string& question)>;

  explicit FakeTimeServer(Answers answers) : socket_(socket(AF_INET, SOCK_DGRAM, IPPROTO_UDP)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    int size = sizeof address;
    bind(socket_.Get(), reinterpret_cast<sockaddr*>(&address), size);
    getsockname(socket_.Get(), reinterpret_cast<sockaddr*>(&address), &size);
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this, answers = std::move(answers)] { Run(answers); });
  }
  FakeTimeServer(const FakeTimeServer&) = delete;
  FakeTimeServer& operator=(const FakeTimeServer&) = delete;
  ~FakeTimeServer() {
    ended_ = true;
    thread_.join();
  }

  Text Name() const { return FromUtf8("127.0.0.1:" + std::to_string(port_)); }
  int Questions() const { return questions_; }

 private:
  void Run(const Answers& answers) {
    while (!ended_) {
      WSAPOLLFD ready = {socket_.Get(), POLLRDNORM, 0};
      if (WSAPoll(&ready, 1, 20) <= 0) continue;
      std::string question(100, '\0');
      sockaddr_in from{};
      int size = sizeof from;
      if (recvfrom(socket_.Get(), question.data(), 100, 0, reinterpret_cast<sockaddr*>(&from),
                   &size) <= 0) {
        continue;
      }
      for (const std::string& answer : answers(questions_++, question)) {
        sendto(socket_.Get(), answer.data(), static_cast<int>(answer.size()), 0,
               reinterpret_cast<sockaddr*>(&from), size);
      }
    }
  }

  const WinsockUse winsock_;
  Socket socket_;
  int port_ = 0;
  std::atomic<bool> ended_ = false;
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

// Lies come first: what cannot be the answer is passed over.
TEST(NetworkTime, IsTheServersInTheLocalZone) {
  const FakeTimeServer server([](int, const std::string& question) {
    const std::string honest = HonestAnswer(question);
    return std::vector{std::string(600, 'x'), honest.substr(0, 47), Changed(honest, 0, 0x23),
                       Changed(honest, 24, static_cast<char>(honest[24] + 1)), honest};
  });
  EXPECT_EQ(TimeOf(server.Name()), "2024-01-15 09:30:00");
  EXPECT_EQ(server.Questions(), 1);
}

TEST(NetworkTime, RefusesServersThatDoNotKnow) {
  const FakeTimeServer server([](int, const std::string& question) {
    return std::vector{Changed(HonestAnswer(question), 1, 0)};
  });
  EXPECT_EQ(TimeOf(server.Name()), "error 68");
  EXPECT_EQ(server.Questions(), 1) << "a server that refuses is not asked again";
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
  const FakeTimeServer silent([](int, const std::string&) { return std::vector<std::string>(); });
  EXPECT_EQ(TimeOf(silent.Name()), "error 68");
  EXPECT_EQ(silent.Questions(), 3);
  EXPECT_EQ(TimeOf(u"zq7-no-such-host.invalid:123"), "error 68");
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(25));
  EXPECT_EQ(ErrorOf([] { AddressesOf("zq7-no-such-host.invalid", 1, {}); }), 68) << "no time";
  for (const TextView wrong : {u"", u"a b", u"host:0", u"host:70000", u"[::1", u"http://host/"}) {
    EXPECT_EQ(TimeOf(Text(wrong)), "error 5") << Utf8(wrong);
  }
}

/// The library of the tests that answers for the system's own; null if the system would load its
/// own instead, which under Wine ends the process when it is asked.
HMODULE FakeNetworkLibrary() {
  std::wstring path(1000, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), 1000));
  path.replace(path.rfind(L'\\') + 1, path.size(), L"netapi32.dll");
  const HMODULE library = LoadLibraryW(path.c_str());
  const bool is_ours = library != nullptr && GetProcAddress(library, "QuestionsAsked") != nullptr;
  return is_ours ? library : nullptr;
}

TEST(NetworkTime, IsAskedOfTheSystemFirst) {
  const HMODULE library = FakeNetworkLibrary();
  if (library == nullptr) GTEST_SKIP() << "needs WINEDLLOVERRIDES=netapi32=n";
  auto* const asked = reinterpret_cast<int (*)()>(
      reinterpret_cast<void*>(GetProcAddress(library, "QuestionsAsked")));
  EXPECT_EQ(TimeOf(u"clock"), "2024-01-15 09:30:00");
  EXPECT_EQ(asked(), 1);
  EXPECT_EQ(TimeOf(u"zq7-no-such-host.invalid"), "error 68") << "then by SNTP";
  EXPECT_EQ(asked(), 2);
  EXPECT_EQ(TimeOf(u"127.0.0.1:1"), "error 68");
  EXPECT_EQ(TimeOf(u"[::1]"), "error 68");
  EXPECT_EQ(asked(), 2) << "its protocol knows no ports";
}

}  // namespace
}  // namespace ZQ7Standard
