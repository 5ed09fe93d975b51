#ifndef ZQ7STANDARD_BINDINGS_POSTGRESQL_VALUES_H_
#define ZQ7STANDARD_BINDINGS_POSTGRESQL_VALUES_H_

#include <ZQ7Standard/automation/value.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "plain.h"

namespace ZQ7PostgreSQL {

/// The largest result, in bytes of UTF-8.
inline constexpr std::size_t kMaxResult = std::size_t{256} << 20U;

/// Whether microseconds since 2000-01-01 are from 0100-01-01 to 9999-12-31, which the server's two
/// infinities are not.
bool IsDate(std::int64_t microseconds) noexcept;

/// Microseconds since 2000-01-01 as a date. Raises 5 for what `IsDate` refuses.
ZQ7Standard::OleDate DateFromMicroseconds(std::int64_t microseconds);

/// The value of an argument for a parameter of that type.
void Assign(const Plain& argument, ZQ7Standard::Automation::Type type,
            ZQ7Standard::Automation::Value& value);

/// The memory of a result.
struct ResultTexts {
  std::string text;
  std::vector<std::string> texts;
  std::vector<std::string_view> list;
};

/// A result as plain data, whose texts `memory` holds. Raises `Refused` for a text that the server
/// cannot hold.
Plain ToPlain(const ZQ7Standard::Automation::Value& value, ResultTexts& memory);

}  // namespace ZQ7PostgreSQL

#endif  // ZQ7STANDARD_BINDINGS_POSTGRESQL_VALUES_H_
