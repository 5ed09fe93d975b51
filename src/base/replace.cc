#include "base/replace.h"

#include <cstddef>
#include <utility>

namespace ZQ7Standard {

void ReplaceAll(Text& text, TextView from, TextView to) {
  if (text.find(from) == Text::npos) return;
  Text result;
  result.reserve(text.size());
  AppendReplaced(result, text, from, to);
  text = std::move(result);
}

void AppendReplaced(Text& result, TextView text, TextView from, TextView to) {
  std::size_t start = 0;
  for (std::size_t at = text.find(from); at != TextView::npos; at = text.find(from, start)) {
    result.append(text, start, at - start).append(to);
    start = at + from.size();
  }
  result.append(text, start);
}

}  // namespace ZQ7Standard
