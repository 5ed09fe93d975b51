#ifndef ZQ7STANDARD_SRC_FORMATS_PATH_PARTS_H_
#define ZQ7STANDARD_SRC_FORMATS_PATH_PARTS_H_

#include <ZQ7Standard/Types.h>

namespace ZQ7Standard {

/// The text before the last "\"; empty if there is none.
constexpr TextView FolderPart(TextView path) {
  const std::size_t slash = path.rfind(u'\\');
  return slash == TextView::npos ? TextView() : path.substr(0, slash);
}

/// The text after the last "\"; all of it if there is none.
constexpr TextView FileNamePart(TextView path) {
  return path.substr(path.rfind(u'\\') + 1);  // npos + 1 is 0
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_PATH_PARTS_H_
