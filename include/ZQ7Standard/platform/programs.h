#ifndef ZQ7STANDARD_PLATFORM_PROGRAMS_H_
#define ZQ7STANDARD_PLATFORM_PROGRAMS_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/Types.h>

#include <chrono>
#include <cstdint>
#include <memory>
#include <vector>

namespace ZQ7Standard {

/// A program and what it is started with.
struct ProgramStart {
  Text program;                      ///< a path text, or the name of an installed program
  std::vector<Text> arguments = {};  ///< handed over as they are: there is no shell
  Text folder = {};                  ///< where it starts, a path text; empty: the host's own
};

/// Starts the programs of the machine. They read nothing, write where the host writes, and
/// inherit no other open file and no signal settings. Raises 53 for a program that does
/// not exist, 76 for such a folder, 70 for what the user may not execute.
class ZQ7STANDARD_EXPORT Programs {
 public:
  virtual ~Programs();

  /// Starts a program that goes on by itself, whatever becomes of the host. Returns its
  /// process number.
  virtual std::int32_t Start(const ProgramStart& start) = 0;

  /// Runs a program to its end and returns its exit status, 128 and the signal's number if
  /// a signal ended it. At the `limit` it is told to end together with those it started, two
  /// seconds later it is ended, and 70 is raised.
  virtual std::int32_t Run(const ProgramStart& start, std::chrono::milliseconds limit) = 0;
};

/// The programs of the machine; names are looked for in the folders of PATH, of which empty
/// ones are skipped. On Windows programs are files of the extensions .com and .exe, which a name may
/// leave out; there are no signals, so that `Run` ends what takes too long at once.
ZQ7STANDARD_EXPORT std::shared_ptr<Programs> SystemPrograms(DriveMap drives = {});

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_PROGRAMS_H_
