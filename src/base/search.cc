#include "base/search.h"

#include <vector>

namespace ZQ7Standard {
namespace {

// Up to this size the plain search of the standard library is as good: it compares no character of
// the text more often.
constexpr std::size_t kShortPart = 16;

/// Knuth-Morris-Pratt search: no character of the text is read twice, because the part itself tells
/// how much of it the preceding characters still match. `text(i)` and `part(i)` are the characters
/// at index `i`.
std::size_t FindPart(const auto& text, std::size_t text_size, const auto& part,
                     std::size_t part_size, CharactersMatch match) {
  // By number of matched characters, the longest prefix of the part that also ends them.
  // suffix.
  std::vector<std::size_t> shorter(part_size + 1, 0);
  const auto extended = [&](std::size_t matched, char16_t c) {
    while (matched > 0 && !match(part(matched), c)) matched = shorter[matched];
    return match(part(matched), c) ? matched + 1 : 0;
  };
  for (std::size_t i = 1; i < part_size; ++i) shorter[i + 1] = extended(shorter[i], part(i));
  std::size_t matched = 0;
  for (std::size_t i = 0; i < text_size; ++i) {
    matched = extended(matched, text(i));
    if (matched == part_size) return i + 1 - part_size;
  }
  return TextView::npos;
}

bool Same(char16_t a, char16_t b) {
  return a == b;
}

auto FromFront(TextView text) {
  return [text](std::size_t i) { return text[i]; };
}

auto FromBack(TextView text) {
  return [text](std::size_t i) { return text[text.size() - 1 - i]; };
}

}  // namespace

std::size_t FindFirst(TextView text, TextView part, std::size_t from) {
  return part.size() <= kShortPart ? text.find(part, from) : FindFirst(text, part, from, Same);
}

std::size_t FindFirst(TextView text, TextView part, std::size_t from, CharactersMatch match) {
  if (part.empty()) return from;
  const TextView rest = text.substr(from);
  const std::size_t at =
      FindPart(FromFront(rest), rest.size(), FromFront(part), part.size(), match);
  return at == TextView::npos ? at : from + at;
}

std::size_t FindLast(TextView text, TextView part) {
  if (part.size() <= kShortPart) return text.rfind(part);
  const std::size_t at = FindPart(FromBack(text), text.size(), FromBack(part), part.size(), Same);
  return at == TextView::npos ? at : text.size() - at - part.size();
}

}  // namespace ZQ7Standard
