#include "formats/server_name.h"

#include <algorithm>
#include <charconv>

#include "base/ascii.h"

namespace ZQ7Standard {
namespace {

constexpr std::size_t kLongestHost = 253;  // bytes of a name in the name service
/// What would end a name in an address, or be read as something else by a resolver.
constexpr std::string_view kForbidden = "\"#%',/;<>?@[\\]^`{|}";

bool IsHost(std::string_view host) {
  return !host.empty() && host.size() <= kLongestHost && std::ranges::all_of(host, [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte > ' ' && byte != 0x7F && kForbidden.find(c) == std::string_view::npos;
  });
}

/// The number that all of `digits` write; nullopt if it is not from `least` to `most`.
std::optional<int> NumberFrom(int least, int most, std::string_view digits) {
  int number = 0;
  const char* const end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, number);
  if (error != std::errc() || stop != end || number < least || number > most) return std::nullopt;
  return number;
}

std::optional<ServerName> Checked(std::string_view host, std::optional<std::string_view> port) {
  if (!IsHost(host)) return std::nullopt;
  ServerName server = {std::string(host)};
  if (port) {
    const auto number = NumberFrom(1, 65535, *port);
    if (!number) return std::nullopt;
    server.port = static_cast<std::uint16_t>(*number);
  }
  return server;
}

std::optional<ServerName> InBrackets(std::string_view text) {
  const std::size_t end = text.find(']');
  const std::string_view host = text.substr(1, end == std::string_view::npos ? end : end - 1);
  if (end == std::string_view::npos || host.find(':') == std::string_view::npos) {
    return std::nullopt;
  }
  const std::string_view rest = text.substr(end + 1);
  if (rest.empty()) return Checked(host, std::nullopt);
  if (!rest.starts_with(':')) return std::nullopt;
  return Checked(host, rest.substr(1));
}

}  // namespace

std::optional<ServerName> ReadServerName(TextView text) {
  const std::string bytes = Utf8(text);
  const std::string_view whole = bytes;
  if (whole.starts_with('[')) return InBrackets(whole);
  const auto colons = std::ranges::count(whole, ':');
  if (colons != 1) return Checked(whole, std::nullopt);
  const std::size_t colon = whole.find(':');
  return Checked(whole.substr(0, colon), whole.substr(colon + 1));
}

bool IsThisMachine(std::string_view host) {
  if (EqualsIgnoringAsciiCase(FromUtf8(host), u"localhost") || host == "::1") return true;
  if (!host.starts_with("127.") || std::ranges::count(host, '.') != 3) return false;
  for (int dots = 3; dots >= 0; --dots) {
    const std::string_view part = host.substr(0, host.find('.'));
    if (!NumberFrom(0, 255, part)) return false;
    if (dots > 0) host.remove_prefix(part.size() + 1);
  }
  return true;
}

}  // namespace ZQ7Standard
