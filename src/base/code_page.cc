#include "base/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace ZQ7Standard {
namespace {

/// The bytes from `first` to `last` stand for the characters from `character`.
struct PageRange {
  std::uint8_t first;
  std::uint8_t last;
  char16_t character;
};

// A byte outside these ranges is the character with the same number.
constexpr std::array<PageRange, 10> kRanges = {{
    {0x80, 0x80, 0x20AC},  // euro sign
    {0x85, 0x85, 0x2026},  // ellipsis
    {0x91, 0x92, 0x2018},  // single quotation marks
    {0x93, 0x94, 0x201C},  // double quotation marks
    {0x95, 0x95, 0x2022},  // bullet
    {0x96, 0x97, 0x2013},  // dashes
    {0xA1, 0xDA, 0x0E01},  // Thai letters and vowels
    {0xDB, 0xDE, 0xF8C1},  // open in Windows-874
    {0xDF, 0xFB, 0x0E3F},  // baht sign, vowels, tone marks, digits
    {0xFC, 0xFF, 0xF8C5},  // open in Windows-874
}};

constexpr auto kCharacters = [] {
  std::array<char16_t, 0x100> characters{};
  for (std::size_t byte = 0; byte < characters.size(); ++byte) {
    characters[byte] = static_cast<char16_t>(byte);
  }
  for (const auto& [first, last, character] : kRanges) {
    for (std::size_t byte = first; byte <= last; ++byte) {
      characters[byte] = static_cast<char16_t>(character + byte - first);
    }
  }
  return characters;
}();

constexpr auto kBytes = [] {
  std::array<char, 0x10000> bytes{};
  bytes.fill('?');
  for (std::size_t byte = 0; byte < kCharacters.size(); ++byte) {
    bytes[kCharacters[byte]] = static_cast<char>(byte);
  }
  return bytes;
}();

// Nearly all text is ASCII and Thai, whose bytes can be calculated. Fixed-size blocks of it are
// converted by loops without branches, which compilers vectorize; other blocks go through the
// tables.
constexpr std::size_t kBlock = 32;

// The low half of a Thai character's code plus this is its byte.
constexpr int kThaiToByte = 0xA0;
constexpr int kByteToThai = 0x0E01 - 0xA1;

/// Whether `unit` is from `first` to `last`, in a single comparison.
template <typename Unit>
constexpr bool IsBetween(Unit unit, Unit first, Unit last) {
  return static_cast<Unit>(unit - first) <= static_cast<Unit>(last - first);
}

/// All bits if `condition` holds, otherwise none.
template <typename Unit>
constexpr Unit Mask(bool condition) {
  return condition ? static_cast<Unit>(~Unit{}) : Unit{};
}

constexpr std::uint16_t ThaiMask(std::uint16_t c) {
  return Mask<std::uint16_t>(IsBetween<std::uint16_t>(c, 0x0E01, 0x0E3A) ||
                             IsBetween<std::uint16_t>(c, 0x0E3F, 0x0E5B));
}

constexpr std::uint8_t ThaiByteMask(std::uint8_t byte) {
  return Mask<std::uint8_t>(IsBetween<std::uint8_t>(byte, 0xA1, 0xDA) ||
                            IsBetween<std::uint8_t>(byte, 0xDF, 0xFB));
}

bool EncodeAsciiBlock(const char16_t* text, char* bytes) {
  char16_t bits = 0;
  for (std::size_t i = 0; i < kBlock; ++i) bits = static_cast<char16_t>(bits | text[i]);
  if (bits >= 0x80) return false;
  std::array<char, kBlock> block;
  for (std::size_t i = 0; i < kBlock; ++i) block[i] = static_cast<char>(text[i]);
  std::ranges::copy(block, bytes);
  return true;
}

/// Encodes a block of ASCII and Thai; false, with `bytes` unspecified, if it contains another
/// character.
bool EncodeThaiBlock(const char16_t* text, char* bytes) {
  std::array<char, kBlock> block;
  std::uint16_t others = 0;
  for (std::size_t i = 0; i < kBlock; ++i) {
    const std::uint16_t c = text[i];
    const std::uint16_t thai = ThaiMask(c);
    others |= static_cast<std::uint16_t>(Mask<std::uint16_t>(c >= 0x80) ^ thai);
    block[i] = static_cast<char>(c + (thai & kThaiToByte));
  }
  std::ranges::copy(block, bytes);
  return others == 0;
}

void EncodeByTable(TextView text, char* bytes) {
  for (const char16_t c : text) *bytes++ = kBytes[c];
}

/// Decodes such a block; false, with `text` unchanged, if it contains another byte.
bool DecodeThaiBlock(const char* bytes, char16_t* text) {
  std::uint8_t others = 0;
  for (std::size_t i = 0; i < kBlock; ++i) {
    const auto byte = static_cast<std::uint8_t>(bytes[i]);
    others |= static_cast<std::uint8_t>(Mask<std::uint8_t>(byte >= 0x80) ^ ThaiByteMask(byte));
  }
  if (others != 0) return false;
  std::array<char16_t, kBlock> block;
  for (std::size_t i = 0; i < kBlock; ++i) {
    const std::uint16_t byte = static_cast<std::uint8_t>(bytes[i]);
    block[i] = static_cast<char16_t>(byte < 0x80 ? byte : byte + kByteToThai);
  }
  std::ranges::copy(block, text);
  return true;
}

void DecodeByTable(std::string_view bytes, char16_t* text) {
  for (const char byte : bytes) *text++ = kCharacters[static_cast<std::uint8_t>(byte)];
}

}  // namespace

std::string ToCodePage(TextView text) {
  std::string bytes(text.size(), '\0');
  EncodeCodePage(text, bytes.data());
  return bytes;
}

void EncodeCodePage(TextView text, char* bytes) {
  for (; text.size() >= kBlock; text.remove_prefix(kBlock), bytes += kBlock) {
    if (EncodeAsciiBlock(text.data(), bytes) || EncodeThaiBlock(text.data(), bytes)) continue;
    EncodeByTable(text.substr(0, kBlock), bytes);
  }
  EncodeByTable(text, bytes);
}

Text FromCodePage(std::string_view bytes) {
  Text text(bytes.size(), u'\0');
  DecodeCodePage(bytes, text.data());
  return text;
}

void DecodeCodePage(std::string_view bytes, char16_t* text) {
  for (; bytes.size() >= kBlock; bytes.remove_prefix(kBlock), text += kBlock) {
    if (DecodeThaiBlock(bytes.data(), text)) continue;
    DecodeByTable(bytes.substr(0, kBlock), text);
  }
  DecodeByTable(bytes, text);
}

std::optional<std::string> Windows874(TextView text) {
  std::string bytes = ToCodePage(text);
  if (FromCodePage(bytes) != text) return std::nullopt;
  return bytes;
}

Text FromWindows874(std::string_view bytes) {
  return FromCodePage(bytes);
}

}  // namespace ZQ7Standard
