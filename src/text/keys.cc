#include <ZQ7Standard/StandardObject.h>

#include <algorithm>
#include <cstdlib>

#include "base/ascii.h"
#include "base/case_mapping.h"
#include "base/fields.h"

namespace ZQ7Standard {
namespace {

// Characters that would break the hosts' query texts and lists, and the blank.
constexpr TextView kForbidden = u"';,%";
constexpr TextView kForbiddenAndBlank = u"';,% ";

constexpr std::int16_t kOn = 1;
constexpr int kMaxAddressPart = 256;

constexpr bool IsForbidden(char16_t c) {
  return kForbidden.find(c) != TextView::npos;
}

constexpr bool IsEnglishOrDigit(char16_t c) {
  return IsAsciiLetter(c) || IsAsciiDigit(c);
}

}  // namespace

Text StandardObject::FormatPrimaryKey(TextView InputKeyValue, std::int16_t /*PrimaryKeyMode*/,
                                      std::int16_t /*MaxLen*/, std::int16_t AcceptInsideSpace,
                                      std::int16_t NumberOnly, std::int16_t AutoUpperCase,
                                      std::int16_t AcceptOnlyEnglishCharAndNumber,
                                      std::int16_t AcceptInsideMultiSpace,
                                      std::int16_t /*Reserve2*/, std::int16_t /*Reserve3*/,
                                      std::int16_t /*Reserve4*/) const {
  const TextView trimmed =
      TrimBack(TrimFront(InputKeyValue, kForbiddenAndBlank), kForbiddenAndBlank);
  Text key;
  key.reserve(trimmed.size());
  bool after_blank = false;
  for (const char16_t typed : trimmed) {
    if (IsForbidden(typed)) continue;
    const char16_t c = AutoUpperCase == kOn ? ToUpper(typed) : typed;
    if (NumberOnly == kOn && !IsAsciiDigit(c)) continue;
    if (AcceptOnlyEnglishCharAndNumber == kOn && !IsEnglishOrDigit(c)) continue;
    const bool blank = c == u' ';
    if (blank && AcceptInsideSpace != kOn) continue;
    if (blank && after_blank && AcceptInsideMultiSpace == 0) continue;
    after_blank = blank;  // a line break ends a run of blanks, although it is dropped
    if (c != u'\r' && c != u'\n') key.push_back(c);
  }
  return key;
}

Text StandardObject::FormatSerialNo(TextView InputKeyValue, std::int16_t MaxLen,
                                    std::int16_t AcceptInsideSpace, std::int16_t NumberOnly,
                                    std::int16_t AutoUpperCase,
                                    std::int16_t AcceptOnlyEnglishCharAndNumber) const {
  return FormatPrimaryKey(InputKeyValue, 0, MaxLen, AcceptInsideSpace, NumberOnly, AutoUpperCase,
                          AcceptOnlyEnglishCharAndNumber);
}

Text StandardObject::FormatBarCode(TextView InputBarCodeValue, std::int16_t /*BarcodeType*/) const {
  return FormatPrimaryKey(InputBarCodeValue, 0, 0, 0, 0, kOn, kOn);
}

Text StandardObject::FormatIP(TextView StringIP, bool ForceIPV4) const {
  const auto parts = std::ranges::count(StringIP, u'.') + 1;
  if (parts != 4 && (parts != 6 || ForceIPV4)) return {};
  Text address;
  address.reserve(StringIP.size());
  bool in_range = true;
  TextView rest = StringIP;
  for (int part = 0; part < parts; ++part) {
    const int value = std::abs(int{StrInt(TakeField(rest, u'.'))});
    in_range = in_range && value <= kMaxAddressPart;
    if (part > 0) address.push_back(u'.');
    AppendNumber(address, value, 1);
  }
  return in_range ? address : Text();
}

}  // namespace ZQ7Standard
