#ifndef ZQ7STANDARD_SRC_BASE_SEARCH_H_
#define ZQ7STANDARD_SRC_BASE_SEARCH_H_

#include <ZQ7Standard/Types.h>

#include <cstddef>

namespace ZQ7Standard {

// Each runs in time proportional to the lengths, however often `part` nearly matches.

/// Whether two characters match; must be transitive.
using CharactersMatch = bool (*)(char16_t, char16_t);

/// The index of the first `part` in `text` at or after `from`; npos if there is none. An empty
/// `part` is found at `from`.
std::size_t FindFirst(TextView text, TextView part, std::size_t from = 0);
std::size_t FindFirst(TextView text, TextView part, std::size_t from, CharactersMatch match);

/// The index of the last `part` (not empty) in `text`; npos if there is none.
std::size_t FindLast(TextView text, TextView part);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_BASE_SEARCH_H_
