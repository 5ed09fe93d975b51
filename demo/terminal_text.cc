#include "terminal_text.h"

#include <algorithm>
#include <cstddef>

namespace InvoiceDemo {
namespace {

using ZQ7Standard::TerminalWidth;
using ZQ7Standard::Text;
using ZQ7Standard::TextView;

std::size_t BlanksTo(int width, TextView text) {
  return static_cast<std::size_t>(std::max(width - TerminalWidth(text), 0));
}

bool IsControl(char16_t c) {
  return c < 0x20 || (c >= 0x7F && c <= 0x9F) || c == 0x2028 || c == 0x2029;
}

}  // namespace

Text AlignLeft(TextView text, int width) {
  return Text(text).append(BlanksTo(width, text), u' ');
}

Text AlignRight(TextView text, int width) {
  return Text().append(BlanksTo(width, text), u' ').append(text);
}

Text OneLine(TextView text) {
  Text line;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!IsControl(text[i])) {
      line += text[i];
    } else if (i == 0 || !IsControl(text[i - 1])) {
      line += u' ';
    }
  }
  return line;
}

}  // namespace InvoiceDemo
