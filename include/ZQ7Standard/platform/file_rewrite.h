#ifndef ZQ7STANDARD_PLATFORM_FILE_REWRITE_H_
#define ZQ7STANDARD_PLATFORM_FILE_REWRITE_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>
#include <ZQ7Standard/platform/path_text.h>

#include <memory>
#include <string_view>

namespace ZQ7Standard {

/// One rewrite of a file, by way of a temporary file beside it. Its steps are taken in
/// the order below, each once. Until `Replace` the target keeps its old content, and
/// from then on it has the new one, whatever becomes of the process. A step that fails
/// raises 57, 61, 70, 75 or 76; a rewrite that stops half-way leaves the temporary
/// file.
class ZQ7STANDARD_EXPORT FileRewrite {
 public:
  virtual ~FileRewrite();

  /// Writes the new content to the temporary file.
  virtual void Write(std::string_view bytes) = 0;
  /// Waits until that content is on the disk.
  virtual void Sync() = 0;
  /// Closes the temporary file.
  virtual void Close() = 0;
  /// Gives the temporary file the target's name.
  virtual void Replace() = 0;
  /// Waits until the folder with that name is on the disk.
  virtual void SyncFolder() = 0;
};

/// Rewrites files. Paths are path texts.
class ZQ7STANDARD_EXPORT FileRewriter {
 public:
  virtual ~FileRewriter();

  /// Makes the temporary file for a file that is there: the target's full path with
  /// "$$$$" behind it. One that another process left behind is thrown away. It has the
  /// target's rights, and the owner's to write with them. Where `path` is a symbolic
  /// link, the target is the file that it names.
  virtual std::unique_ptr<FileRewrite> Begin(TextView path) = 0;
};

/// Rewrites the files of the machine.
ZQ7STANDARD_EXPORT std::shared_ptr<FileRewriter> SystemFileRewriter(DriveMap drives = {});

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_FILE_REWRITE_H_
