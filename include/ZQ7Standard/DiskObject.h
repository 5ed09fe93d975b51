#ifndef ZQ7STANDARD_DISKOBJECT_H_
#define ZQ7STANDARD_DISKOBJECT_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/Types.h>

#include <cstdint>
#include <memory>

namespace ZQ7Standard {

class ServiceSet;

/// Paths taken apart and shortened, folders made, files copied.
///
/// Paths are texts with "\" as their one separator: "/" is a character like any
/// other. It keeps nothing between calls. An instance belongs to one thread at a
/// time; distinct instances are independent.
class ZQ7STANDARD_EXPORT DiskObject {
 public:
  /// With the file system of the machine.
  DiskObject();
  /// With services of the host's own.
  explicit DiskObject(Services services);

  // --- Paths and the folders on them: src/io/paths/paths.cc ---

  /// The text behind the last "\".
  ///
  /// "b.txt" of "C:\a\b.txt", empty for "C:\a\"; the whole text when it has no "\".
  Text FileName(TextView full_name) const;

  /// The text before the last "\".
  ///
  /// "C:\a" of "C:\a\b.txt", "C:" of "C:\b.txt"; empty when it has no "\".
  Text Pathname(TextView full_name) const;

  /// A path without the "\" at its end.
  ///
  /// However many `Path` ends in: "C:\a" of "C:\a\\".
  Text trimPath(TextView Path) const;

  /// A path shortened for display.
  ///
  /// Its folders between the first and the file name are left out:
  /// "C:\Data\...\report.xls", "\\srv\share\...\f.txt". One that has none of them comes
  /// back as it is without the spaces around it. `MaxLen` is ignored: it stays for
  /// callers that give it, and a path is shortened at any length. A bare file name gains
  /// the front "\...\".
  Text ScaleFullPath(TextView inFullPath, std::int32_t MaxLen = 0) const;

  /// Makes every folder of a path that is not there.
  ///
  /// Returns -1; 0 when the path is empty or only of "\". Other processes may make them
  /// at the same time. Every "\" at its ends is dropped first, so a network path counts
  /// as relative to the current folder.
  ///
  /// Raises what the file system does where a folder cannot be made: 70 without the
  /// right to, 75 where a file has its name. Those before it stay.
  std::int16_t CreateFullPath(TextView FullPathName) const;

  // --- Files and folders copied: src/io/paths/file_copy.cc ---

  /// Copies a file when it changed; 1 when it tried to.
  ///
  /// Copies `FromFile` to `ToFile` when that is not there or has another last-modified
  /// time, older or newer, which it then takes over. Times are compared exactly, or as
  /// closely as the file system of `ToFile` is known to keep them. Returns 1 when it
  /// tried to copy, 0 when the times are equal or there is no file `FromFile`. It never
  /// raises: a copy that fails returns 1 as well, and so does every copy onto an existing
  /// file unless `OverwriteFile`.
  ///
  /// An existing `ToFile` loses its read-only state either way, so that hosts can
  /// write to it afterwards. `CheckCondition` is ignored: it stays for callers that
  /// give it.
  std::int16_t CopyFileCheck(TextView FromFile, TextView ToFile, bool OverwriteFile = false,
                             std::int16_t CheckCondition = 0) const;

  /// Copies a folder tree; the number of entries.
  ///
  /// Copies the folder `from_file` with all it holds into the folder `to_file`, which
  /// it makes in a folder that is there. Returns the number of entries copied and,
  /// unless `to_file` could not be made, one more; 0 when `from_file` is no folder.
  ///
  /// Files replace those of the target. Raises what the file system does, with all
  /// that was copied until then left in place: 75 for a subfolder that the target
  /// has already, so a tree with subfolders is copied once; 70 for a read-only
  /// target file; 76 when `to_file` could not be made and there is something to copy.
  /// A target inside `from_file`, whatever it is called there, raises 75 before
  /// anything is copied; a link in the tree raises 75 when it leads to a folder that it
  /// or the target is in.
  std::int32_t XCopyFile(TextView from_file, TextView to_file) const;

 private:
  std::shared_ptr<ServiceSet> services_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_DISKOBJECT_H_
