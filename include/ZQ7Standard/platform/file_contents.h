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

// Both services take path texts and raise 53 (no such file), 57 (the device failed),
// 61 (disk full), 70 (no right), 75 (not usable as a file, such as a folder, a pipe or a
// device, which nobody waits for) or 76 (no such folder).

/// Reads files.
class ZQ7STANDARD_EXPORT FileReader {
 public:
  virtual ~FileReader();

  /// Returns the bytes of a file; nullopt if there is no such file, or `path` is a
  /// folder.
  virtual std::optional<std::string> ReadAll(TextView path) = 0;

  /// Reads the first bytes of a file with a single read, and returns their number. The
  /// file is opened for reading and writing: one that is not there is made, empty, and
  /// one that is read-only raises 70, whoever asks.
  virtual std::size_t ReadStart(TextView path, std::span<char> buffer) = 0;
};

/// Writes new files, and at the end of files.
class ZQ7STANDARD_EXPORT FileWriter {
 public:
  virtual ~FileWriter();

  /// Makes a new file of `bytes`, which is there whole or not at all and on the disk
  /// afterwards. Returns false, and changes nothing, when there is a file already. A link
  /// to a file that is not there stays, and its file is made.
  virtual bool Create(TextView path, std::string_view bytes) = 0;

  /// Adds `bytes` at the end of a file, which is made when it is not there. Also writes
  /// to a character device, such as a terminal. A file that is read-only raises 70,
  /// whoever asks.
  virtual void Append(TextView path, std::string_view bytes) = 0;
};

/// The files of the machine.
ZQ7STANDARD_EXPORT std::shared_ptr<FileReader> SystemFileReader(DriveMap drives = {});
ZQ7STANDARD_EXPORT std::shared_ptr<FileWriter> SystemFileWriter(DriveMap drives = {});

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_FILE_CONTENTS_H_
