#include "formats/time_packet.h"

namespace ZQ7Standard {
namespace {

constexpr unsigned kVersion = 4;
constexpr unsigned kClient = 3;
constexpr unsigned kServer = 4;
constexpr unsigned kNotSynchronized = 3;  // of the leap indicator
constexpr unsigned kMostStratum = 15;

// Where the fields begin.
constexpr std::size_t kStratum = 1;
constexpr std::size_t kReference = 12;
constexpr std::size_t kOrigin = 24;
constexpr std::size_t kTransmit = 40;

constexpr double kSecondsPerDay = 86400;
/// 1900-01-01 as a day count.
constexpr double kFirstDay = 2;

unsigned ByteAt(std::string_view packet, std::size_t index) {
  return static_cast<unsigned char>(packet[index]);
}

std::uint64_t NumberAt(std::string_view packet, std::size_t index) {
  std::uint64_t number = 0;
  for (std::size_t i = 0; i < 8; ++i) number = number << 8U | ByteAt(packet, index + i);
  return number;
}

/// The moment of a timestamp: seconds since 1900 and their fraction in 32 bits each. The seconds
/// begin again at 0 in February 2036; smaller halves belong to that era.
double MomentOf(std::uint64_t timestamp) {
  const auto era = (timestamp >> 63U) == 0 ? 0x1p32 : 0.0;
  return kFirstDay + (era + static_cast<double>(timestamp) * 0x1p-32) / kSecondsPerDay;
}

/// The reason that a server without a stratum gives, four letters; "?" for other bytes.
std::string ReasonOf(std::string_view packet) {
  std::string reason;
  for (const char c : packet.substr(kReference, 4)) {
    if (c != '\0') reason += c >= ' ' && c <= '~' ? c : '?';
  }
  return reason;
}

std::string ProblemOf(std::string_view packet) {
  const unsigned stratum = ByteAt(packet, kStratum);
  if (stratum == 0) return "the server refuses: " + ReasonOf(packet);
  const bool knows = stratum <= kMostStratum && ByteAt(packet, 0) >> 6U != kNotSynchronized &&
                     NumberAt(packet, kTransmit) != 0;
  return knows ? "" : "the server does not know the time";
}

}  // namespace

std::string TimeQuestion(std::uint64_t origin) {
  std::string packet(kTimePacketSize, '\0');
  packet[0] = static_cast<char>(kVersion << 3U | kClient);
  for (std::size_t i = 0; i < 8; ++i) {
    packet[kTransmit + i] = static_cast<char>(origin >> (56 - 8 * i) & 0xFFU);
  }
  return packet;
}

std::optional<TimeAnswer> ReadTimeAnswer(std::string_view packet, std::uint64_t origin) {
  const bool answers = packet.size() >= kTimePacketSize && (ByteAt(packet, 0) & 7U) == kServer &&
                       NumberAt(packet, kOrigin) == origin;
  if (!answers) return std::nullopt;
  return TimeAnswer{ProblemOf(packet), MomentOf(NumberAt(packet, kTransmit))};
}

}  // namespace ZQ7Standard
