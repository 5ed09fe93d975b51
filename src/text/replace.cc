#include "text/replace.h"

#include <cstddef>

namespace ZQ7Standard {

void ReplaceAll(Text& text, TextView from, TextView to) {
  for (std::size_t at = text.find(from); at != Text::npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
}

}  // namespace ZQ7Standard
