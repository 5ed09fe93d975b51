#include <ZQ7Standard/StandardObject.h>

#include <array>
#include <cstddef>

#include "base/code_page.h"
#include "text/md5.h"

namespace ZQ7Standard {
namespace {

constexpr std::size_t kPiece = 4096;  // characters converted at a time

constexpr char16_t HexDigit(unsigned value) {
  return static_cast<char16_t>(value < 10 ? u'0' + value : u'a' + value - 10);
}

Text HexText(const Md5Digest& digest) {
  Text text(2 * digest.size(), u'0');
  for (std::size_t i = 0; i < digest.size(); ++i) {
    text[2 * i] = HexDigit(digest[i] >> 4);
    text[2 * i + 1] = HexDigit(digest[i] & 0x0F);
  }
  return text;
}

}  // namespace

Text StandardObject::CalculateMD5(TextView strMessage) const {
  Md5 md5;
  std::array<char, kPiece> bytes;
  for (TextView rest = strMessage; !rest.empty();) {
    const TextView piece = rest.substr(0, kPiece);
    EncodeCodePage(piece, bytes.data());
    md5.Update({bytes.data(), piece.size()});
    rest.remove_prefix(piece.size());
  }
  return HexText(md5.Finish());
}

}  // namespace ZQ7Standard
