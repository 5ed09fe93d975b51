#ifndef ZQ7STANDARD_TESTS_SUPPORT_SMALL_PICTURES_H_
#define ZQ7STANDARD_TESTS_SUPPORT_SMALL_PICTURES_H_

#include <cstddef>
#include <string>

namespace ZQ7Standard {

// PNG files in hexadecimal digits, of one pixel but the last.
inline constexpr const char* kTransparentPng =
    "89504e470d0a1a0a0000000d49484452000000010000000108060000001f15c4890000000d4944415478da631050"
    "306000000105006102f8e7e10000000049454e44ae426082";
inline constexpr const char* kHalfBlackPng =
    "89504e470d0a1a0a0000000d49484452000000010000000108060000001f15c4890000000d4944415478da636060"
    "606800000085008145ca81970000000049454e44ae426082";
/// 300 x 150 dots per inch, 16 bits.
inline constexpr const char* kDensePng =
    "89504e470d0a1a0a0000000d4948445200000001000000011002000000c0e78f9d000000097048597300002e2300"
    "001712019542e6db0000000f4944415478da6338c198c264c40c0006b90165d414d0190000000049454e44ae42608"
    "2";
inline constexpr const char* kGrayPng =
    "89504e470d0a1a0a0000000d49484452000000010000000108000000003a7e9b550000000a4944415478da634803"
    "00006800677e7051320000000049454e44ae426082";
/// Two rows of red, red, blue.
inline constexpr const char* kRedAndBluePng =
    "89504e470d0a1a0a0000000d49484452000000030000000208020000001216f14d000000114944415478da63f8cf"
    "c000442002ce02003dd605fbaa00c5e60000000049454e44ae426082";

inline std::string FromHex(const std::string& digits) {
  std::string bytes;
  for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
    bytes.push_back(static_cast<char>(std::stoi(digits.substr(i, 2), nullptr, 16)));
  }
  return bytes;
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_SMALL_PICTURES_H_
