#include "formats/address.h"

#include <algorithm>
#include <array>

#include "base/ascii.h"
#include "base/fields.h"
#include "formats/lines.h"

namespace ZQ7Standard {
namespace {

constexpr std::string_view kHexDigits = "0123456789ABCDEF";
constexpr std::string_view kUnreserved = "-._~";
/// What delimits the parts of an address (RFC 3986), and the "%" of what is encoded already.
constexpr std::string_view kDelimiters = ":/?#[]@!$&'()*+,;=%";
constexpr std::string_view kFileScheme = "file:";

struct SchemeRow {
  std::string_view scheme;
  bool has_host;
};
constexpr std::array<SchemeRow, 4> kSchemes = {
    {{"http://", true}, {"https://", true}, {"mailto:", false}, {kFileScheme, false}}};

bool IsControl(char16_t c) {
  return c < 0x20 || c == 0x7F;
}

bool IsPlain(char16_t c) {
  return c < 0x80 && (IsAsciiLetter(c) || IsAsciiDigit(c) ||
                      kUnreserved.find(static_cast<char>(c)) != std::string_view::npos);
}

bool BeginsWith(std::string_view text, std::string_view scheme) {
  return std::ranges::equal(text.substr(0, scheme.size()), scheme, {},
                            [](char c) { return AsciiLower(static_cast<unsigned char>(c)); });
}

/// The value of a hexadecimal digit; nullopt for any other character.
std::optional<unsigned> DigitValue(char c) {
  const std::size_t value =
      kHexDigits.find(static_cast<char>(AsciiUpper(static_cast<unsigned char>(c))));
  if (value == std::string_view::npos) return std::nullopt;
  return static_cast<unsigned>(value);
}

std::string RecipientsOf(TextView to) {
  std::string recipients;
  Text separated(to);
  std::ranges::replace(separated, u';', u',');
  for (TextView rest = separated; !rest.empty();) {
    const TextView recipient = TrimBack(TrimFront(TakeField(rest, u',')));
    if (recipient.empty()) continue;
    recipients.append(recipients.empty() ? "" : ",").append(PercentEncoded(recipient, "@"));
  }
  return recipients;
}

}  // namespace

std::string PercentEncoded(TextView text, std::string_view kept) {
  std::string encoded;
  for (const char c : Utf8(text)) {
    const auto byte = static_cast<unsigned char>(c);
    if (IsPlain(byte) || kept.find(c) != std::string_view::npos) {
      encoded += c;
    } else {
      encoded.append({'%', kHexDigits[byte / 16U], kHexDigits[byte % 16U]});
    }
  }
  return encoded;
}

std::string PercentDecoded(std::string_view text) {
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto high = i + 2 < text.size() ? DigitValue(text[i + 1]) : std::nullopt;
    const auto low = i + 2 < text.size() ? DigitValue(text[i + 2]) : std::nullopt;
    if (text[i] == '%' && high && low) {
      bytes += static_cast<char>(*high * 16 + *low);
      i += 2;
    } else {
      bytes += text[i];
    }
  }
  return bytes;
}

std::optional<std::string> AddressToOpen(TextView typed) {
  const TextView trimmed = TrimBack(TrimFront(typed));
  if (std::ranges::any_of(trimmed, IsControl)) return std::nullopt;
  const std::string address = PercentEncoded(trimmed, kDelimiters);
  const auto row = std::ranges::find_if(
      kSchemes, [&](const SchemeRow& known) { return BeginsWith(address, known.scheme); });
  if (row == kSchemes.end()) return std::nullopt;
  const std::string_view rest = std::string_view(address).substr(row->scheme.size());
  const bool no_host = rest.substr(0, rest.find_first_of("/?#:@")).empty();
  if (rest.empty() || (row->has_host && no_host)) return std::nullopt;
  return std::string(row->scheme).append(rest);
}

std::optional<std::string> FileOfAddress(std::string_view address) {
  if (!BeginsWith(address, kFileScheme)) return std::nullopt;
  address.remove_prefix(kFileScheme.size());
  for (const std::string_view host : {"//localhost/", "///"}) {
    if (address.starts_with(host)) address.remove_prefix(host.size() - 1);
  }
  const bool is_path = address.starts_with('/') && !address.starts_with("//");
  std::string path = PercentDecoded(address.substr(0, address.find_first_of("?#")));
  if (!is_path || path.find('\0') != std::string::npos) return std::nullopt;
  return path;
}

std::string MailtoAddress(TextView to, TextView subject, TextView body) {
  std::string address = "mailto:" + RecipientsOf(to);
  char separator = '?';
  const auto add = [&](std::string_view field, const Text& value) {
    if (value.empty()) return;
    address.append({separator}).append(field).append("=").append(PercentEncoded(value));
    separator = '&';
  };
  add("subject", Text(subject));
  add("body", WithLineEnds(body));
  return address;
}

}  // namespace ZQ7Standard
