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
/// Every operation names its file by a path text, "C:\srv\app\set.ini" (docs/files.md),
/// and leaves no file open. Lines end at CR LF, LF or CR when read and are written with
/// CR LF. A character outside the code page is written as "?".
///
/// An existing file is rewritten through a temporary file beside it, whose name ends in
/// "$$$$": at any moment the disk holds the whole old file or the whole new one. A
/// rewrite keeps the file's owner and rights but clears its read-only state. After a
/// failure the temporary file may stay; the next rewrite removes it.
///
/// Objects that rewrite one file at a time, in any number of threads and processes, wait
/// for each other, for ten seconds at most; then the operation fails like any other. On a
/// file system without locks they do not wait, and one can undo the other's change.
/// Nobody waits to read or to append. A new file is written whole or not at all. An
/// instance belongs to one thread at a time; distinct instances are independent.
class ZQ7STANDARD_EXPORT ASCIIObject {
 public:
  /// Uses the machine's services.
  ASCIIObject();
  /// Uses the host's services.
  explicit ASCIIObject(Services services);

  // --- Messages to the user: src/io/files/ascii_object.cc ---

  /// Messages are shown from level 1 up.
  ///
  /// They report problems, in a message box titled "Warning". At 0, the level of a new
  /// object, every operation is silent, contrary to the name. docs/surprises.md shows a
  /// host that records them.
  std::int16_t DisableMsgLevel() const;
  void SetDisableMsgLevel(std::int16_t DisableMsgLevel);

  // --- Settings, lines of the form [KEY]=value: src/io/files/key_value_file.cc ---
  //
  // A line belongs to a key if it begins with the key in brackets, in any case, after
  // blanks (U+0020). All other lines are kept as they are, without those blanks.

  /// The value of a key.
  ///
  /// That of the key's first line with a "="; empty if there is no such line or file.
  /// Blanks between "]" and "=" do not count; those after "=" are part of the value.
  ///
  /// If no line of the key has a "=", the text after "]" in the last of them: "[A]x"
  /// gives "x", which old settings rely on. If the file cannot be read, returns the empty
  /// text and shows the message "Not found specified file".
  Text GetValue(TextView iTextFile, TextView IKey) const;

  /// Sets the value of a key.
  ///
  /// Sets every line of the key to `[IKEY]=iValue`, with the key in upper case, and
  /// appends such a line if there is none. A new file gets the key as it is typed. A line
  /// break in `iValue` makes further lines (docs/surprises.md).
  ///
  /// A failure leaves the file as it was and shows a message: "Not found specified
  /// folder.", "Specified folder can not write." (a new file in a read-only folder) or
  /// "Not found specified folder or no permission to write.".
  void Setvalue(TextView iTextFile, TextView IKey, TextView iValue) const;

  /// Deletes a key.
  ///
  /// Deletes every line of the key, and does nothing if there is no such file. On failure
  /// it shows no message but raises 57, 61, 70, 75 or 76, and the file stays as it was.
  void DeleteValue(TextView iTextFile, TextView IKey) const;

  // --- Logs: src/io/files/log.cc ---

  /// Appends a line with date and time to a log.
  ///
  /// The line is "3/7/2024;9:05:07 AM;iOwner;iType;iSuccess;iDescription": month, day and
  /// Gregorian year of the clock, the locale's time text, and the fields as they are,
  /// even with a ";" in them. Creates the file if there is none.
  ///
  /// Messages: "Not found specified folder.", also for a path without "\"; "Specified
  /// folder or no permission to updated." for a read-only folder, even if the file
  /// exists; "Not found specified folder or no permission to write.", also for a
  /// read-only file, whoever asks. A full disk can leave part of the line.
  void AddLog(TextView iTextFile, TextView iOwner, TextView iType, TextView iSuccess,
              TextView iDescription) const;

  // --- Whole texts: src/io/files/text_file.cc ---

  /// All lines of a file.
  ///
  /// Joined by CR LF, without empty lines at the front. Empty if there is no such file.
  /// Raises 57, 70 or 75 if it cannot be read.
  Text GETAllTextFile(TextView iTextFile) const;

  /// The first lines of a file, as many as from `FromLine` to `ToLine`.
  ///
  /// A `FromLine` below 1 counts as 1; a `ToLine` of 0 means all lines. Joined by CR LF,
  /// without empty lines at the front.
  ///
  /// `FromLine` skips no line: 3 to 4 returns lines 1 and 2. A file with more lines than
  /// that raises 6, so pass a `ToLine` only if the count is known. Raises 57, 70 or 75 if
  /// the file cannot be read; empty if there is none.
  Text GETLineTextFile(TextView iTextFile, std::int32_t FromLine = 0,
                       std::int32_t ToLine = 0) const;

  /// Makes a text the content of a file.
  ///
  /// `iValue` is the whole content, with no line end added. `SaveStringToTextFile2` lists
  /// the messages.
  void SaveStringToTextFile(TextView iTextFile, TextView iValue) const;

  /// Makes a text the content of a file, or appends it.
  ///
  /// As `SaveStringToTextFile`, or with `UseAppendMode` appends `iValue` to an existing
  /// file that is not read-only; a full disk can then leave part of it.
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
