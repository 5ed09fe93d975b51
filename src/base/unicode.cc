#include "base/unicode.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace ZQ7Standard {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

/// Thai vowels, tone marks and signs that stand above or below a letter.
constexpr bool IsThaiMark(char16_t c) {
  return c == 0x0E31 || (c >= 0x0E34 && c <= 0x0E3A) || (c >= 0x0E47 && c <= 0x0E4E);
}

/// Characters that a log or terminal does not show as they are.
constexpr bool IsControl(char16_t c) {
  return c < 0x20 || (c >= 0x7F && c <= 0x9F) || c == 0x2028 || c == 0x2029;
}

/// "\n", or "\u001b" for a character without a letter escape.
Text Escaped(char16_t control) {
  constexpr std::array<std::pair<char16_t, TextView>, 3> kLetters = {
      {{u'\n', u"\\n"}, {u'\r', u"\\r"}, {u'\t', u"\\t"}}};
  for (const auto& [c, escape] : kLetters) {
    if (c == control) return Text(escape);
  }
  Text escape = u"\\u";
  for (const int shift : {12, 8, 4, 0}) escape += u"0123456789abcdef"[(control >> shift) & 0xF];
  return escape;
}

/// How many bytes `text` takes at most: a pair of surrogates is counted as two characters.
std::size_t MostBytes(TextView text) {
  std::size_t bytes = text.size();
  for (const char16_t c : text) {
    bytes += static_cast<std::size_t>(c >= 0x80) + static_cast<std::size_t>(c >= 0x800);
  }
  return bytes;
}

/// Writes a character and returns the end of its bytes.
char* WriteUtf8(char* bytes, char32_t c) {
  const auto tail = [c](int shift) { return static_cast<char>(0x80 | ((c >> shift) & 0x3F)); };
  if (c < 0x80) {
    *bytes++ = static_cast<char>(c);
  } else if (c < 0x800) {
    *bytes++ = static_cast<char>(0xC0 | (c >> 6));
    *bytes++ = tail(0);
  } else if (c < 0x10000) {
    *bytes++ = static_cast<char>(0xE0 | (c >> 12));
    *bytes++ = tail(6);
    *bytes++ = tail(0);
  } else {
    *bytes++ = static_cast<char>(0xF0 | (c >> 18));
    *bytes++ = tail(12);
    *bytes++ = tail(6);
    *bytes++ = tail(0);
  }
  return bytes;
}

void AppendUtf16(Text& text, char32_t c) {
  if (c < 0x10000) {
    text.push_back(static_cast<char16_t>(c));
  } else {
    text.push_back(static_cast<char16_t>(0xD7C0 + (c >> 10)));
    text.push_back(static_cast<char16_t>(0xDC00 + (c & 0x3FF)));
  }
}

/// A lead byte of UTF-8: its bits, the length of the sequence, and the smallest character that
/// needs that length.
struct Lead {
  unsigned char mask;
  unsigned char bits;
  std::size_t length;
  char32_t smallest;
};

constexpr std::array<Lead, 4> kLeads = {{
    {0x80, 0x00, 1, 0},
    {0xE0, 0xC0, 2, 0x80},
    {0xF0, 0xE0, 3, 0x800},
    {0xF8, 0xF0, 4, 0x10000},
}};

/// Decodes the sequence at the front of `bytes` and stores its length; U+FFFD and length 1 if it is
/// malformed.
char32_t DecodeFront(std::string_view bytes, std::size_t& length) {
  length = 1;
  const auto first = static_cast<unsigned char>(bytes.front());
  for (const Lead& lead : kLeads) {
    if ((first & lead.mask) != lead.bits) continue;
    if (bytes.size() < lead.length) return kReplacement;
    char32_t c = first & static_cast<unsigned char>(~lead.mask);
    for (std::size_t i = 1; i < lead.length; ++i) {
      const auto tail = static_cast<unsigned char>(bytes[i]);
      if ((tail & 0xC0) != 0x80) return kReplacement;
      c = (c << 6) | (tail & 0x3FU);
    }
    const bool surrogate = IsHighSurrogate(c) || IsLowSurrogate(c);
    if (c < lead.smallest || c > 0x10FFFF || surrogate) return kReplacement;
    length = lead.length;
    return c;
  }
  return kReplacement;
}

}  // namespace

std::string Utf8(TextView text) {
  std::string bytes(MostBytes(text), '\0');
  char* end = bytes.data();
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    if (IsHighSurrogate(c) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
      c = 0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00U);
    } else if (IsHighSurrogate(c) || IsLowSurrogate(c)) {
      c = kReplacement;
    }
    end = WriteUtf8(end, c);
  }
  bytes.resize(static_cast<std::size_t>(end - bytes.data()));
  return bytes;
}

Text FromUtf8(std::string_view bytes) {
  Text text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    std::size_t length = 0;
    AppendUtf16(text, DecodeFront(bytes, length));
    bytes.remove_prefix(length);
  }
  return text;
}

int TerminalWidth(TextView text) {
  return static_cast<int>(text.size()) - static_cast<int>(std::ranges::count_if(text, IsThaiMark));
}

std::string OnOneLine(TextView text) {
  Text line;
  for (const char16_t c : text) {
    if (IsControl(c)) {
      line.append(Escaped(c));
    } else {
      line.push_back(c);
    }
  }
  return Utf8(line);
}

std::string Quoted(TextView text) {
  constexpr std::size_t kMostUnits = 100;
  const bool splits_pair = text.size() > kMostUnits && IsHighSurrogate(text[kMostUnits - 1]);
  Text quoted = u"\"";
  for (const char16_t c : text.substr(0, kMostUnits - (splits_pair ? 1 : 0))) {
    if (c == u'"') quoted.push_back(u'\\');
    quoted.push_back(c);
  }
  if (text.size() > kMostUnits) quoted.push_back(u'…');
  quoted.push_back(u'"');
  return OnOneLine(quoted);
}

}  // namespace ZQ7Standard
