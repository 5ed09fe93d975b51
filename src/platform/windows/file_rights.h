#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_FILE_RIGHTS_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_FILE_RIGHTS_H_

#include <string>

#include "platform/windows/open_file.h"

namespace ZQ7Standard {

/// Gives a file that was opened with WRITE_DAC and WRITE_OWNER the rights, the attributes and the
/// creation time of the file `other`, except that it may be written; its owner and group as far as
/// the user may give it away.
void TakeRights(const OpenFile& file, const std::wstring& other);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_FILE_RIGHTS_H_
