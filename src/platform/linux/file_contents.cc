#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/file_contents.h>
#include <fcntl.h>

#include <array>
#include <utility>

#include "platform/linux/native_path.h"
#include "platform/linux/open_file.h"

namespace ZQ7Standard {
namespace {

std::string ReadToEnd(const OpenFile& file) {
  std::array<char, 65536> buffer;
  std::string bytes;
  while (const std::size_t count = file.Read(buffer)) bytes.append(buffer.data(), count);
  return bytes;
}

class LinuxFileReader final : public FileReader {
 public:
  explicit LinuxFileReader(DriveMap drives) : drives_(std::move(drives)) {}

  std::optional<std::string> ReadAll(TextView path) override {
    const auto file = OpenFile::IfThere(path, NativePath(path, drives_), O_RDONLY);
    if (!file) return std::nullopt;
    try {
      return ReadToEnd(*file);
    } catch (const RunTimeError&) {
      if (file->IsFolder()) return std::nullopt;
      throw;
    }
  }

  std::size_t ReadStart(TextView path, std::span<char> buffer) override {
    return OpenFile(path, NativePath(path, drives_), O_RDWR | O_CREAT).Read(buffer);
  }

 private:
  DriveMap drives_;
};

class LinuxFileWriter final : public FileWriter {
 public:
  explicit LinuxFileWriter(DriveMap drives) : drives_(std::move(drives)) {}

  void Create(TextView path, std::string_view bytes) override { Write(path, bytes, O_TRUNC); }

  void Append(TextView path, std::string_view bytes) override { Write(path, bytes, O_APPEND); }

 private:
  void Write(TextView path, std::string_view bytes, int flag) const {
    OpenFile file(path, NativePath(path, drives_), O_WRONLY | O_CREAT | flag);
    file.Write(bytes);
    file.Close();
  }

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
