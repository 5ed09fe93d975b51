#ifndef ZQ7STANDARD_TOOLS_ZQ7_JSON_TEXT_H_
#define ZQ7STANDARD_TOOLS_ZQ7_JSON_TEXT_H_

#include <ZQ7Standard/Types.h>

#include <cstddef>
#include <nlohmann/json_fwd.hpp>
#include <stdexcept>
#include <string>
#include <string_view>

namespace ZQ7Tool {

/// Keeps the members of an object in the order they came in.
using Json = nlohmann::ordered_json;

/// A text that is not the JSON wanted.
class JsonError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Arrays and objects in each other, and members of one object, that are read.
inline constexpr std::size_t kMaxJsonDepth = 100;
inline constexpr std::size_t kMaxJsonMembers = 1000;

/// Reads one JSON text in UTF-8. `JsonError` for any other text, for two members of one
/// name and for what passes the limits. A surrogate without its partner, which UTF-8
/// cannot hold, is kept as surrogates.h says.
Json ReadJson(std::string_view text);

/// The JSON text in one line of UTF-8, which `ReadJson` reads as the same.
std::string WriteJson(const Json& json);

/// The text of a member of `object`, an object that `ReadJson` has read, as it stands
/// there; empty for none.
std::string_view MemberText(std::string_view object, std::string_view name);

/// The UTF-16 text that a string of a `Json` stands for, and the other way round.
ZQ7Standard::Text TextOfJson(const std::string& string);
std::string JsonOfText(ZQ7Standard::TextView text);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_JSON_TEXT_H_
