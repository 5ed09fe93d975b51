#ifndef ZQ7STANDARD_PLATFORM_FILE_CONTENTS_H_
#define ZQ7STANDARD_PLATFORM_FILE_CONTENTS_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>
#include <ZQ7Standard/platform/path_text.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace ZQ7Standard {

// Both services take path texts and raise 53 (no such file), 57 (the device failed), 61
// (disk full), 70 (no right), 75 (not usable as a file, such as a folder, or a pipe or
// device, which is never waited for) or 76 (no such folder).

/// Reads files.
class ZQ7STANDARD_EXPORT FileReader {
 public:
  virtual ~FileReader();

  /// Returns the bytes of a file; nullopt if there is no such file, or `path` is a
  /// folder.
  virtual std::optional<std::string> ReadAll(TextView path) = 0;

  /// Reads the first bytes of a file with a single read, and returns their number. The
  /// file is opened for reading and writing: a missing one is created empty, and a
  /// read-only one raises 70, whoever asks.
  virtual std::size_t ReadStart(TextView path, std::span<char> buffer) = 0;
};

/// Creates files and appends to files.
class ZQ7STANDARD_EXPORT FileWriter {
 public:
  virtual ~FileWriter();

  /// Creates a file of `bytes`, whole or not at all, which is on the disk afterwards.
  /// Returns false, and changes nothing, if the file exists. A link to a missing file
  /// stays, and its file is created.
  virtual bool Create(TextView path, std::string_view bytes) = 0;

  /// Appends `bytes` to a file, which is created if it does not exist. Also writes to a
  /// character device, such as a terminal. A read-only file raises 70, whoever asks.
  virtual void Append(TextView path, std::string_view bytes) = 0;
};

/// The files of the machine.
ZQ7STANDARD_EXPORT std::shared_ptr<FileReader> SystemFileReader(DriveMap drives = {});
ZQ7STANDARD_EXPORT std::shared_ptr<FileWriter> SystemFileWriter(DriveMap drives = {});

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_FILE_CONTENTS_H_
