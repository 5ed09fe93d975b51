#include <ZQ7Standard/platform/file_contents.h>
#include <fcntl.h>

#include <cerrno>
#include <system_error>
#include <utility>

#include "platform/linux/file_errors.h"
#include "platform/linux/file_place.h"
#include "platform/linux/native_path.h"
#include "platform/linux/new_file.h"
#include "platform/linux/open_file.h"

namespace ZQ7Standard {
namespace {

// Opens pipes and devices without waiting, only to reject them.
constexpr int kForReading = O_RDONLY | O_NONBLOCK;
constexpr int kForReadingStart = O_RDWR | O_CREAT | O_NONBLOCK;
constexpr int kForAppending = O_WRONLY | O_CREAT | O_APPEND | O_NONBLOCK;

/// Refuses to write a read-only file, even for privileged users.
void RequireWritable(const OpenFile& file, const struct stat& status) {
  if ((status.st_mode & S_IWUSR) == 0) file.Fail(EACCES, "write");
}

/// Creates a file; false if another process creates it first.
bool CreateAt(const FilePlace& place, std::string_view bytes) {
  constexpr unsigned kAsTheUmaskLets = 0666;
  try {
    NewFile file(place.folder.Descriptor(), bytes, kAsTheUmaskLets);
    if (!file.TakeName(place.name)) return false;
  } catch (const std::system_error& error) {
    place.folder.Fail(error.code().value(), "create");
  }
  SyncFolder(place);
  return true;
}

class LinuxFileReader final : public FileReader {
 public:
  explicit LinuxFileReader(DriveMap drives) : drives_(std::move(drives)) {}

  std::optional<std::string> ReadAll(TextView path) override {
    const auto file = OpenFile::IfThere(path, NativePath(path, drives_), kForReading);
    if (!file) return std::nullopt;
    const struct stat status = file->Status();
    if (S_ISDIR(status.st_mode)) return std::nullopt;
    if (!S_ISREG(status.st_mode)) file->Fail(EINVAL, "read");
    return file->ReadToEnd(status);
  }

  std::size_t ReadStart(TextView path, std::span<char> buffer) override {
    const OpenFile file(path, NativePath(path, drives_), kForReadingStart);
    const struct stat status = file.Status();
    if (!S_ISREG(status.st_mode)) file.Fail(EINVAL, "read");
    RequireWritable(file, status);
    return file.Read(buffer);
  }

 private:
  DriveMap drives_;
};

class LinuxFileWriter final : public FileWriter {
 public:
  explicit LinuxFileWriter(DriveMap drives) : drives_(std::move(drives)) {}

  bool Create(TextView path, std::string_view bytes) override {
    const std::string native = NativePath(path, drives_);
    const auto place = FindPlace(path, native);
    if (!place) throw FileError(ENOENT, "create", path, native);
    if (place->status && S_ISDIR(place->status->st_mode)) place->folder.Fail(EISDIR, "create");
    return !place->status && CreateAt(*place, bytes);
  }

  void Append(TextView path, std::string_view bytes) override {
    OpenFile file(path, NativePath(path, drives_), kForAppending);
    const struct stat status = file.Status();
    const bool is_device = S_ISCHR(status.st_mode);
    if (!S_ISREG(status.st_mode) && !is_device) file.Fail(EINVAL, "append");
    RequireWritable(file, status);
    if (is_device && fcntl(file.Descriptor(), F_SETFL, O_APPEND) != 0) file.Fail(errno, "append");
    file.Write(bytes);
    file.Close();
  }

 private:
  DriveMap drives_;
};

}  // namespace

std::shared_ptr<FileReader> SystemFileReader(DriveMap drives) {
  return std::make_shared<LinuxFileReader>(std::move(drives));
}

std::shared_ptr<FileWriter> SystemFileWriter(DriveMap drives) {
  return std::make_shared<LinuxFileWriter>(std::move(drives));
}

}  // namespace ZQ7Standard
