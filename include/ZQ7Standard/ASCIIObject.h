#ifndef ZQ7STANDARD_ASCIIOBJECT_H_
#define ZQ7STANDARD_ASCIIOBJECT_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/Types.h>

#include <cstdint>
#include <memory>

namespace ZQ7Standard {

class ServiceSet;

/// Settings, logs and whole texts in text files.
///
/// The code page of the files is Windows-874.
///
/// Every operation names its file by a path text, "C:\srv\app\set.ini"
/// (docs/files.md), and leaves no file open. A line ends at CR LF, LF or CR when it is
/// read and is written with CR LF. A character outside the code page is written as "?".
///
/// A file that is there is rewritten through a temporary file beside it, whose name
/// has "$$$$" behind: the disk holds the old file or the new one whole at any moment.
/// A rewrite keeps the file's owner and rights but clears its read-only state. After a
/// failure the temporary file may stay; the next rewrite throws it away.
///
/// Objects that rewrite one file at a time, in any number of threads and processes, wait
/// for each other, for ten seconds at most; then the operation fails as any other does.
/// Where the file system has no locks they do not wait, and one can undo the other's
/// change. Nobody waits to read or to append. A new file is there whole or not at all.
/// An instance belongs to one thread at a time; distinct instances are independent.
class ZQ7STANDARD_EXPORT ASCIIObject {
 public:
  /// With the services of the machine.
  ASCIIObject();
  /// With services of the host's own.
  explicit ASCIIObject(Services services);

  // --- Messages to the user: src/io/files/ascii_object.cc ---

  /// Messages are shown from level 1 up.
  ///
  /// They tell of problems, in a message box titled "Warning". At 0, the level of a new
  /// object, every operation is silent: the name says the opposite. docs/surprises.md
  /// shows a host that records them.
  std::int16_t DisableMsgLevel() const;
  void SetDisableMsgLevel(std::int16_t DisableMsgLevel);

  // --- Settings, lines of the form [KEY]=value: src/io/files/key_value_file.cc ---
  //
  // A line belongs to a key when it begins with the key in brackets, in any case, after
  // blanks (U+0020). All other lines are kept as they are, without those blanks.

  /// The value of a key.
  ///
  /// The value of the first line of the key that has a "=", and empty when there is no
  /// such line or file. Blanks between "]" and "=" do not count, those behind "=" are
  /// part of the value.
  ///
  /// With no "=" in any line of the key, what stands behind "]" in the last of them:
  /// "[A]x" gives "x", which old settings rely on. A file that cannot be read gives the
  /// empty text and the message "Not found specified file".
  Text GetValue(TextView iTextFile, TextView IKey) const;

  /// Sets the value of a key.
  ///
  /// Sets every line of the key to `[IKEY]=iValue`, with the key in upper case, and
  /// appends such a line when there is none. A new file gets the key as it is typed. A
  /// line break in `iValue` makes further lines (docs/surprises.md).
  ///
  /// A failure leaves the file as it was and shows a message: "Not found specified
  /// folder.", "Specified folder can not write." (a new file in a read-only folder) or
  /// "Not found specified folder or no permission to write.".
  void Setvalue(TextView iTextFile, TextView IKey, TextView iValue) const;

  /// Drops a key.
  ///
  /// Drops every line of the key; a file that is not there is left so. Shows no
  /// message: raises 57, 61, 70, 75 or 76, and the file stays as it was.
  void DeleteValue(TextView iTextFile, TextView IKey) const;

  // --- Logs: src/io/files/log.cc ---

  /// Appends a line with date and time to a log.
  ///
  /// The line is "3/7/2024;9:05:07 AM;iOwner;iType;iSuccess;iDescription": month, day and
  /// Gregorian year of the clock, the locale's time text, and the fields as they are,
  /// also with a ";" in them. A file that is not there is made.
  ///
  /// Messages: "Not found specified folder.", also for a path without "\"; "Specified
  /// folder or no permission to updated." for a read-only folder, also when the file is
  /// there; "Not found specified folder or no permission to write.", also for a file
  /// that is read-only, whoever asks. A full disk can leave a part of the line.
  void AddLog(TextView iTextFile, TextView iOwner, TextView iType, TextView iSuccess,
              TextView iDescription) const;

  // --- Whole texts: src/io/files/text_file.cc ---

  /// All lines of a file.
  ///
  /// They are joined by CR LF, without empty lines at the front. Empty when there is no
  /// such file. Raises 57, 70 or 75 when it cannot be read.
  Text GETAllTextFile(TextView iTextFile) const;

  /// The first lines of a file, as many as the numbers from `FromLine` to `ToLine`.
  ///
  /// A `FromLine` below 1 counts as 1; with a `ToLine` of 0 they are all lines. Joined by
  /// CR LF, without empty lines at the front.
  ///
  /// `FromLine` skips no line: 3 to 4 gives lines 1 and 2. A file with more lines than
  /// that raises 6, so only a reader that knows the count gives a `ToLine`. Raises 57,
  /// 70 or 75 when the file cannot be read; empty when there is none.
  Text GETLineTextFile(TextView iTextFile, std::int32_t FromLine = 0,
                       std::int32_t ToLine = 0) const;

  /// Makes a text the content of a file.
  ///
  /// `iValue` is the whole content, with no line end added. `SaveStringToTextFile2` tells
  /// the messages.
  void SaveStringToTextFile(TextView iTextFile, TextView iValue) const;

  /// Makes a text the content of a file, or adds it.
  ///
  /// As `SaveStringToTextFile`, or with `UseAppendMode` adds `iValue` at the end of a
  /// file that is there and not read-only, where a full disk can leave a part of it.
  ///
  /// Messages: "Not found specified folder."; "Specified folder can not write." for a
  /// new file in a read-only folder, unless the folder's name is Desktop; "Not found
  /// specified folder or no permission to write.".
  void SaveStringToTextFile2(TextView iTextFile, TextView iValue, bool UseAppendMode = false) const;

 private:
  std::shared_ptr<ServiceSet> services_;
  std::int16_t disable_msg_level_ = 0;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_ASCIIOBJECT_H_
