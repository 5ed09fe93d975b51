#include "formats/clean_text.h"

#include "base/fields.h"

namespace ZQ7Standard {
namespace {

constexpr std::size_t kLongestText = 256;  // bytes

constexpr bool IsControl(char16_t c) {
  return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

}  // namespace

Text CleanText(TextView text) {
  Text clean(text.substr(0, 4 * kLongestText));
  std::erase_if(clean, IsControl);
  clean = TrimBack(TrimFront(clean));
  while (Utf8(clean).size() > kLongestText) clean.pop_back();
  return clean;
}

}  // namespace ZQ7Standard
