#ifndef ZQ7STANDARD_TESTS_SUPPORT_ASCII_FILES_H_
#define ZQ7STANDARD_TESTS_SUPPORT_ASCII_FILES_H_

#include <ZQ7Standard/ASCIIObject.h>
#include <ZQ7Standard/platform/clock.h>
#include <ZQ7Standard/platform/file_rewrite.h>
#include <ZQ7Standard/platform/message_box.h>
#include <ZQ7Standard/platform/path_text.h>
#include <ZQ7Standard/platform/time_text.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/support/fakes.h"
#include "tests/support/temp_folder.h"

namespace ZQ7Standard {

struct FakeTimeText final : TimeTextSource {
  Text LongTime(OleDate moment) override { return u"time " + FromUtf8(IsoText(moment)); }
};

/// A folder, a file in it, and an object of message level 1 that works on them.
class AsciiFiles {
 public:
  explicit AsciiFiles(std::shared_ptr<FileRewriter> rewriter = nullptr) {
    object = ASCIIObject({.file_rewriter = rewriter,
                          .clock = FixedClock(TestNow()),
                          .time_text = std::make_shared<FakeTimeText>(),
                          .message_box = box_});
    object.SetDisableMsgLevel(1);
  }

  std::filesystem::path Folder() const { return folder_.Native(); }
  std::filesystem::path File() const { return Folder() / "set.ini"; }
  Text Path() const { return PathText(File()); }
  std::string TakeShown() {
    std::string texts;
    for (const Message& message : box_->Take()) {
      texts += Utf8(message.title + u": " + message.text);
    }
    return texts;
  }

  void Write(std::string_view bytes) const { std::ofstream(File(), std::ios::binary) << bytes; }
  std::string Read() const {
    std::ifstream file(File(), std::ios::binary);
    return {std::istreambuf_iterator(file), {}};
  }

  /// The bytes of the file after `change`, and what was shown. Before that the file contains
  /// `bytes`, or does not exist.
  std::string After(const std::optional<std::string>& bytes, const auto& change) {
    std::filesystem::remove(File());
    if (bytes) Write(*bytes);
    change();
    return Read() + TakeShown();
  }

  ASCIIObject object;

 private:
  TempFolder folder_;
  std::shared_ptr<RecordingMessageBox> box_ = std::make_shared<RecordingMessageBox>();
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_ASCII_FILES_H_
