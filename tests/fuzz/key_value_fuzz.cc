// Compares the value of a key in any bytes with the rule applied line by line in UTF-16, and the
// rewrites with the value.

#include <algorithm>

#include "base/case_mapping.h"
#include "base/code_page.h"
#include "base/fields.h"
#include "formats/key_value_text.h"
#include "formats/lines.h"
#include "tests/fuzz/check.h"

namespace ZQ7Standard {
namespace {

Text UpperCase(Text text) {
  std::ranges::transform(text, text.begin(), ToUpper);
  return text;
}

Text ValueByStep(std::string_view contents, const Text& key) {
  Text value;
  while (!contents.empty()) {
    const Text line = FromCodePage(TakeLine(contents));
    const TextView trimmed = TrimFront(line);
    const std::size_t length = key.size() + 2;
    if (UpperCase(Text(trimmed.substr(0, length))) != UpperCase(u"[" + key + u"]")) continue;
    value = TrimFront(trimmed.substr(length));
    if (value.starts_with(u'=')) return value.substr(1);
  }
  return value;
}

}  // namespace
}  // namespace ZQ7Standard

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ZQ7Standard;
  if (size < 2) return 0;
  const std::size_t split = std::min<std::size_t>(data[0] % 8, size - 1);
  const Text key = FuzzText(data + 1, split);
  const std::string contents(data + 1 + split, data + size);
  const auto set = [&](const auto& bytes) { return WithValue(bytes, key, u" v[="); };
  const std::string with = set(contents);
  const std::string without = WithoutKey(contents, key);
  Check(FromCodePage(FindValue(contents, key)) == ValueByStep(contents, key));
  Check(FindValue(without, key).empty() && WithoutKey(without, key) == without);
  const bool matchable = UpperCase(key) == FromCodePage(ToCodePage(UpperCase(key))) &&
                         key.find_first_of(u"\r\n") == Text::npos;
  Check(FindValue(with, key) == (matchable ? " v[=" : ""));
  Check(!matchable || (set(with) == with && WithoutKey(with, key) == without));
  return 0;
}
