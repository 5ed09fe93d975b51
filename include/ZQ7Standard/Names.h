#ifndef ZQ7STANDARD_NAMES_H_
#define ZQ7STANDARD_NAMES_H_

#include <ZQ7Standard/Export.h>

#include <span>
#include <string_view>

namespace ZQ7Standard {

/// The candidate nearest to a misspelt name, ignoring the case of A to Z; empty if none is
/// close.
ZQ7STANDARD_EXPORT std::string_view NearestName(std::string_view misspelt,
                                                std::span<const std::string_view> candidates);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_NAMES_H_
