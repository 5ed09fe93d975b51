#ifndef ZQ7STANDARD_BITBYTEOBJECT_H_
#define ZQ7STANDARD_BITBYTEOBJECT_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>

#include <cstdint>

namespace ZQ7Standard {

/// Binary, octal and hexadecimal text, column letters and single bits.
///
/// Texts have the most significant digit first. Hosts keep texts and numbers made here in
/// their files, so the 16-bit limits and the leading zeros never change. There is no
/// state: distinct instances, and one instance between calls, are independent.
//
// The operations are defined in src/numbers/bits.cc.
class ZQ7STANDARD_EXPORT BitByteObject {
 public:
  /// A binary text as octal digits.
  ///
  /// One octal digit for three bits, with zeros added in front to fill the first group:
  /// "1000" is "10". A group with any character but "0" and "1" yields no digit; the
  /// others still do.
  Text Bin2Oct(TextView BinString) const;

  /// A binary text as hexadecimal digits.
  ///
  /// One hexadecimal digit in upper case for four bits, otherwise as `Bin2Oct`:
  /// "101" is "5".
  Text Bin2hex(TextView BinString) const;

  /// The number of a binary text.
  ///
  /// 0 for the empty text and for one with any character but "0" and "1". Raises 6 above
  /// 13815: its octal digits, 32767, are the last that read as a 16-bit decimal number,
  /// and callers take the error as the end of the range.
  std::int16_t Bin2Dec(TextView BinString) const;

  /// Octal digits as binary text.
  ///
  /// Three bits for each octal digit; other characters add nothing. Without
  /// `KeepZeroFront` all leading zeros are dropped: "0" and "000" are then the empty
  /// text, which callers show as a blank box.
  Text Oct2Bin(TextView OctString, bool KeepZeroFront = false) const;

  /// Hexadecimal digits as binary text.
  ///
  /// Four bits for each hexadecimal digit of either case, otherwise as `Oct2Bin`.
  Text Hex2Bin(TextView HexString, bool KeepZeroFront = false) const;

  /// Octal digits as hexadecimal digits.
  ///
  /// `Bin2hex` of `Oct2Bin` without leading zeros: "17" is "F", "0" is empty.
  Text Oct2hex(TextView OctString) const;

  /// Hexadecimal digits as octal digits.
  ///
  /// `Bin2Oct` of `Hex2Bin` without leading zeros: "F" is "17", "0" is empty.
  Text Hex2Oct(TextView HexString) const;

  /// Decimal digits read as an octal number.
  ///
  /// The digits of `OctString`: 17 gives 15. Reading stops at a digit 8 or 9 (187 gives
  /// 1), and a negative number gives 0.
  std::int16_t Oct2Dec(std::int16_t OctString) const;

  /// Decimal digits read as a hexadecimal number.
  ///
  /// The digits of `HexString`: 10 gives 16, and 9999, whose sign bit of 16 is set, gives
  /// -26215. A negative number gives 0. Raises 6 from five digits up.
  std::int16_t Hex2Dec(std::int16_t HexString) const;

  /// The number of hexadecimal digits.
  ///
  /// Digits of either case up to the first other character; 0 if there are none. Up to
  /// FFFF the number is 16-bit signed ("FFFF" is -1), above that 32-bit signed, so that
  /// the `Dec2hex` of a negative 16-bit number reads back. Raises 6 outside 16 bits.
  std::int16_t Hex2Dec2(TextView HexString) const;

  /// A number as octal digits.
  ///
  /// A negative `DecNumber` counts as 32-bit two's complement: -1 is "37777777777".
  Text Dec2Oct(std::int32_t DecNumber) const;

  /// A number as hexadecimal digits.
  ///
  /// In upper case. A negative `DecNumber` counts as 32-bit two's complement: -1 is
  /// "FFFFFFFF".
  Text Dec2hex(std::int32_t DecNumber) const;

  /// A number as binary text, three bits a group.
  ///
  /// The bits of the octal digits of `Dec`, three for each: 5 is "101", 8 is "001000", 0
  /// is "000", and a negative number has 33. `KeepZeroFront` has no effect: callers cut
  /// the text into groups of three from the front.
  Text Dec2Bin(std::int32_t Dec, bool KeepZeroFront = false) const;

  /// The number of a spreadsheet column.
  ///
  /// "A" is 1, "Z" 26, "AA" 27. Any character but "A" to "Z", lower case included, makes
  /// the result 0, which callers take for "no such column". Raises 6 above 2147483647
  /// ("FXSHRXW").
  std::int32_t Base26To10(TextView Base26) const;

  /// The letters of a spreadsheet column.
  ///
  /// 27 is "AA", 702 is "ZZ". Empty for 0 and negative numbers.
  Text Base10To26(std::int16_t colNum) const;

  /// Whether a bit is set; bits count from the right, from 1.
  ///
  /// -1 if the bit is set, else 0; also 0 for a `BitDigitFormBack` that the number's
  /// `Dec2Bin` does not have. A negative number has bits up to position 32.
  std::int16_t BitRead(std::int16_t DecNumber, std::uint8_t BitDigitFormBack) const;

  /// A number with a bit set by 1 or cleared by any other value.
  ///
  /// It is set only if `NewValue` is exactly 1: the -1 of `BitRead` clears, as callers that
  /// copy a bit know. 0 for a position that the number's `Dec2Bin` does not have:
  /// `BitWrite(5, 4, 1)` is 0 (docs/surprises.md). Raises 6 if the result is negative or
  /// above 13815, as `Bin2Dec` does.
  std::int16_t BitWrite(std::int16_t DecNumber, std::uint8_t BitDigitFormBack,
                        std::int16_t NewValue) const;

  /// A number with a bit cleared.
  ///
  /// Never sets it: hosts remove a flag with it, and a second call must not bring it
  /// back. Otherwise as `BitWrite`.
  std::int16_t BitSwitch(std::int16_t DecNumber, std::uint8_t BitDigitFormBack) const;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_BITBYTEOBJECT_H_
