#include "tests/support/ascii_files.h"

#include <stdlib.h>

#include <fstream>
#include <iterator>

namespace ZQ7Standard {
namespace {

class FakeTimeText final : public TimeTextSource {
 public:
  Text LongTime(OleDate moment) override {
    return FromUtf8(std::to_string(moment.Hour()) + ":" + std::to_string(moment.Minute()));
  }
};

std::filesystem::path NewFolder() {
  std::string name = std::filesystem::temp_directory_path() / "zq7.XXXXXX";
  return mkdtemp(name.data());
}

}  // namespace

void FakeMessageBox::Show(const Message& message) {
  shown_ += "[" + Utf8(message.title + u": " + message.text) + "]";
}

AsciiFiles::AsciiFiles(std::shared_ptr<FileRewriter> rewriter)
    : folder_(NewFolder()), box_(std::make_shared<FakeMessageBox>()) {
  object = ASCIIObject({.file_rewriter = std::move(rewriter),
                        .message_box = box_,
                        .clock = FixedClock(TestNow()),
                        .time_text = std::make_shared<FakeTimeText>()});
  object.SetDisableMsgLevel(1);
}

AsciiFiles::~AsciiFiles() {
  permissions(folder_, std::filesystem::perms::owner_all);
  std::filesystem::remove_all(folder_);
}

std::string AsciiFiles::After(const std::optional<std::string>& bytes,
                              const std::function<void()>& change) {
  std::filesystem::remove(File());
  if (bytes) Write(*bytes);
  change();
  return (exists(File()) ? Read() : "none") + TakeShown();
}

void AsciiFiles::Write(std::string_view bytes) const {
  std::ofstream(File(), std::ios::binary) << bytes;
}

std::string AsciiFiles::Read() const {
  std::ifstream file(File(), std::ios::binary);
  return {std::istreambuf_iterator(file), {}};
}

}  // namespace ZQ7Standard
