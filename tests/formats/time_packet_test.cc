#include "formats/time_packet.h"

#include "tests/support/row_tests.h"

namespace ZQ7Standard {
namespace {

constexpr std::uint64_t kOrigin = 0x0123456789ABCDEF;

/// An answer with that time in seconds since 1900.
std::string Answer(std::uint32_t seconds) {
  std::string packet(kTimePacketSize, '\0');
  packet[0] = 0x24;
  packet[1] = 1;
  packet.replace(24, 8, TimeQuestion(kOrigin).substr(40));
  for (std::size_t i = 0; i < 4; ++i) {
    packet[40 + i] = static_cast<char>(seconds >> (24 - 8 * i) & 0xFFU);
  }
  return packet;
}

TEST(TimePacket, TellsTimesOfTwoEras) {
  for (const auto& [seconds, date] :
       std::vector<std::pair<std::uint32_t, const char*>>{{0x80000000, "1968-01-20 03:14:08"},
                                                          {3914274600, "2024-01-15 02:30:00"},
                                                          {0xFFFFFFFF, "2036-02-07 06:28:15"},
                                                          {1, "2036-02-07 06:28:17"},
                                                          {0x7FFFFFFF, "2104-02-26 09:42:23"}}) {
    const auto answer = ReadTimeAnswer(Answer(seconds), kOrigin);
    ASSERT_TRUE(answer && answer->problem.empty());
    EXPECT_EQ(IsoText(OleDate(answer->utc_days)), date);
  }
  std::string half = Answer(3914274600);
  half[44] = '\x80';
  EXPECT_NEAR(ReadTimeAnswer(half, kOrigin)->utc_days -
                  ReadTimeAnswer(Answer(3914274600), kOrigin)->utc_days,
              0.5 / 86400, 1e-10);
}

TEST(TimePacket, ToldByNobodyElse) {
  std::string packet = Answer(3914274600);
  EXPECT_FALSE(ReadTimeAnswer(packet, kOrigin + 1));
  EXPECT_FALSE(ReadTimeAnswer(packet.substr(0, 47), kOrigin));
  EXPECT_TRUE(ReadTimeAnswer(packet + "extension", kOrigin));
  packet[0] = 0x23;
  EXPECT_FALSE(ReadTimeAnswer(packet, kOrigin)) << "a client";
  EXPECT_EQ(ReadTimeAnswer(Answer(0), kOrigin)->problem, "the server does not know the time");
  packet = Answer(1).replace(1, 1, 1, '\0').replace(12, 4, "RA\nE");
  EXPECT_EQ(ReadTimeAnswer(packet, kOrigin)->problem, "the server refuses: RA?E");
}

}  // namespace
}  // namespace ZQ7Standard
