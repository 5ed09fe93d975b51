#ifndef ZQ7STANDARD_TESTS_SUPPORT_ASCII_FILES_H_
#define ZQ7STANDARD_TESTS_SUPPORT_ASCII_FILES_H_

#include <ZQ7Standard/ASCIIObject.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "tests/support/fakes.h"

namespace ZQ7Standard {

/// Keeps what it was to show: "[title: text]", one behind the other.
class FakeMessageBox final : public MessageBox {
 public:
  void Show(const Message& message) override;
  std::string TakeShown() { return std::exchange(shown_, {}); }

 private:
  std::string shown_;
};

/// A folder with one file of known bytes, and an object of message level 1 that works
/// on it at 2024-01-15 09:30:00, which its time text writes as "9:30".
class AsciiFiles {
 public:
  explicit AsciiFiles(std::shared_ptr<FileRewriter> rewriter = nullptr);
  AsciiFiles(const AsciiFiles&) = delete;
  AsciiFiles& operator=(const AsciiFiles&) = delete;
  ~AsciiFiles();

  ASCIIObject object;

  /// The bytes of the file after `change`, with what was shown behind them; "none" when
  /// there is no file. Before it the file holds `bytes`, or is not there.
  std::string After(const std::optional<std::string>& bytes, const std::function<void()>& change);

  /// What was shown since it was last asked for.
  std::string TakeShown() { return box_->TakeShown(); }

  const std::filesystem::path& Folder() const { return folder_; }
  std::filesystem::path File() const { return folder_ / "set.ini"; }
  Text Path() const { return PathText(File()); }
  void Write(std::string_view bytes) const;
  std::string Read() const;

 private:
  std::filesystem::path folder_;
  std::shared_ptr<FakeMessageBox> box_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_ASCII_FILES_H_
