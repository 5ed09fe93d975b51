#include "formats/mail_address.h"

#include <algorithm>
#include <optional>

#include "base/ascii.h"
#include "base/fields.h"
#include "base/unicode.h"

namespace ZQ7Standard {
namespace {

constexpr TextView kLocalSigns = u"!#$%&'*+-/=?^_`{|}~.";
constexpr TextView kDomainSigns = u"-.";
constexpr TextView kLiteralSigns = u".:";
constexpr std::size_t kLongestAddress = 254;  // RFC 5321

/// Whether every character is a letter or digit of ASCII, or one of `signs`.
bool IsMadeOf(TextView text, TextView signs) {
  return !text.empty() && std::ranges::all_of(text, [signs](char16_t c) {
    return IsAsciiLetter(c) || IsAsciiDigit(c) || signs.find(c) != TextView::npos;
  });
}

/// Whether a text is the domain of an address: a name, or an address in brackets.
bool IsDomain(TextView text) {
  if (!text.starts_with(u'[')) return IsMadeOf(text, kDomainSigns);
  return text.ends_with(u']') && text.size() > 2 &&
         IsMadeOf(text.substr(1, text.size() - 2), kLiteralSigns);
}

bool IsAddress(TextView text) {
  const std::size_t at = text.find(u'@');
  return at != TextView::npos && text.size() <= kLongestAddress &&
         IsMadeOf(text.substr(0, at), kLocalSigns) && IsDomain(text.substr(at + 1));
}

/// The end of the first entry of a list: the first separator that is not quoted.
std::size_t EntryEnd(TextView list) {
  bool quoted = false;
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (quoted && list[i] == u'\\') {
      ++i;
    } else if (list[i] == u'"') {
      quoted = !quoted;
    } else if (!quoted && (list[i] == u';' || list[i] == u',')) {
      return i;
    }
  }
  return list.size();
}

/// A name without its quotation marks; nullopt if one is open.
std::optional<Text> Unquoted(TextView name) {
  if (!name.starts_with(u'"')) {
    if (name.find(u'"') != TextView::npos) return std::nullopt;
    return Text(name);
  }
  Text plain;
  std::size_t i = 1;
  for (; i < name.size() && name[i] != u'"'; ++i) {
    if (name[i] == u'\\' && i + 1 < name.size()) ++i;
    plain += name[i];
  }
  if (i + 1 != name.size()) return std::nullopt;
  return plain;
}

std::optional<MailAddress> ReadEntry(TextView entry) {
  TextView name;
  TextView address = entry;
  if (entry.ends_with(u'>')) {
    const std::size_t open = entry.rfind(u'<');
    if (open == TextView::npos) return std::nullopt;
    name = TrimBack(entry.substr(0, open));
    address = entry.substr(open + 1, entry.size() - open - 2);
  }
  auto plain = Unquoted(name);
  if (!plain || !IsAddress(address)) return std::nullopt;
  return MailAddress{std::move(*plain), Utf8(address)};
}

}  // namespace

MailAddresses ReadMailAddresses(TextView list) {
  const auto is_control = [](char16_t c) { return c < 0x20 || c == 0x7F; };
  if (std::ranges::any_of(list, is_control)) {
    return {.problem = "a line break or another control character"};
  }
  MailAddresses read;
  while (!list.empty()) {
    const std::size_t end = EntryEnd(list);
    const TextView entry = TrimBack(TrimFront(list.substr(0, end)));
    list.remove_prefix(std::min(end + 1, list.size()));
    if (entry.empty()) continue;
    auto address = ReadEntry(entry);
    if (!address) return {.problem = Quoted(entry) + " is not an address"};
    read.addresses.push_back(std::move(*address));
  }
  return read;
}

bool IsSameMailbox(const std::string& a, const std::string& b) {
  return EqualsIgnoringAsciiCase(FromUtf8(a), FromUtf8(b));
}

}  // namespace ZQ7Standard
