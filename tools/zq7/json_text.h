#ifndef ZQ7STANDARD_TOOLS_ZQ7_JSON_TEXT_H_
#define ZQ7STANDARD_TOOLS_ZQ7_JSON_TEXT_H_

#include <cstddef>
#include <nlohmann/json_fwd.hpp>
#include <stdexcept>
#include <string>
#include <string_view>

namespace ZQ7Tool {

/// Keeps the members of an object in order.
using Json = nlohmann::ordered_json;

/// A text that is not the expected JSON.
class JsonError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The limits for nested arrays and objects, and for the members of an object.
inline constexpr std::size_t kMaxJsonDepth = 100;
inline constexpr std::size_t kMaxJsonMembers = 1000;

/// Reads one JSON text in UTF-8. Throws `JsonError` for any other text, a repeated member name, a
/// lone surrogate, and whatever exceeds the limits.
///
/// `id`, if given, is set to the value of an object's member "id" as JSON, with the original digits
/// of its numbers, which the tree holds as doubles; empty if there is none.
Json ReadJson(std::string_view text, std::string* id = nullptr);

/// The JSON text in one line of UTF-8, which `ReadJson` reads back unchanged.
std::string WriteJson(const Json& json);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_JSON_TEXT_H_
