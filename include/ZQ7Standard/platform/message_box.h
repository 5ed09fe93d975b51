#ifndef ZQ7STANDARD_PLATFORM_MESSAGE_BOX_H_
#define ZQ7STANDARD_PLATFORM_MESSAGE_BOX_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <vector>

#include <ZQ7Standard/HideMacros.h>

namespace ZQ7Standard {

/// The picture beside the text of a message.
enum class MessageIcon : std::uint8_t {
  kNone,
  kCritical,  ///< an error that stopped the operation
};

/// The buttons under the text of a message.
enum class MessageButtons : std::uint8_t {
  kOk,
};

/// What a message box shows.
struct Message {
  Text title;
  Text text;  ///< lines end with CR LF
  MessageIcon icon = MessageIcon::kNone;
  MessageButtons buttons = MessageButtons::kOk;
};

/// How the user is told of a problem that the caller is not. A host gives its own to show
/// a window; it is called on the thread of the operation, which goes on when `Show`
/// returns.
class ZQ7STANDARD_EXPORT MessageBox {
 public:
  virtual ~MessageBox();

  virtual void Show(const Message& message) = 0;
};

/// Keeps the messages for the host to take after the operation: how a program without a
/// screen learns of the problems that no operation returns.
class ZQ7STANDARD_EXPORT RecordingMessageBox final : public MessageBox {
 public:
  void Show(const Message& message) override;

  /// Returns the messages since the last call, the oldest first.
  std::vector<Message> Take();

 private:
  std::vector<Message> messages_;
};

/// Writes each message as a line to `stream`, which outlives the box: `title: text` in
/// UTF-8, or the text alone if there is no title. It does not wait.
ZQ7STANDARD_EXPORT std::shared_ptr<MessageBox> StreamMessageBox(std::ostream& stream);

/// The same on the error stream.
ZQ7STANDARD_EXPORT std::shared_ptr<MessageBox> ErrorStreamMessageBox();

/// The machine's own: on Linux the error stream. On Windows it is a window in programs that have
/// windows and a user who sees them, and waits for that user; in others it is the error stream.
ZQ7STANDARD_EXPORT std::shared_ptr<MessageBox> SystemMessageBox();

}  // namespace ZQ7Standard

#include <ZQ7Standard/RestoreMacros.h>

#endif  // ZQ7STANDARD_PLATFORM_MESSAGE_BOX_H_
