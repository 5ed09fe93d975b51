#ifndef ZQ7STANDARD_SRC_AUTOMATION_NAMES_H_
#define ZQ7STANDARD_SRC_AUTOMATION_NAMES_H_

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "base/ascii.h"

/// Names of classes and members, which are ASCII and whose case does not count.
namespace ZQ7Standard::Automation {

constexpr char16_t FoldedCharacter(char c) {
  return AsciiUpper(static_cast<unsigned char>(c));
}

struct SameName {
  bool operator()(std::string_view a, std::string_view b) const {
    return std::ranges::equal(a, b, {}, FoldedCharacter, FoldedCharacter);
  }
};

/// The FNV-1a hash of a name.
struct NameHash {
  std::size_t operator()(std::string_view name) const {
    std::uint64_t hash = 14695981039346656037U;
    for (const char c : name) hash = (hash ^ FoldedCharacter(c)) * 1099511628211U;
    return hash;
  }
};

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_SRC_AUTOMATION_NAMES_H_
