#include "windows/console.h"

#include <algorithm>
#include <array>

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard;

/// How many bytes at the end of `bytes` begin a letter that is not complete yet.
std::size_t SizeOfPart(const std::string& bytes) {
  const std::size_t most = std::min<std::size_t>(bytes.size(), 3);
  for (std::size_t size = 1; size <= most; ++size) {
    const auto byte = static_cast<unsigned char>(bytes[bytes.size() - size]);
    if (byte < 0x80) return 0;
    if (byte < 0xC0) continue;
    const std::size_t whole = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : 2;
    return size < whole ? size : 0;
  }
  return 0;
}

}  // namespace

bool IsConsole(HANDLE handle) {
  DWORD mode = 0;
  return GetConsoleMode(handle, &mode) != 0;
}

ConsoleOutput::int_type ConsoleOutput::overflow(int_type c) {
  if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
  const char byte = traits_type::to_char_type(c);
  return xsputn(&byte, 1) == 1 ? c : traits_type::eof();
}

std::streamsize ConsoleOutput::xsputn(const char* bytes, std::streamsize count) {
  constexpr std::size_t kMostWaiting = 4096;
  waiting_.append(bytes, static_cast<std::size_t>(count));
  return waiting_.size() < kMostWaiting || sync() == 0 ? count : 0;
}

int ConsoleOutput::sync() {
  const std::size_t whole = waiting_.size() - SizeOfPart(waiting_);
  const Text text = FromUtf8(std::string_view(waiting_).substr(0, whole));
  waiting_.erase(0, whole);
  DWORD written = 0;
  return WriteConsoleW(console_, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) !=
                 0
             ? 0
             : -1;
}

ConsoleInput::int_type ConsoleInput::underflow() {
  constexpr wchar_t kEndKey = 26;  // Ctrl+Z at the beginning of a line
  std::array<wchar_t, 1024> typed;
  DWORD count = 0;
  Text text;
  // Half a pair of surrogates waits for the other one.
  do {
    if (ReadConsoleW(console_, typed.data(), static_cast<DWORD>(typed.size()), &count, nullptr) ==
        0) {
      return traits_type::eof();
    }
    text.append(typed.begin(), typed.begin() + count);
  } while (count > 0 && !IsWellFormed(text));
  if (text.empty() || text.front() == kEndKey) return traits_type::eof();
  std::erase(text, u'\r');
  line_ = Utf8(text);
  setg(line_.data(), line_.data(), line_.data() + line_.size());
  return traits_type::to_int_type(line_.front());
}

}  // namespace ZQ7Tool
