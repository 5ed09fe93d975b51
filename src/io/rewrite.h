#ifndef ZQ7STANDARD_SRC_IO_REWRITE_H_
#define ZQ7STANDARD_SRC_IO_REWRITE_H_

#include <ZQ7Standard/platform/file_rewrite.h>

namespace ZQ7Standard {

/// Makes `bytes` the content of the file `path`, which is there: on the disk the file
/// is the old one whole or the new one whole at any moment. A failure of any step is
/// raised.
void RewriteFile(FileRewriter& rewriter, TextView path, std::string_view bytes);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_IO_REWRITE_H_
