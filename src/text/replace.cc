#include "text/replace.h"

#include <cstddef>

namespace ZQ7Standard {

void ReplaceAll(Text& text, TextView from, TextView to) {
  for (std::size_t at = text.find(from); at != Text::npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
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
