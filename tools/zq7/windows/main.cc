// The command-line tool: calls the library's classes by name.

#include <ZQ7Standard/Types.h>
#include <fcntl.h>
#include <io.h>
#include <stdio.h>
#include <windows.h>

#include <iostream>
#include <optional>

#include "program.h"
#include "windows/console.h"

namespace {

std::string Utf8Word(const wchar_t* word) {
  const std::wstring_view text = word;
  return ZQ7Standard::Utf8(ZQ7Standard::Text(text.begin(), text.end()));
}

/// Gives a stream a console's buffer until the end of the program; what is not a console takes and
/// gives bytes as they are.
template <typename Buffer>
class OnConsole {
 public:
  OnConsole(std::ios& stream, DWORD handle_number, FILE* file) : stream_(stream) {
    const HANDLE handle = GetStdHandle(handle_number);
    _setmode(_fileno(file), _O_BINARY);
    if (!ZQ7Tool::IsConsole(handle)) return;
    buffer_.emplace(handle);
    former_ = stream.rdbuf(&*buffer_);
  }
  ~OnConsole() {
    if (!buffer_) return;
    buffer_->pubsync();
    stream_.rdbuf(former_);
  }
  OnConsole(const OnConsole&) = delete;
  OnConsole& operator=(const OnConsole&) = delete;

 private:
  std::ios& stream_;
  std::optional<Buffer> buffer_;
  std::streambuf* former_ = nullptr;
};

}  // namespace

int wmain(int argc, wchar_t** argv) {
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  const OnConsole<ZQ7Tool::ConsoleInput> in(std::cin, STD_INPUT_HANDLE, stdin);
  const OnConsole<ZQ7Tool::ConsoleOutput> out(std::cout, STD_OUTPUT_HANDLE, stdout);
  const OnConsole<ZQ7Tool::ConsoleOutput> err(std::cerr, STD_ERROR_HANDLE, stderr);
  std::vector<std::string> words;
  words.reserve(static_cast<std::size_t>(argc));
  for (int i = 1; i < argc; ++i) words.push_back(Utf8Word(argv[i]));
  return ZQ7Tool::RunProgram(words, std::cin, std::cout, std::cerr);
}
