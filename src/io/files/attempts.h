#ifndef ZQ7STANDARD_SRC_IO_FILES_ATTEMPTS_H_
#define ZQ7STANDARD_SRC_IO_FILES_ATTEMPTS_H_

#include <ZQ7Standard/Types.h>

#include <cstdint>
#include <functional>
#include <string_view>

#include "platform/service_set.h"

/// The file operations of those members of `ASCIIObject` that raise nothing. A problem is the text
/// of a message, empty if there is none.
namespace ZQ7Standard {

/// Shows `problem` at level 1 or above. A missing message box is not an error.
void Warn(ServiceSet& services, std::int16_t level, TextView problem);

/// Runs `find_problem` and shows the problem that it returns or, if it fails, a general one.
void Attempt(ServiceSet& services, std::int16_t level,
             const std::function<TextView()>& find_problem);

/// Returns what prevents creating a file in the folder of `path`.
TextView FolderProblem(ServiceSet& services, TextView path, TextView read_only_problem);

/// Runs `write`; if it returns false because there is no file, creates the file with `bytes`.
/// Returns the problem of its folder, if any.
TextView WriteOrCreate(ServiceSet& services, TextView path, const std::function<bool()>& write,
                       std::string_view bytes, TextView read_only_problem);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_IO_FILES_ATTEMPTS_H_
