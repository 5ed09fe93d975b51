#ifndef ZQ7STANDARD_DISKOBJECT_H_
#define ZQ7STANDARD_DISKOBJECT_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/Types.h>

#include <cstdint>
#include <memory>

namespace ZQ7Standard {

class ServiceSet;

/// Splits and shortens paths, creates folders and copies files.
///
/// "\" is the only separator in path texts: "/" is a character like any other. It keeps
/// nothing between calls. An instance belongs to one thread at a time; distinct instances
/// are independent.
class ZQ7STANDARD_EXPORT DiskObject {
 public:
  /// Uses the machine's file system.
  DiskObject();
  /// Uses the host's services.
  explicit DiskObject(Services services);

  // --- Paths and the folders on them: src/io/paths/paths.cc ---

  /// The text after the last "\".
  ///
  /// "b.txt" of "C:\a\b.txt", empty for "C:\a\"; the whole text if it has no "\".
  Text FileName(TextView full_name) const;

  /// The text before the last "\".
  ///
  /// "C:\a" of "C:\a\b.txt", "C:" of "C:\b.txt"; empty if it has no "\".
  Text Pathname(TextView full_name) const;

  /// A path without the "\" at its end.
  ///
  /// However many `Path` ends with: "C:\a" of "C:\a\\".
  Text trimPath(TextView Path) const;

  /// A path shortened for display.
  ///
  /// Its folders between the first and the file name are left out:
  /// "C:\Data\...\report.xls", "\\srv\share\...\f.txt". A path without such folders only
  /// loses the spaces around it. `MaxLen` is ignored: it stays for callers that pass it,
  /// and a path is shortened at any length. A bare file name gets "\...\" in front.
  Text ScaleFullPath(TextView inFullPath, std::int32_t MaxLen = 0) const;

  /// Creates the folders of a path that do not exist.
  ///
  /// Returns -1; 0 if the path is empty or only of "\". Other processes may create them
  /// at the same time. Every "\" at its ends is dropped first, so a network path counts
  /// as relative to the current folder.
  ///
  /// Raises what the file system does if a folder cannot be created: 70 without the right
  /// to, 75 if a file has its name. Those created before it stay.
  std::int16_t CreateFullPath(TextView FullPathName) const;

  // --- Files and folders copied: src/io/paths/file_copy.cc ---

  /// Copies a file if it changed; 1 if it tried to.
  ///
  /// Copies `FromFile` to `ToFile`, with its last-modified time, if `ToFile` does not
  /// exist or has another one, older or newer. Times are compared exactly, or as closely
  /// as the file system of `ToFile` is known to keep them. Returns 1 if it tried to copy,
  /// 0 if the times are equal or there is no file `FromFile`. It never raises: a copy
  /// that fails returns 1 as well, and without `OverwriteFile` every copy onto an
  /// existing file fails.
  ///
  /// Either way an existing `ToFile` loses its read-only state, so that hosts can write
  /// to it afterwards. `CheckCondition` is ignored: it stays for callers that pass it.
  std::int16_t CopyFileCheck(TextView FromFile, TextView ToFile, bool OverwriteFile = false,
                             std::int16_t CheckCondition = 0) const;

  /// Copies a folder tree; returns the number of entries.
  ///
  /// Copies the folder `from_file` with all it holds into the folder `to_file`, which it
  /// creates in an existing folder. Returns the number of entries copied and, unless
  /// `to_file` could not be created, one more; 0 if `from_file` is not a folder.
  ///
  /// Files replace those of the target. Raises what the file system does, leaving in
  /// place what was copied until then: 75 for a subfolder that the target already has, so
  /// a tree with subfolders can be copied only once; 70 for a read-only target file; 76
  /// if `to_file` could not be created and there is something to copy. A target inside
  /// `from_file`, by whatever path, raises 75 before anything is copied; a link in the
  /// tree raises 75 if it leads to a folder that it or the target is in.
  std::int32_t XCopyFile(TextView from_file, TextView to_file) const;

 private:
  std::shared_ptr<ServiceSet> services_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_DISKOBJECT_H_
