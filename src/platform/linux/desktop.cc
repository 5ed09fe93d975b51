#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/desktop.h>
#include <ZQ7Standard/platform/path_text.h>
#include <ZQ7Standard/platform/programs.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>

#include "formats/address.h"
#include "platform/linux/descriptor.h"
#include "platform/linux/file_errors.h"
#include "platform/linux/native_path.h"
#include "platform/linux/system_calls.h"

namespace ZQ7Standard {
namespace {

constexpr TextView kOpener = u"xdg-open";
constexpr TextView kComposer = u"xdg-email";
constexpr mode_t kAnyExecution = S_IXUSR | S_IXGRP | S_IXOTH;

bool IsSet(const char* variable) {
  const char* const value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

/// Without a display the openers would start a browser in a terminal, and wait for it.
void RequireDisplay() {
  if (IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY")) return;
  throw RunTimeError(Error::kCannotCreateObject, "there is no display");
}

/// A document or a folder may be opened, but nothing that would run.
void RequireDocument(const std::string& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) {
    throw RunTimeError(Error::kInvalidArgument, "there is no file " + path);
  }
  const bool document = S_ISREG(status.st_mode) && (status.st_mode & kAnyExecution) == 0 &&
                        !path.ends_with(".desktop");
  if (document || S_ISDIR(status.st_mode)) return;
  throw RunTimeError(Error::kInvalidArgument, path + " is not a document");
}

/// A new folder for the user alone; nothing tells when the document in it has been read.
std::string NewPrivateFolder() {
  const char* const folder = std::getenv("XDG_RUNTIME_DIR");
  const bool is_set = folder != nullptr && *folder != '\0';
  const std::string parent = is_set ? folder : std::filesystem::temp_directory_path().string();
  std::string name = parent + "/zq7-XXXXXX";
  if (mkdtemp(name.data()) == nullptr) {
    throw FileError(errno, "create a folder in", FromUtf8(parent), parent + "/");
  }
  return name;
}

void WriteDocument(const std::string& path, std::string_view bytes) {
  const Descriptor file(
      open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
  if (!file || !WriteAll(kSystemCalls, file.Number(), bytes)) {
    throw FileError(errno, "write", FromUtf8(path), path);
  }
}

class LinuxDesktop final : public Desktop {
 public:
  explicit LinuxDesktop(DriveMap drives)
      : drives_(std::move(drives)), programs_(SystemPrograms()) {}

  void Open(std::string_view address) override {
    if (const auto path = FileOfAddress(address)) {
      RequireDocument(*path);
    } else if (address.starts_with("file:")) {
      throw RunTimeError(Error::kInvalidArgument, "the file is on another machine");
    }
    RequireDisplay();
    Start(kOpener, {FromUtf8(address)});
  }

  void Compose(std::string_view address, const std::vector<Text>& attachments) override {
    std::vector<Text> arguments;
    for (const Text& attachment : attachments) {
      arguments.insert(arguments.end(), {u"--attach", FromUtf8(Attachment(attachment))});
    }
    RequireDisplay();
    if (attachments.empty()) return Start(kOpener, {FromUtf8(address)});
    arguments.insert(arguments.begin(), u"--utf8");
    arguments.push_back(FromUtf8(address));
    Start(kComposer, std::move(arguments));
  }

  void OpenDocument(std::string_view name, std::string_view bytes) override {
    RequireDisplay();
    const std::string folder = NewPrivateFolder();
    try {
      const std::string path = folder + "/" + std::string(name);
      WriteDocument(path, bytes);
      Start(kOpener, {FromUtf8(path)});
    } catch (const RunTimeError&) {
      std::error_code ignored;
      std::filesystem::remove_all(folder, ignored);
      throw;
    }
  }

 private:
  /// The whole path of a file: the composer may run in another folder.
  std::string Attachment(TextView path) const {
    const std::string native = NativePath(path, drives_);
    struct stat status {};
    if (stat(native.c_str(), &status) != 0) throw FileError(errno, "attach", path, native);
    return std::filesystem::absolute(native).string();
  }

  void Start(TextView program, std::vector<Text> arguments) const {
    try {
      programs_->Start({.program = Text(program), .arguments = std::move(arguments)});
    } catch (const RunTimeError& error) {
      if (error.Number() != static_cast<int>(Error::kFileNotFound)) throw;
      throw RunTimeError(Error::kCannotCreateObject, Utf8(program) + " is not installed");
    }
  }

  DriveMap drives_;
  std::shared_ptr<Programs> programs_;
};

}  // namespace

std::shared_ptr<Desktop> SystemDesktop(DriveMap drives) {
  return std::make_shared<LinuxDesktop>(std::move(drives));
}

}  // namespace ZQ7Standard
