#ifndef ZQ7STANDARD_BINDINGS_POSTGRESQL_PLAIN_H_
#define ZQ7STANDARD_BINDINGS_POSTGRESQL_PLAIN_H_

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <type_traits>

/// What crosses the line between the server and C++. The server's errors jump over frames without
/// running destructors, so everything that its side holds is plain data.
namespace ZQ7PostgreSQL {

/// More than any operation has parameters, with the convention of a `_by`.
inline constexpr std::size_t kMaxArguments = 31;

/// An argument or a result; the type of the parameter says which member holds it.
struct Plain {
  bool is_null = false;
  std::int64_t whole = 0;      ///< integers, Booleans, and microseconds since 2000-01-01
  double real = 0;             ///< singles and doubles
  std::string_view text = {};  ///< texts, in UTF-8, and the digits of currency
  std::span<const std::string_view> list = {};
};

/// A failure: the five characters of its SQLSTATE and two texts in UTF-8.
struct Failure {
  std::string_view state;
  std::string_view message;
  std::string_view detail;
};

/// What a call left: a result, or a failure. What its texts are made of lasts until the next call.
struct Outcome {
  bool failed = false;
  Plain result = {};
  Failure failure = {};
};

static_assert(std::is_trivially_destructible_v<Plain> && std::is_trivially_copyable_v<Plain>);
static_assert(std::is_trivially_destructible_v<Outcome>);

}  // namespace ZQ7PostgreSQL

#endif  // ZQ7STANDARD_BINDINGS_POSTGRESQL_PLAIN_H_
