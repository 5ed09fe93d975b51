#include <ZQ7Standard/platform/message_box.h>

namespace ZQ7Standard {

std::shared_ptr<MessageBox> SystemMessageBox() {
  return ErrorStreamMessageBox();
}

}  // namespace ZQ7Standard
