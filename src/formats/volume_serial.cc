#include "formats/volume_serial.h"

#include <cstdint>
#include <string>

#include "base/ascii.h"

namespace ZQ7Standard {
namespace {

constexpr TextView kDigits = u"0123456789ABCDEF";
constexpr std::size_t kWord = 8;  // digits
constexpr std::size_t kNtfs = 2 * kWord;

/// The values of the hexadecimal digits of a text, without what is between them.
std::string DigitValues(std::string_view text) {
  std::string values;
  for (const char c : text) {
    const std::size_t value = kDigits.find(AsciiUpper(static_cast<unsigned char>(c)));
    if (value != TextView::npos) values += static_cast<char>(value);
  }
  return values;
}

std::uint32_t Folded(std::string_view values) {
  std::uint32_t folded = 0;
  for (std::size_t start = 0; start < values.size(); start += kWord) {
    std::uint32_t word = 0;
    for (const char value : values.substr(start, kWord)) {
      word = word << 4U | static_cast<std::uint32_t>(value);
    }
    folded ^= word;
  }
  return folded;
}

}  // namespace

Text VolumeSerial(std::string_view identifier) {
  const std::string values = DigitValues(identifier);
  if (values.empty()) return {};
  const bool ntfs = values.size() == kNtfs && identifier.size() == kNtfs;
  const std::uint32_t serial = Folded(std::string_view(values).substr(ntfs ? kWord : 0));
  Text text;
  for (unsigned shift = 32; shift > 0; shift -= 4) text += kDigits[serial >> (shift - 4) & 0xFU];
  return text;
}

}  // namespace ZQ7Standard
