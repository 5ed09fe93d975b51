#include "base/fields.h"

#include <algorithm>
#include <cstddef>

namespace ZQ7Standard {

TextView TakeField(TextView& rest, char16_t separator) {
  const std::size_t end = std::min(rest.find(separator), rest.size());
  const TextView field = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return field;
}

TextView TrimFront(TextView text, TextView set) {
  return text.substr(std::min(text.find_first_not_of(set), text.size()));
}

TextView TrimBack(TextView text, TextView set) {
  return text.substr(0, text.find_last_not_of(set) + 1);  // npos + 1 is 0
}

}  // namespace ZQ7Standard
