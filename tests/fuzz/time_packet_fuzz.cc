// Any packet is an answer with a time or a problem, or none; and any name of a server is one that
// can be written again.

#include "formats/server_name.h"
#include "formats/time_packet.h"
#include "tests/fuzz/check.h"

using namespace ZQ7Standard;

static void CheckName(const Text& text) {
  const auto server = ReadServerName(text);
  if (!server) return;
  Check(server->host.find_first_of(std::string_view("\r\n \0/@", 6)) == std::string::npos);
  const std::string port = server->port ? ":" + std::to_string(*server->port) : "";
  const bool colons = server->host.find(':') != std::string::npos;
  const std::string written = (colons ? "[" + server->host + "]" : server->host) + port;
  const auto again = ReadServerName(FromUtf8(written));
  Check(again && again->host == server->host && again->port == server->port);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  CheckName(FuzzText(data, size));
  std::string packet = bytes;
  packet.resize(std::max(size, kTimePacketSize));
  std::uint64_t origin = 0;
  for (std::size_t i = 24; i < 32; ++i) {
    origin = origin << 8U | static_cast<unsigned char>(packet[i]);
  }
  Check(!ReadTimeAnswer(packet, origin + 1));
  const auto answer = ReadTimeAnswer(packet, origin);
  if (size < kTimePacketSize) Check(!ReadTimeAnswer(bytes, origin));
  if (!answer || !answer->problem.empty()) return 0;
  const OleDate utc(answer->utc_days);
  Check(utc.Year() >= 1968 && utc.Year() <= 2104);
  return 0;
}
