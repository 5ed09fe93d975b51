#include <ZQ7Standard/platform/file_contents.h>

#include <utility>

#include "platform/windows/file_errors.h"
#include "platform/windows/native_path.h"
#include "platform/windows/new_file.h"
#include "platform/windows/open_file.h"

namespace ZQ7Standard {
namespace {

constexpr FileOpening kForReadingStart = {.access = GENERIC_READ | GENERIC_WRITE,
                                          .disposition = OPEN_ALWAYS};
constexpr FileOpening kForAppending = {
    .access = FILE_APPEND_DATA | SYNCHRONIZE | FILE_READ_ATTRIBUTES, .disposition = OPEN_ALWAYS};

class WindowsFileReader final : public FileReader {
 public:
  explicit WindowsFileReader(DriveMap drives) : drives_(std::move(drives)) {}

  std::optional<std::string> ReadAll(TextView path) override {
    const auto file = OpenFile::IfThere(path, NativePath(path, drives_), {});
    if (!file) return std::nullopt;
    file->RequireDisk("read");
    return file->ReadToEnd();
  }

  std::size_t ReadStart(TextView path, std::span<char> buffer) override {
    const OpenFile file(path, NativePath(path, drives_), kForReadingStart);
    file.RequireDisk("read");
    file.RequireWritable("read");
    return file.Read(buffer);
  }

 private:
  DriveMap drives_;
};

class WindowsFileWriter final : public FileWriter {
 public:
  explicit WindowsFileWriter(DriveMap drives) : drives_(std::move(drives)) {}

  bool Create(TextView path, std::string_view bytes) override {
    const std::wstring native = NativePath(path, drives_);
    const DWORD attributes = GetFileAttributesW(native.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return CreateWhole(path, native, bytes);
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
      throw FileError(ERROR_ACCESS_DENIED, "create", path, native);
    }
    return false;
  }

  void Append(TextView path, std::string_view bytes) override {
    const OpenFile file(path, NativePath(path, drives_), kForAppending);
    if (!file.IsDevice()) file.RequireDisk("append");
    file.RequireWritable("append");
    file.Write(bytes);
  }

 private:
  DriveMap drives_;
};

}  // namespace

std::shared_ptr<FileReader> SystemFileReader(DriveMap drives) {
  return std::make_shared<WindowsFileReader>(std::move(drives));
}

std::shared_ptr<FileWriter> SystemFileWriter(DriveMap drives) {
  return std::make_shared<WindowsFileWriter>(std::move(drives));
}

}  // namespace ZQ7Standard
