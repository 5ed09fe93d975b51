#ifndef ZQ7STANDARD_PLATFORM_FILE_REWRITE_H_
#define ZQ7STANDARD_PLATFORM_FILE_REWRITE_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>
#include <ZQ7Standard/platform/path_text.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace ZQ7Standard {

/// Reads the bytes of a file when they are first asked for.
using OldBytes = std::function<std::string_view()>;

/// Returns the new content of a file. One that does not ask for the old bytes also works
/// on files that may not be read.
using FileChange = std::function<std::string(const OldBytes& old_bytes)>;

/// Rewrites files. Paths are path texts.
class ZQ7STANDARD_EXPORT FileRewriter {
 public:
  virtual ~FileRewriter();

  /// Replaces the content of a file by what `change` returns; false if there is no such
  /// file, or `path` is a folder. If `path` is a symbolic link, the file that it names is
  /// rewritten.
  ///
  /// At any moment, even after a failure, the disk holds the whole old file or the whole
  /// new one, and the new one once this returns. No other `Rewrite` of the file, in any
  /// process, comes between the old bytes and the new ones; `change` may be called again
  /// if a program that ignores the lock interfered, and must not rewrite the file itself.
  ///
  /// The new file has the owner, the group and the rights of the old one, and its owner
  /// the right to write. It is written as a temporary file beside the old one, whose name
  /// ends in "$$$$"; one left by a killed process is removed.
  ///
  /// Raises 57, 61, 70, 75 or 76, and what `change` raises; 70 also if others held the
  /// file for ten seconds.
  virtual bool Rewrite(TextView path, const FileChange& change) = 0;
};

/// Rewrites the files of the machine.
ZQ7STANDARD_EXPORT std::shared_ptr<FileRewriter> SystemFileRewriter(DriveMap drives = {});

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_FILE_REWRITE_H_
