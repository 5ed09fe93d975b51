#ifndef ZQ7STANDARD_SRC_IO_FILES_ATTEMPTS_H_
#define ZQ7STANDARD_SRC_IO_FILES_ATTEMPTS_H_

#include <ZQ7Standard/Types.h>

#include <cstdint>
#include <functional>
#include <string_view>

#include "platform/service_set.h"

/// What the operations of `ASCIIObject` that raise nothing do on files. A problem is the
/// text of a message; empty where there is none.
namespace ZQ7Standard {

/// Shows `problem` from level 1 up. No operation fails for want of a message box.
void Warn(ServiceSet& services, std::int16_t level, TextView problem);

/// Does what `find_problem` does, and shows the problem that it returns or, if it fails,
/// the problem that there is then.
void Attempt(ServiceSet& services, std::int16_t level,
             const std::function<TextView()>& find_problem);

/// Returns what keeps a file out of the folder of `path`.
TextView FolderProblem(ServiceSet& services, TextView path, TextView read_only_problem);

/// Does `write`, which returns false if there is no file, and then makes the file of
/// `bytes`. Returns the problem of its folder if that has one.
TextView WriteOrCreate(ServiceSet& services, TextView path, const std::function<bool()>& write,
                       std::string_view bytes, TextView read_only_problem);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_IO_FILES_ATTEMPTS_H_
