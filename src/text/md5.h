#ifndef ZQ7STANDARD_SRC_TEXT_MD5_H_
#define ZQ7STANDARD_SRC_TEXT_MD5_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ZQ7Standard {

using Md5Digest = std::array<std::uint8_t, 16>;

/// The MD5 digest (RFC 1321) of bytes added piece by piece.
class Md5 {
 public:
  void Update(std::string_view bytes);

  /// The digest of all bytes so far; the last use of the object.
  Md5Digest Finish();

 private:
  void Absorb(std::string_view blocks);

  std::array<std::uint32_t, 4> state_ = {0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476};
  std::array<char, 64> partial_;  // the bytes after the last whole block
  std::size_t partial_size_ = 0;
  std::uint64_t size_ = 0;  // of all bytes
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_TEXT_MD5_H_
