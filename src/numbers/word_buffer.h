#ifndef ZQ7STANDARD_SRC_NUMBERS_WORD_BUFFER_H_
#define ZQ7STANDARD_SRC_NUMBERS_WORD_BUFFER_H_

#include <ZQ7Standard/Types.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace ZQ7Standard {

/// A word of an amount, at most 15 characters.
class Word {
 public:
  constexpr Word() = default;

  /// The two texts joined.
  constexpr explicit Word(TextView first, TextView second = {})
      : size_(static_cast<char16_t>(first.size() + second.size())) {
    std::ranges::copy(second, std::ranges::copy(first, text_.begin()).out);
  }

 private:
  friend class WordBuffer;

  std::array<char16_t, 15> text_{};
  char16_t size_ = 0;
};

/// The words of one amount, up to the 309 digits of the largest double.
class WordBuffer {
 public:
  /// Copies all 15 characters, which is much faster than copying by length.
  void Append(const Word& word) {
    std::ranges::copy(word.text_, text_.begin() + static_cast<std::ptrdiff_t>(size_));
    size_ += word.size_;
  }

  TextView View() const { return {text_.data(), size_}; }

 private:
  static constexpr std::size_t kMaxWords = 309 + 6;  // a word per digit, and the units

  std::array<char16_t, kMaxWords * 15> text_;
  std::size_t size_ = 0;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_NUMBERS_WORD_BUFFER_H_
