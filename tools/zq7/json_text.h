#ifndef ZQ7STANDARD_TOOLS_ZQ7_JSON_TEXT_H_
#define ZQ7STANDARD_TOOLS_ZQ7_JSON_TEXT_H_

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
/// name, for a surrogate without its partner and for what passes the limits.
///
/// `id`, if given, is set to the value of the member "id" of an object as JSON with the
/// digits of its numbers, which the tree has as doubles; empty if there is none.
Json ReadJson(std::string_view text, std::string* id = nullptr);

/// The JSON text in one line of UTF-8, which `ReadJson` reads as the same.
std::string WriteJson(const Json& json);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_JSON_TEXT_H_
