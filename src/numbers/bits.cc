#include <ZQ7Standard/BitByteObject.h>

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstddef>
#include <limits>
#include <string>

#include "base/ascii.h"
#include "base/raise.h"

namespace ZQ7Standard {
namespace {

constexpr TextView kDigits = u"0123456789ABCDEF";
constexpr std::size_t kOctalBits = 3;  // of a digit
constexpr std::size_t kHexBits = 4;

// Binary text is converted to octal digits, which must read as a 16-bit decimal number: octal 32767
// is the largest.
constexpr std::uint64_t kLargestBinary = 032767;

constexpr std::uint64_t kLargest16Bits = std::numeric_limits<std::uint16_t>::max();
constexpr std::uint64_t kLargest32Bits = std::numeric_limits<std::uint32_t>::max();

/// The value of a digit of `bits` bits, in either case; npos for another character.
std::size_t DigitValue(char16_t c, std::size_t bits) {
  return kDigits.substr(0, std::size_t{1} << bits).find(AsciiUpper(c));
}

bool IsBinary(TextView text) {
  return text.find_first_not_of(u"01") == TextView::npos;
}

Text BitsToDigits(TextView binary, std::size_t bits) {
  const std::size_t missing = (bits - binary.size() % bits) % bits;
  const Text padded = Text(missing, u'0').append(binary);
  Text digits;
  digits.reserve(padded.size() / bits);
  for (std::size_t start = 0; start < padded.size(); start += bits) {
    const TextView group = TextView(padded).substr(start, bits);
    if (!IsBinary(group)) continue;
    std::size_t value = 0;
    for (const char16_t c : group) value = value * 2 + (c - u'0');
    digits.push_back(kDigits[value]);
  }
  return digits;
}

enum class ZerosInFront { kDropped, kKept };

Text DigitsToBits(TextView digits, std::size_t bits, ZerosInFront zeros) {
  Text binary;
  binary.reserve(digits.size() * bits);
  for (const char16_t c : digits) {
    const std::size_t value = DigitValue(c, bits);
    if (value == TextView::npos) continue;
    for (std::size_t bit = bits; bit-- > 0;) {
      binary.push_back((value >> bit) % 2 == 0 ? u'0' : u'1');
    }
  }
  if (zeros == ZerosInFront::kDropped) binary.erase(0, binary.find_first_not_of(u'0'));
  return binary;
}

/// Reads the digits of `bits` bits at the front of `digits` as a signed number of 16 bits if they
/// fit, otherwise of 32.
std::int16_t ReadDigits(TextView digits, std::size_t bits, const Where& where) {
  std::uint64_t value = 0;
  for (const char16_t c : digits) {
    const std::size_t digit = DigitValue(c, bits);
    if (digit == TextView::npos) break;
    value = value << bits | digit;
    if (value > kLargest32Bits) Raise(Error::kOverflow, where, digits);
  }
  const auto number = static_cast<std::int32_t>(value);
  if (value > kLargest16Bits &&
      (number >= 0 || number < std::numeric_limits<std::int16_t>::min())) {
    Raise(Error::kOverflow, where, digits);
  }
  return static_cast<std::int16_t>(value);
}

std::int16_t ReadDigits(std::int16_t digits, std::size_t bits, const Where& where) {
  if (digits < 0) return 0;
  Text text;
  AppendNumber(text, digits, 1);
  return ReadDigits(text, bits, where);
}

/// The 32 bits of a number, in two's complement.
constexpr std::uint32_t Bits(std::int32_t number) {
  return static_cast<std::uint32_t>(number);
}

Text WriteDigits(std::int32_t number, int base) {
  std::array<char, 11> digits;  // 32 bits in octal
  const char* const begin = digits.data();
  const char* const end =
      std::to_chars(digits.data(), digits.data() + digits.size(), Bits(number), base).ptr;
  Text text(begin, end);
  std::ranges::transform(text, text.begin(), AsciiUpper);
  return text;
}

/// The length of a number's binary text: three for each octal digit; 0 has one digit, like 1.
int BinaryLength(std::uint64_t bits) {
  const auto width = static_cast<int>(std::bit_width(bits | 1));
  return (width + 2) / 3 * 3;
}

std::int16_t WriteBit(std::int16_t number, int position, bool set, std::string_view operation) {
  const std::uint64_t bits = Bits(number);
  if (position < 1 || position > BinaryLength(bits)) return 0;
  const std::uint64_t bit = std::uint64_t{1} << (position - 1);
  const std::uint64_t changed = set ? bits | bit : bits & ~bit;
  if (changed > kLargestBinary) Raise(Error::kOverflow, {operation, "DecNumber"}, number);
  return static_cast<std::int16_t>(changed);
}

}  // namespace

Text BitByteObject::Bin2Oct(TextView BinString) const {
  return BitsToDigits(BinString, kOctalBits);
}

Text BitByteObject::Bin2hex(TextView BinString) const {
  return BitsToDigits(BinString, kHexBits);
}

std::int16_t BitByteObject::Bin2Dec(TextView BinString) const {
  if (!IsBinary(BinString)) return 0;
  std::uint64_t value = 0;
  for (const char16_t c : BinString) {
    value = value * 2 + (c - u'0');
    if (value > kLargestBinary) Raise(Error::kOverflow, {"Bin2Dec", "BinString"}, BinString);
  }
  return static_cast<std::int16_t>(value);
}

Text BitByteObject::Oct2Bin(TextView OctString, bool KeepZeroFront) const {
  const auto zeros = KeepZeroFront ? ZerosInFront::kKept : ZerosInFront::kDropped;
  return DigitsToBits(OctString, kOctalBits, zeros);
}

Text BitByteObject::Hex2Bin(TextView HexString, bool KeepZeroFront) const {
  const auto zeros = KeepZeroFront ? ZerosInFront::kKept : ZerosInFront::kDropped;
  return DigitsToBits(HexString, kHexBits, zeros);
}

Text BitByteObject::Oct2hex(TextView OctString) const {
  return Bin2hex(Oct2Bin(OctString));
}

Text BitByteObject::Hex2Oct(TextView HexString) const {
  return Bin2Oct(Hex2Bin(HexString));
}

std::int16_t BitByteObject::Oct2Dec(std::int16_t OctString) const {
  return ReadDigits(OctString, kOctalBits, {"Oct2Dec", "OctString"});
}

std::int16_t BitByteObject::Hex2Dec(std::int16_t HexString) const {
  return ReadDigits(HexString, kHexBits, {"Hex2Dec", "HexString"});
}

std::int16_t BitByteObject::Hex2Dec2(TextView HexString) const {
  return ReadDigits(HexString, kHexBits, {"Hex2Dec2", "HexString"});
}

Text BitByteObject::Dec2Oct(std::int32_t DecNumber) const {
  return WriteDigits(DecNumber, 8);
}

Text BitByteObject::Dec2hex(std::int32_t DecNumber) const {
  return WriteDigits(DecNumber, 16);
}

Text BitByteObject::Dec2Bin(std::int32_t Dec, bool /*KeepZeroFront*/) const {
  return DigitsToBits(Dec2Oct(Dec), kOctalBits, ZerosInFront::kKept);
}

std::int32_t BitByteObject::Base26To10(TextView Base26) const {
  const auto is_column_letter = [](char16_t c) { return c >= u'A' && c <= u'Z'; };
  if (!std::ranges::all_of(Base26, is_column_letter)) return 0;
  std::int64_t number = 0;
  for (const char16_t c : Base26) {
    number = number * 26 + (c - u'A' + 1);
    if (number > std::numeric_limits<std::int32_t>::max()) {
      Raise(Error::kOverflow, {"Base26To10", "Base26"}, Base26);
    }
  }
  return static_cast<std::int32_t>(number);
}

Text BitByteObject::Base10To26(std::int16_t colNum) const {
  Text letters;
  for (int number = colNum; number > 0;) {
    const int letter = (number - 1) % 26;
    letters.push_back(static_cast<char16_t>(u'A' + letter));
    number = (number - letter) / 26;
  }
  std::ranges::reverse(letters);
  return letters;
}

std::int16_t BitByteObject::BitRead(std::int16_t DecNumber, std::uint8_t BitDigitFormBack) const {
  if (BitDigitFormBack < 1 || BitDigitFormBack > 32) return 0;
  return (Bits(DecNumber) >> (BitDigitFormBack - 1)) % 2 != 0 ? -1 : 0;
}

std::int16_t BitByteObject::BitWrite(std::int16_t DecNumber, std::uint8_t BitDigitFormBack,
                                     std::int16_t NewValue) const {
  return WriteBit(DecNumber, BitDigitFormBack, NewValue == 1, "BitWrite");
}

std::int16_t BitByteObject::BitSwitch(std::int16_t DecNumber, std::uint8_t BitDigitFormBack) const {
  return WriteBit(DecNumber, BitDigitFormBack, false, "BitSwitch");
}

}  // namespace ZQ7Standard
