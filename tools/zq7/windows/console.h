#ifndef ZQ7STANDARD_TOOLS_ZQ7_WINDOWS_CONSOLE_H_
#define ZQ7STANDARD_TOOLS_ZQ7_WINDOWS_CONSOLE_H_

#include <ZQ7Standard/Types.h>
#include <windows.h>

#include <streambuf>
#include <string>

namespace ZQ7Tool {

/// Whether a standard handle is a console, which shows every letter only as UTF-16.
bool IsConsole(HANDLE handle);

/// Shows UTF-8 on a console, in whatever pieces it comes.
class ConsoleOutput final : public std::streambuf {
 public:
  explicit ConsoleOutput(HANDLE console) : console_(console) {}

 protected:
  int_type overflow(int_type c) override;
  std::streamsize xsputn(const char* bytes, std::streamsize count) override;
  int sync() override;

 private:
  HANDLE console_;
  std::string waiting_;
};

/// Reads what is typed at a console, as UTF-8.
class ConsoleInput final : public std::streambuf {
 public:
  explicit ConsoleInput(HANDLE console) : console_(console) {}

 protected:
  int_type underflow() override;

 private:
  HANDLE console_;
  std::string line_;
};

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_WINDOWS_CONSOLE_H_
