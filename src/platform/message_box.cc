#include <ZQ7Standard/platform/message_box.h>

#include <iostream>
#include <utility>

namespace ZQ7Standard {
namespace {

class BoxOnStream final : public MessageBox {
 public:
  explicit BoxOnStream(std::ostream& stream) : stream_(stream) {}

  void Show(const Message& message) override {
    const Text shown = message.title.empty() ? message.text : message.title + u": " + message.text;
    stream_ << Utf8(shown) + "\n" << std::flush;
  }

 private:
  std::ostream& stream_;
};

}  // namespace

void RecordingMessageBox::Show(const Message& message) {
  messages_.push_back(message);
}

std::vector<Message> RecordingMessageBox::Take() {
  return std::exchange(messages_, {});
}

std::shared_ptr<MessageBox> StreamMessageBox(std::ostream& stream) {
  return std::make_shared<BoxOnStream>(stream);
}

std::shared_ptr<MessageBox> ErrorStreamMessageBox() {
  return StreamMessageBox(std::cerr);
}

}  // namespace ZQ7Standard
