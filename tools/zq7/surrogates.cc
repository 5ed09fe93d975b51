#include "surrogates.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace ZQ7Tool {
namespace {

using ZQ7Standard::Text;
using ZQ7Standard::TextView;

constexpr char16_t kFirstHigh = 0xD800;
constexpr char16_t kFirstLow = 0xDC00;
constexpr char16_t kPastLow = 0xE000;
constexpr char16_t kStandInHigh = 0xDBFE;  // of U+10F800, and 0xDBFF of U+10FC00

// In UTF-8 a stand-in is F4 8F, 0xA0 to 0xBF and one byte more.
constexpr std::string_view kStandInLead = "\xF4\x8F";
constexpr std::size_t kStandInSize = 4;
constexpr std::size_t kEscapeSize = 6;  // "\uD800"

bool IsSurrogate(char16_t c) {
  return c >= kFirstHigh && c < kPastLow;
}
bool IsHigh(char16_t c) {
  return c >= kFirstHigh && c < kFirstLow;
}
bool IsLow(char16_t c) {
  return c >= kFirstLow && c < kPastLow;
}

/// Whether two code units are one character that is no stand-in.
bool IsPlainPair(char16_t high, char16_t low) {
  return IsHigh(high) && high < kStandInHigh && IsLow(low);
}

/// The two code units of the stand-in of a surrogate.
Text StandIn(char16_t surrogate) {
  const unsigned index = static_cast<unsigned>(surrogate) - kFirstHigh;
  return {static_cast<char16_t>(kStandInHigh + (index >> 10)),
          static_cast<char16_t>(kFirstLow + (index & 0x3FF))};
}

std::string Escape(char16_t c) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string escape = "\\u";
  for (const int shift : {12, 8, 4, 0}) escape += kDigits[(c >> shift) & 0xF];
  return escape;
}

std::string Escapes(TextView units) {
  std::string escapes;
  for (const char16_t unit : units) escapes += Escape(unit);
  return escapes;
}

/// The code unit of the escape "\uXXXX" at the front of `json`; nothing for none.
std::optional<char16_t> EscapedUnit(std::string_view json) {
  if (json.size() < kEscapeSize || !json.starts_with("\\u")) return std::nullopt;
  std::uint16_t unit = 0;
  const char* const end = json.data() + kEscapeSize;
  const auto read = std::from_chars(json.data() + 2, end, unit, 16);
  return read.ptr == end ? std::optional<char16_t>(unit) : std::nullopt;
}

bool IsRawStandIn(std::string_view json) {
  return json.starts_with(kStandInLead) && json.size() >= kStandInSize &&
         (json[2] & 0xE0) == 0xA0 && (json[3] & 0xC0) == 0x80;
}

/// The surrogate that the raw stand-in at the front of `json` stands for.
char16_t StoodFor(std::string_view json) {
  const auto bits = [&](std::size_t i) { return static_cast<unsigned>(json[i]) & 0x3FU; };
  return static_cast<char16_t>(kFirstHigh + (((bits(2) << 6) | bits(3)) & 0x7FF));
}

/// Takes what may be a stand-in or a surrogate off the front of `json`, and one
/// character otherwise; appends it to `result` with stand-ins.
void TakeFront(std::string_view& json, std::string& result) {
  const auto take = [&](std::size_t size) {
    const std::string_view taken = json.substr(0, size);
    json.remove_prefix(taken.size());
    return taken;
  };
  if (IsRawStandIn(json)) {
    const Text units = ZQ7Standard::FromUtf8(take(kStandInSize));
    result += Escapes(WithStandIns(units));
    return;
  }
  const auto unit = EscapedUnit(json);
  if (!unit || !IsSurrogate(*unit)) {
    // A backslash protects the character behind it, which may be another.
    result += take(json.front() == '\\' ? 2 : 1);
    return;
  }
  take(kEscapeSize);
  const auto next = EscapedUnit(json);
  if (!next || !IsPlainPair(*unit, *next)) {
    result += Escapes(StandIn(*unit));
    return;
  }
  take(kEscapeSize);
  result += Escape(*unit) + Escape(*next);
}

}  // namespace

Text WithStandIns(TextView text) {
  Text result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (i + 1 < text.size() && IsPlainPair(text[i], text[i + 1])) {
      result += text.substr(i, 2);
      ++i;
    } else if (IsSurrogate(text[i])) {
      result += StandIn(text[i]);
    } else {
      result += text[i];
    }
  }
  return result;
}

Text WithoutStandIns(TextView text) {
  Text result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool stand_in = text[i] >= kStandInHigh && IsHigh(text[i]) && i + 1 < text.size();
    if (stand_in) {
      const int index = ((text[i] - kStandInHigh) << 10) | (text[i + 1] - kFirstLow);
      result += static_cast<char16_t>(kFirstHigh + index);
      ++i;
    } else {
      result += text[i];
    }
  }
  return result;
}

std::string JsonWithStandIns(std::string_view json) {
  std::string result;
  result.reserve(json.size());
  while (!json.empty()) {
    const std::size_t plain = std::min(json.find_first_of("\\\xF4"), json.size());
    result += json.substr(0, plain);
    json.remove_prefix(plain);
    if (!json.empty()) TakeFront(json, result);
  }
  return result;
}

std::string JsonWithoutStandIns(std::string json) {
  std::size_t found = json.find(kStandInLead);
  if (found == std::string::npos) return json;
  std::string result;
  std::string_view rest = json;
  for (; found != std::string_view::npos; found = rest.find(kStandInLead)) {
    result += rest.substr(0, found);
    rest.remove_prefix(found);
    const bool stand_in = IsRawStandIn(rest);
    result += stand_in ? Escape(StoodFor(rest)) : std::string(rest.substr(0, kStandInSize));
    rest.remove_prefix(kStandInSize);
  }
  return result += rest;
}

}  // namespace ZQ7Tool
