#include "remark.h"

#include <ZQ7Standard/Types.h>

#include <stdexcept>
#include <utility>

#include "terminal_text.h"

namespace InvoiceDemo {

void Remark::Show(const ZQ7Standard::Message& message) {
  text_ = ZQ7Standard::Utf8(OneLine(message.text));
}

void Remark::ThrowIfAny(const std::string& what) {
  const std::string text = std::exchange(text_, {});
  if (!text.empty()) throw std::runtime_error(what + ": " + text);
}

}  // namespace InvoiceDemo
