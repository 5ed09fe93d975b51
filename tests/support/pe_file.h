#ifndef ZQ7STANDARD_TESTS_SUPPORT_PE_FILE_H_
#define ZQ7STANDARD_TESTS_SUPPORT_PE_FILE_H_

#include <cstddef>
#include <cstdint>
#include <string>

namespace ZQ7Standard {

// Where the parts of a `PeFile` with 64-bit headers are.
inline constexpr std::size_t kPeHeader = 64;
inline constexpr std::size_t kPeResources = kPeHeader + 24 + 112 + 16;
inline constexpr std::size_t kPeSection = kPeHeader + 24 + 136;
inline constexpr std::size_t kPeLists = kPeSection + 40;
inline constexpr std::size_t kPeEntry = kPeLists + 3 * 24;
inline constexpr std::size_t kPeFixedInfo = kPeEntry + 16 + 40;

/// The smallest file of Windows with a version, which is 1.2.3.65535, and with that magic number.
inline std::string PeFile(std::uint16_t magic) {
  constexpr std::uint32_t kBase = 0x1000;  // of the section in memory
  std::string bytes(kPeFixedInfo + 52, '\0');
  const auto put = [&bytes](std::size_t at, std::uint32_t number, std::size_t size = 4) {
    for (std::size_t i = 0; i < size; ++i) bytes[at + i] = static_cast<char>(number >> (8 * i));
  };
  bytes.replace(0, 2, "MZ");
  put(60, kPeHeader);
  bytes.replace(kPeHeader, 2, "PE");
  put(kPeHeader + 6, 1, 2);  // sections
  put(kPeHeader + 20, 136, 2);
  put(kPeHeader + 24, magic, 2);
  put(magic == 0x20B ? kPeResources : kPeResources - 16, kBase);
  put(kPeSection + 12, kBase);
  put(kPeSection + 16, static_cast<std::uint32_t>(bytes.size() - kPeLists));
  put(kPeSection + 20, kPeLists);
  for (std::uint32_t list = 0; list < 3; ++list) {  // type, name, language
    const std::size_t at = kPeLists + std::size_t{list} * 24;
    put(at + 14, 1, 2);
    put(at + 16, list == 0 ? 16 : list);
    put(at + 20, (list + 1) * 24 | (list < 2 ? 0x80000000U : 0U));
  }
  put(kPeEntry, kBase + 3 * 24 + 16);
  put(kPeFixedInfo, 0xFEEF04BD);
  put(kPeFixedInfo + 8, 1U << 16U | 2U);
  put(kPeFixedInfo + 12, 3U << 16U | 0xFFFFU);
  return bytes;
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_PE_FILE_H_
