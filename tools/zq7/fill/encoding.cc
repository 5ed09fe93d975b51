#include "fill/encoding.h"

#include <ZQ7Standard/automation/catalogue.h>

namespace ZQ7Tool {

using namespace ZQ7Standard;

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
  bytes = Utf8(text);
  return IsWellFormed(text);
}

}  // namespace ZQ7Tool
