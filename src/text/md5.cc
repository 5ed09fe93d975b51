#include "text/md5.h"

#include <algorithm>
#include <bit>

namespace ZQ7Standard {
namespace {

constexpr std::size_t kBlockSize = 64;
constexpr std::size_t kLengthSize = 8;  // of the message length at the end of the last block

using Words = std::array<std::uint32_t, 16>;

// Integer part of 2^32 times |sin(step)|, step from 1 in radians (RFC 1321, 3.4).
constexpr std::array<std::uint32_t, 64> kSines = {
    0xD76AA478, 0xE8C7B756, 0x242070DB, 0xC1BDCEEE, 0xF57C0FAF, 0x4787C62A, 0xA8304613, 0xFD469501,
    0x698098D8, 0x8B44F7AF, 0xFFFF5BB1, 0x895CD7BE, 0x6B901122, 0xFD987193, 0xA679438E, 0x49B40821,
    0xF61E2562, 0xC040B340, 0x265E5A51, 0xE9B6C7AA, 0xD62F105D, 0x02441453, 0xD8A1E681, 0xE7D3FBC8,
    0x21E1CDE6, 0xC33707D6, 0xF4D50D87, 0x455A14ED, 0xA9E3E905, 0xFCEFA3F8, 0x676F02D9, 0x8D2A4C8A,
    0xFFFA3942, 0x8771F681, 0x6D9D6122, 0xFDE5380C, 0xA4BEEA44, 0x4BDECFA9, 0xF6BB4B60, 0xBEBFBC70,
    0x289B7EC6, 0xEAA127FA, 0xD4EF3085, 0x04881D05, 0xD9D4D039, 0xE6DB99E5, 0x1FA27CF8, 0xC4AC5665,
    0xF4292244, 0x432AFF97, 0xAB9423A7, 0xFC93A039, 0x655B59C3, 0x8F0CCC92, 0xFFEFF47D, 0x85845DD1,
    0x6FA87E4F, 0xFE2CE6E0, 0xA3014314, 0x4E0811A1, 0xF7537E82, 0xBD3AF235, 0x2AD7D2BB, 0xEB86D391};

/// One of the four rounds of sixteen steps: its mixing function, the word of its first step and the
/// distance to each next one, and its repeating rotations.
struct FirstRound {
  static constexpr std::size_t kIndex = 0;
  static constexpr std::size_t kFirstWord = 0;
  static constexpr std::size_t kStride = 1;
  static constexpr std::array<int, 4> kRotations = {7, 12, 17, 22};
  static std::uint32_t Mix(std::uint32_t b, std::uint32_t c, std::uint32_t d) {
    return d ^ (b & (c ^ d));
  }
};

struct SecondRound {
  static constexpr std::size_t kIndex = 1;
  static constexpr std::size_t kFirstWord = 1;
  static constexpr std::size_t kStride = 5;
  static constexpr std::array<int, 4> kRotations = {5, 9, 14, 20};
  // The two parts share no bit, so a sum equals "or", and one of its terms does not depend on the
  // previous step.
  static std::uint32_t Mix(std::uint32_t b, std::uint32_t c, std::uint32_t d) {
    return (c & ~d) + (b & d);
  }
};

struct ThirdRound {
  static constexpr std::size_t kIndex = 2;
  static constexpr std::size_t kFirstWord = 5;
  static constexpr std::size_t kStride = 3;
  static constexpr std::array<int, 4> kRotations = {4, 11, 16, 23};
  static std::uint32_t Mix(std::uint32_t b, std::uint32_t c, std::uint32_t d) {
    return b ^ (c ^ d);
  }
};

struct FourthRound {
  static constexpr std::size_t kIndex = 3;
  static constexpr std::size_t kFirstWord = 0;
  static constexpr std::size_t kStride = 7;
  static constexpr std::array<int, 4> kRotations = {6, 10, 15, 21};
  static std::uint32_t Mix(std::uint32_t b, std::uint32_t c, std::uint32_t d) {
    return c ^ (b | ~d);
  }
};

template <typename Round, std::size_t kStep>
void Step(std::uint32_t& a, std::uint32_t b, std::uint32_t c, std::uint32_t d, const Words& words) {
  constexpr std::size_t kWord = (Round::kFirstWord + kStep * Round::kStride) % 16;
  a += words[kWord] + kSines[16 * Round::kIndex + kStep] + Round::Mix(b, c, d);
  a = b + std::rotl(a, Round::kRotations[kStep % 4]);
}

template <typename Round, std::size_t kFirst = 0>
void Run(std::array<std::uint32_t, 4>& state, const Words& words) {
  auto& [a, b, c, d] = state;
  Step<Round, kFirst>(a, b, c, d, words);
  Step<Round, kFirst + 1>(d, a, b, c, words);
  Step<Round, kFirst + 2>(c, d, a, b, words);
  Step<Round, kFirst + 3>(b, c, d, a, words);
  if constexpr (kFirst + 4 < 16) Run<Round, kFirst + 4>(state, words);
}

std::uint32_t LoadLittleEndian(const char* bytes) {
  std::uint32_t word = 0;
  for (int i = 3; i >= 0; --i) word = word << 8 | static_cast<std::uint8_t>(bytes[i]);
  return word;
}

template <typename Byte>
void StoreLittleEndian(std::uint64_t number, std::size_t size, Byte* bytes) {
  for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<Byte>(number >> 8 * i);
}

}  // namespace

void Md5::Update(std::string_view bytes) {
  size_ += bytes.size();
  if (partial_size_ > 0) {
    const std::string_view taken = bytes.substr(0, kBlockSize - partial_size_);
    std::ranges::copy(taken, partial_.data() + partial_size_);
    bytes.remove_prefix(taken.size());
    partial_size_ += taken.size();
    if (partial_size_ < kBlockSize) return;
    Absorb({partial_.data(), kBlockSize});
  }
  const std::size_t whole = bytes.size() - bytes.size() % kBlockSize;
  Absorb(bytes.substr(0, whole));
  bytes.remove_prefix(whole);
  std::ranges::copy(bytes, partial_.data());
  partial_size_ = bytes.size();
}

Md5Digest Md5::Finish() {
  std::array<char, 2 * kBlockSize> end{};
  std::copy_n(partial_.data(), partial_size_, end.data());
  end[partial_size_] = static_cast<char>(0x80);
  const bool fits = partial_size_ + 1 + kLengthSize <= kBlockSize;
  const std::size_t size = fits ? kBlockSize : 2 * kBlockSize;
  StoreLittleEndian(8 * size_, kLengthSize, end.data() + size - kLengthSize);
  Absorb({end.data(), size});
  Md5Digest digest;
  for (std::size_t i = 0; i < state_.size(); ++i) StoreLittleEndian(state_[i], 4, &digest[4 * i]);
  return digest;
}

void Md5::Absorb(std::string_view blocks) {
  auto state = state_;
  for (; !blocks.empty(); blocks.remove_prefix(kBlockSize)) {
    Words words;
    for (std::size_t i = 0; i < words.size(); ++i) words[i] = LoadLittleEndian(&blocks[4 * i]);
    const auto before = state;
    Run<FirstRound>(state, words);
    Run<SecondRound>(state, words);
    Run<ThirdRound>(state, words);
    Run<FourthRound>(state, words);
    for (std::size_t i = 0; i < state.size(); ++i) state[i] += before[i];
  }
  state_ = state;
}

}  // namespace ZQ7Standard
