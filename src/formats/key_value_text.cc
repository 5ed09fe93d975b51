#include "formats/key_value_text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "base/ascii.h"
#include "base/case_mapping.h"
#include "base/code_page.h"
#include "formats/lines.h"

namespace ZQ7Standard {
namespace {

Text UpperCase(TextView text) {
  Text upper(text);
  std::ranges::transform(upper, upper.begin(), ToUpper);
  return upper;
}

/// Whether a line can hold `key`, encoded as `bytes`: it has no line end and no character outside
/// the code page, whose "?" would be another key.
bool IsMatchable(TextView key, std::string_view bytes) {
  return FromCodePage(bytes) == key && bytes.find_first_of(kLineEnd) == std::string_view::npos;
}

/// The key in brackets that begins its lines.
class KeyMark {
 public:
  explicit KeyMark(TextView key) {
    const Text upper = u'[' + UpperCase(key) + u']';
    bytes_ = ToCodePage(upper);
    matchable_ = IsMatchable(upper, bytes_);
  }

  std::size_t Size() const { return bytes_.size(); }

  /// Whether `line` begins with the mark, ignoring case. A to Z are the only letters of the code
  /// page that have a case.
  bool Begins(std::string_view line) const {
    const auto upper = [](char c) { return AsciiUpper(static_cast<unsigned char>(c)); };
    const auto plain = [](char c) { return char16_t{static_cast<unsigned char>(c)}; };
    return matchable_ && line.size() >= bytes_.size() &&
           std::ranges::equal(bytes_, line.substr(0, bytes_.size()), {}, plain, upper);
  }

 private:
  std::string bytes_;
  bool matchable_;
};

std::string_view TrimBlanks(std::string_view line) {
  return line.substr(std::min(line.find_first_not_of(' '), line.size()));
}

// Examined together, by a fixed-size loop without branches, which compilers vectorize.
constexpr std::size_t kBlock = 32;

/// Whether a mark of `size` bytes may begin at one of the first `kBlock` of `bytes`.
bool MayHoldMark(const char* bytes, std::size_t size) {
  std::uint8_t brackets = 0;
  for (std::size_t i = 0; i < kBlock; ++i) {
    const auto opens = static_cast<std::uint8_t>(bytes[i] == '[');
    const auto closes = static_cast<std::uint8_t>(bytes[i + size - 1] == ']');
    brackets |= static_cast<std::uint8_t>(opens & closes);
  }
  return brackets != 0;
}

/// The first position from `at` on with brackets as far apart as those of a mark of `size` bytes.
std::size_t FindBrackets(std::string_view contents, std::size_t at, std::size_t size) {
  while (at + kBlock + size <= contents.size() && !MayHoldMark(&contents[at], size)) at += kBlock;
  for (; at + size <= contents.size(); ++at) {
    if (contents[at] == '[' && contents[at + size - 1] == ']') return at;
  }
  return std::string_view::npos;
}

/// Whether only blanks precede `at` in its line.
bool BeginsLine(std::string_view contents, std::size_t at) {
  const auto before = contents.substr(0, at).find_last_not_of(' ');
  return before == std::string_view::npos || contents[before] == '\r' || contents[before] == '\n';
}

struct Rewritten {
  std::string contents;
  bool found = false;
};

/// Replaces every line of `contents` that begins with `mark` by `setting`.
Rewritten ReplaceLines(std::string_view contents, const KeyMark& mark, std::string_view setting) {
  Rewritten result;
  result.contents.reserve(contents.size() + setting.size());
  while (!contents.empty()) {
    const std::string_view line = TrimBlanks(TakeLine(contents));
    if (mark.Begins(line)) {
      result.contents.append(setting);
      result.found = true;
    } else {
      result.contents.append(line).append(kLineEnd);
    }
  }
  return result;
}

}  // namespace

std::string_view FindValue(std::string_view contents, TextView key) {
  const KeyMark mark(key);
  std::string_view value;
  // From bracket to bracket, which is faster than line by line.
  const auto next = [&](std::size_t at) { return FindBrackets(contents, at, mark.Size()); };
  for (std::size_t at = next(0); at != std::string_view::npos; at = next(at + 1)) {
    std::string_view rest = contents.substr(at);
    if (!mark.Begins(rest) || !BeginsLine(contents, at)) continue;
    value = TrimBlanks(TakeLine(rest).substr(mark.Size()));
    if (value.starts_with('=')) return value.substr(1);
  }
  return value;
}

std::string SettingLine(TextView key, TextView value) {
  return '[' + ToCodePage(key) + "]=" + ToCodePage(value).append(kLineEnd);
}

std::string WithValue(std::string_view contents, TextView key, TextView value) {
  const std::string setting = SettingLine(UpperCase(key), value);
  Rewritten rewritten = ReplaceLines(contents, KeyMark(key), setting);
  if (!rewritten.found) rewritten.contents += setting;
  return std::move(rewritten.contents);
}

std::string WithoutKey(std::string_view contents, TextView key) {
  return ReplaceLines(contents, KeyMark(key), {}).contents;
}

}  // namespace ZQ7Standard
