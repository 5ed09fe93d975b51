#include <ZQ7Standard/StandardObject.h>

#include <algorithm>
#include <cstddef>
#include <initializer_list>

#include "base/fields.h"
#include "base/raise.h"
#include "base/replace.h"
#include "base/search.h"
#include "numbers/number_text.h"

namespace ZQ7Standard {
namespace {

constexpr TextView kDefaultSeparator = u";";
constexpr TextView kMarker = u"$#$";  // encloses each item during processing
constexpr TextView kElementSeparator = u";;";

/// `list` with a marker before and after each item: "$#$a$#$b$#$", and "$#$" if it is empty.
/// Reserves room for one more item of `extra` characters.
Text Marked(TextView list, std::size_t extra) {
  Text marked;
  const auto separators = static_cast<std::size_t>(std::ranges::count(list, u';'));
  marked.reserve(list.size() + extra + (separators + 3) * kMarker.size());
  marked.append(kMarker);
  if (list.empty()) return marked;
  AppendReplaced(marked, list, kDefaultSeparator, kMarker);
  marked.append(kMarker);
  return marked;
}

std::vector<Text> Split(TextView text, TextView separator) {
  std::vector<Text> parts;
  std::size_t start = 0;
  for (std::size_t at = text.find(separator); at != TextView::npos;
       at = text.find(separator, start)) {
    parts.emplace_back(text.substr(start, at - start));
    start = at + separator.size();
  }
  parts.emplace_back(text.substr(start));
  return parts;
}

/// Joins `first` and the non-empty `others`, and splits the result again, so that a separator
/// inside an argument counts.
std::vector<Text> Elements(TextView first, std::initializer_list<TextView> others) {
  Text joined(first);
  for (const TextView argument : others) {
    if (!argument.empty()) joined.append(kElementSeparator).append(argument);
  }
  return joined.empty() ? std::vector<Text>() : Split(joined, kElementSeparator);
}

/// `field` of the list `list` as a whole number.
std::int32_t WholeNumber(TextView field, TextView list) {
  if (!IsNumberText(field)) Raise(Error::kTypeMismatch, {"TrimN", "istr"}, list);
  const auto number = ReadLeadingNumber(field);
  const auto whole = number ? RoundToInteger<std::int32_t>(*number) : std::nullopt;
  if (!whole) Raise(Error::kOverflow, {"TrimN", "istr"}, list);
  return *whole;
}

}  // namespace

Text StandardObject::AddList(TextView iList, TextView iAdd, TextView SeparateChar) const {
  Text marked = Marked(iList, iAdd.size());
  const std::size_t end = marked.size();
  marked.append(iAdd).append(kMarker);
  // The added item, between the marker that ends the list and its own.
  const TextView item = TextView(marked).substr(end - kMarker.size());
  const bool listed = FindFirst(TextView(marked).substr(0, end), item) != TextView::npos;
  if (listed) marked.resize(end);
  const TextView inside =
      TextView(marked).substr(kMarker.size(), marked.size() - 2 * kMarker.size());
  Text list;
  list.reserve(inside.size());
  AppendReplaced(list, inside, kMarker, SeparateChar.empty() ? kDefaultSeparator : SeparateChar);
  return list;
}

std::vector<Text> StandardObject::ArrayString(TextView i1, TextView i2, TextView i3, TextView i4,
                                              TextView i5, TextView i6, TextView i7, TextView i8,
                                              TextView i9, TextView i10, TextView i11, TextView i12,
                                              TextView i13, TextView i14, TextView i15,
                                              TextView i16, TextView i17, TextView i18,
                                              TextView i19, TextView i20) const {
  return ArrayString2(i1, i2, i3, i4, i5, i6, i7, i8, i9, i10, i11, i12, i13, i14, i15, i16, i17,
                      i18, i19, i20);
}

std::vector<Text> StandardObject::ArrayString2(
    TextView i1, TextView i2, TextView i3, TextView i4, TextView i5, TextView i6, TextView i7,
    TextView i8, TextView i9, TextView i10, TextView i11, TextView i12, TextView i13, TextView i14,
    TextView i15, TextView i16, TextView i17, TextView i18, TextView i19, TextView i20,
    TextView i21, TextView i22, TextView i23, TextView i24, TextView i25, TextView i26,
    TextView i27, TextView i28, TextView i29, TextView i30) const {
  return Elements(i1, {i2,  i3,  i4,  i5,  i6,  i7,  i8,  i9,  i10, i11, i12, i13, i14, i15, i16,
                       i17, i18, i19, i20, i21, i22, i23, i24, i25, i26, i27, i28, i29, i30});
}

Text StandardObject::ReverseList(TextView iList) const {
  const bool open_end = !iList.empty() && !iList.ends_with(u',');
  Text reversed(iList.size() + (open_end ? 1 : 0), u',');
  auto front = reversed.end();
  for (TextView rest = iList; !rest.empty();) {
    const TextView item = TakeField(rest, u',');
    front -= static_cast<std::ptrdiff_t>(item.size()) + 1;
    std::ranges::copy(item, front);
  }
  return reversed;
}

Text StandardObject::TrimN(TextView istr, std::int16_t iNum) const {
  int number = 0;
  // A last field of one character is never read.
  for (TextView rest = istr; rest.size() > 1;) {
    const TextView field = TakeField(rest, u',');
    if (++number == iNum) return d2Str(WholeNumber(field, istr));
  }
  return {};
}

}  // namespace ZQ7Standard
