#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_FILE_REWRITE_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_FILE_REWRITE_H_

#include <ZQ7Standard/platform/file_rewrite.h>

#include "platform/linux/system_calls.h"

namespace ZQ7Standard {

/// Rewrites files with `calls`, which must outlive it.
std::shared_ptr<FileRewriter> FileRewriterBy(const SystemCalls& calls, DriveMap drives = {});

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_FILE_REWRITE_H_
