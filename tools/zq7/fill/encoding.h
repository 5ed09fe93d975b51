#ifndef ZQ7STANDARD_TOOLS_ZQ7_FILL_ENCODING_H_
#define ZQ7STANDARD_TOOLS_ZQ7_FILL_ENCODING_H_

#include <ZQ7Standard/Types.h>

#include <optional>
#include <string>
#include <string_view>

namespace ZQ7Tool {

/// How the bytes of a file are texts.
enum class Encoding { kUtf8, kWindows874 };

/// "utf-8" and "windows-874", in any case; nullopt for any other name.
std::optional<Encoding> EncodingNamed(std::string_view name);

/// The text of `bytes`; nullopt if they are not in that encoding.
std::optional<ZQ7Standard::Text> Decoded(std::string_view bytes, Encoding encoding);

/// Replaces `bytes` by those of `text`; false if the encoding lacks one of its characters.
bool Encode(ZQ7Standard::TextView text, Encoding encoding, std::string& bytes);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_FILL_ENCODING_H_
