#include "fill/encoding.h"

#include <ZQ7Standard/automation/catalogue.h>

#include <cstddef>

namespace ZQ7Tool {

using namespace ZQ7Standard;

namespace {

/// Writes `text` in UTF-8 to `bytes`; false if it has surrogates. The longest texts of most files
/// are Thai words, which this writes several times as fast as `Utf8`.
bool EncodePlain(TextView text, std::string& bytes) {
  constexpr std::size_t kLongest = 3;
  bytes.resize(text.size() * kLongest);
  char* end = bytes.data();
  for (const char16_t unit : text) {
    const auto low_bits = [unit](int shift) {
      return static_cast<char>(0x80U | ((static_cast<unsigned>(unit) >> shift) & 0x3FU));
    };
    if (unit >= 0x800 && (unit < 0xD800 || unit > 0xDFFF)) {
      *end++ = static_cast<char>(0xE0 | (unit >> 12));
      *end++ = low_bits(6);
      *end++ = low_bits(0);
    } else if (unit < 0x80) {
      *end++ = static_cast<char>(unit);
    } else if (unit < 0x800) {
      *end++ = static_cast<char>(0xC0 | (unit >> 6));
      *end++ = low_bits(0);
    } else {
      return false;
    }
  }
  bytes.resize(static_cast<std::size_t>(end - bytes.data()));
  return true;
}

}  // namespace

std::optional<Encoding> EncodingNamed(std::string_view name) {
  if (Automation::SameName(name, "utf-8")) return Encoding::kUtf8;
  if (Automation::SameName(name, "windows-874")) return Encoding::kWindows874;
  return std::nullopt;
}

std::optional<Text> Decoded(std::string_view bytes, Encoding encoding) {
  if (encoding == Encoding::kWindows874) return FromWindows874(bytes);
  Text text = FromUtf8(bytes);
  // The replacement character is in the bytes, or stands for those that are not UTF-8.
  if (text.find(u'\uFFFD') != Text::npos && Utf8(text) != bytes) return std::nullopt;
  return text;
}

bool Encode(TextView text, Encoding encoding, std::string& bytes) {
  if (encoding == Encoding::kWindows874) {
    const auto encoded = Windows874(text);
    if (encoded) bytes = *encoded;
    return encoded.has_value();
  }
  if (EncodePlain(text, bytes)) return true;
  bytes = Utf8(text);
  return FromUtf8(bytes) == text;  // a surrogate without its partner does not come back
}

}  // namespace ZQ7Tool
