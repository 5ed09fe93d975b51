#include <ZQ7Standard/platform/message_box.h>

#include <iostream>
#include <utility>

namespace ZQ7Standard {
namespace {

class StreamMessageBox final : public MessageBox {
 public:
  void Show(const Message& message) override {
    const Text shown = message.title.empty() ? message.text : message.title + u": " + message.text;
    std::cerr << Utf8(shown) + "\n" << std::flush;
  }
};

}  // namespace

void RecordingMessageBox::Show(const Message& message) {
  messages_.push_back(message);
}

std::vector<Message> RecordingMessageBox::Take() {
  return std::exchange(messages_, {});
}

std::shared_ptr<MessageBox> ErrorStreamMessageBox() {
  return std::make_shared<StreamMessageBox>();
}

}  // namespace ZQ7Standard
