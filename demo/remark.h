#ifndef DEMO_REMARK_H_
#define DEMO_REMARK_H_

#include <ZQ7Standard/platform/message_box.h>

#include <string>

namespace InvoiceDemo {

/// Keeps the message of an operation that tells of its failure in no other way.
class Remark final : public ZQ7Standard::MessageBox {
 public:
  void Show(const ZQ7Standard::Message& message) override;

  /// Throws the message kept, if there is one, as a `std::runtime_error` of `what`
  /// and its text, and forgets it.
  void ThrowIfAny(const std::string& what);

 private:
  std::string text_;
};

}  // namespace InvoiceDemo

#endif  // DEMO_REMARK_H_
