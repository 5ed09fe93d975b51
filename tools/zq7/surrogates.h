#ifndef ZQ7STANDARD_TOOLS_ZQ7_SURROGATES_H_
#define ZQ7STANDARD_TOOLS_ZQ7_SURROGATES_H_

#include <ZQ7Standard/Types.h>

#include <string>
#include <string_view>

/// Surrogates without a partner, which UTF-16 text may hold and UTF-8 cannot, on their
/// way through a JSON library that is strict about both. Each is replaced by a
/// character of the last 2048, U+10F800 to U+10FFFF, its stand-in; these characters
/// themselves are replaced by the stand-ins of their two surrogates. So every text has
/// a form of its own.
namespace ZQ7Tool {

/// `text` with stand-ins, and a text with stand-ins as it was.
ZQ7Standard::Text WithStandIns(ZQ7Standard::TextView text);
ZQ7Standard::Text WithoutStandIns(ZQ7Standard::TextView text);

/// JSON in which escapes of lone surrogates are escapes of their stand-ins.
std::string JsonWithStandIns(std::string_view json);

/// JSON in UTF-8 in which stand-ins are escapes of what they stand for.
std::string JsonWithoutStandIns(std::string json);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_SURROGATES_H_
