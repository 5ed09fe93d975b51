// Compares the list and key operations with their rules applied step by step, each step with a text
// of its own.

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/StandardObject.h>

#include <algorithm>
#include <cctype>

#include "base/case_mapping.h"
#include "base/fields.h"
#include "base/replace.h"
#include "tests/fuzz/check.h"

namespace ZQ7Standard {
namespace {

const StandardObject kObject;

Text Without(Text text, TextView characters) {
  std::erase_if(text, [&](char16_t c) { return characters.find(c) != TextView::npos; });
  return text;
}

Text KeyByStep(TextView typed, bool space, bool number, bool upper, bool english, bool multi) {
  Text key(TrimBack(TrimFront(Without(Text(typed), u"';,%"))));
  if (!space) key = Without(key, u" ");
  if (number) key = kObject.Numb(key);
  if (upper) std::ranges::transform(key, key.begin(), ToUpper);
  if (english) std::erase_if(key, [](char16_t c) { return c > u'z' || std::isalnum(c) == 0; });
  if (space && !multi) {
    key = Text(TrimBack(TrimFront(key)));
    for (auto at = key.find(u"  "); at != Text::npos; at = key.find(u"  ")) key.erase(at, 1);
  }
  return Without(key, u"\r\n");
}

Text ListByStep(TextView list, const Text& item, TextView separator) {
  Text marked = u"$#$";
  if (!list.empty()) {
    Text items(list);
    ReplaceAll(items, u";", u"$#$");
    marked += items + u"$#$";
  }
  if (marked.find(u"$#$" + item + u"$#$") == Text::npos) marked += item + u"$#$";
  marked.erase(0, 3);
  if (marked.ends_with(u"$#$")) marked.resize(marked.size() - 3);
  ReplaceAll(marked, u"$#$", separator.empty() ? u";" : separator);
  return marked;
}

Text IncreasedByStep(const Text& key, const Text& step) {
  std::size_t start = key.size();
  for (std::size_t i = key.size(); i > 0 && key[i - 1] >= u'0' && key[i - 1] <= u'9'; --i) {
    if (kObject.StrVal(TextView(key).substr(i - 1)) > 0) start = i - 1;
  }
  if (start == key.size()) return key + step;
  const double given = kObject.StrVal(step);
  const double added = given > 0 ? given : step.empty() ? 1 : 0;
  const Text number = kObject.d2Str(kObject.StrVal(TextView(key).substr(start)) + added);
  const std::size_t width = key.size() - start;
  const Text zeros(width - std::min(width, number.size()), u'0');
  return key.substr(0, start) + zeros + number;
}

/// The number at the end of a key, reading each suffix anew.
Text SortSuffixByStep(const Text& text) {
  std::size_t start = text.size();
  while (start > 0 && kObject.StrVal(TextView(text).substr(start - 1)) > 0) --start;
  return text.substr(start);
}

Text SortedByStep(const Text& text, std::int16_t length) {
  const Text suffix = SortSuffixByStep(text);
  const std::size_t prefix = text.size() - suffix.size();
  const auto room = static_cast<std::size_t>(length) - prefix;
  const Text filled =
      Text(static_cast<std::size_t>(length), u'0') + (suffix.empty() ? u"1" : suffix);
  Text key = text.substr(0, prefix) + filled.substr(filled.size() - room);
  if (!suffix.empty()) std::ranges::transform(key, key.begin(), ToUpper);
  return key;
}

template <typename Operation>
Text OrError(Operation operation) {
  try {
    return operation();
  } catch (const RunTimeError& error) {
    return Text(1, static_cast<char16_t>(error.Number()));
  }
}

void CheckKeys(const Text& text, std::uint8_t options) {
  const auto flag = [options](int bit) { return static_cast<std::int16_t>((options >> bit) & 1); };
  const Text key =
      kObject.FormatPrimaryKey(text, 0, 0, flag(0), flag(1), flag(2), flag(3), flag(4));
  Check(key == KeyByStep(text, flag(0), flag(1), flag(2), flag(3), flag(4)));
  const Text barcode = kObject.FormatBarCode(text);
  Check(kObject.FormatBarCode(barcode) == barcode);
  const Text address = OrError([&] { return kObject.FormatIP(text, flag(0) == 1); });
  if (address.size() > 1) Check(kObject.FormatIP(address, false) == address);
}

void CheckTexts(const Text& text) {
  const Text single = kObject.TrimSpaceToOne(text);
  Check(kObject.TrimSpaceToOne(single) == single && single.find(u"  ") == Text::npos);
  Check(kObject.ReverseString(kObject.ReverseString(text)) == text);
  const Text items = text.empty() || text.ends_with(u',') ? text : text + u',';
  Check(kObject.ReverseList(kObject.ReverseList(text)) == items);
  for (std::int16_t length = 0; length < 40; length += 13) {
    const Text sorted = OrError([&] { return kObject.FormatTextSort(text, length); });
    Check(sorted == u"\5" || sorted == SortedByStep(text, length));
  }
}

}  // namespace
}  // namespace ZQ7Standard

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ZQ7Standard;
  if (size < 2) return 0;
  const std::size_t split = std::min<std::size_t>(data[1], size - 2);
  const Text second = FuzzText(data + 2, split);
  const Text first = FuzzText(data + 2 + split, size - 2 - split);
  CheckKeys(first, data[0]);
  CheckTexts(first);
  const TextView separator = TextView(second).substr(0, data[0] % 4);
  const Text list = kObject.AddList(first, second, separator);
  Check(list == ListByStep(first, second, separator));
  Check(OrError([&] { return kObject.IncreaseString(first, second); }) ==
        OrError([&] { return IncreasedByStep(first, second); }));
  Check(static_cast<std::size_t>(kObject.Instr2(1, first, second, ZQ7CompareBinary, true)) ==
        (second.empty() ? 0 : first.rfind(second) + 1));
  for (std::int16_t field = 1; field < 4; ++field) {
    const Text number = OrError([&] { return kObject.TrimN(first, field); });
    if (number.size() > 1) Check(kObject.TrimN(number + u",0", 1) == number);
  }
  return 0;
}
