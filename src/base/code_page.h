#ifndef ZQ7STANDARD_SRC_BASE_CODE_PAGE_H_
#define ZQ7STANDARD_SRC_BASE_CODE_PAGE_H_

#include <ZQ7Standard/Types.h>

#include <string>
#include <string_view>

namespace ZQ7Standard {

// The library's only single-byte encoding, Windows-874: texts are encrypted, hashed and stored in
// it. The bytes that Windows-874 leaves undefined stand for the C1 control with the same number
// (0x80 to 0x9F) and for U+F8C1 to U+F8C8 (0xDB to 0xDE, 0xFC to 0xFF), so that all 256 bytes
// survive a round trip.

/// One byte for each code unit of `text`. A character outside the code page becomes "?", a
/// surrogate pair two.
std::string ToCodePage(TextView text);

/// The same, written to `bytes`, which has room for `text.size()` bytes.
void EncodeCodePage(TextView text, char* bytes);

/// The text of `bytes`, one character for each byte.
Text FromCodePage(std::string_view bytes);

/// The same, written to `text`, which has room for `bytes.size()` characters.
void DecodeCodePage(std::string_view bytes, char16_t* text);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_BASE_CODE_PAGE_H_
