// A path can be restored from its parts, from its trimmed text, and from its native path.

#include <ZQ7Standard/DiskObject.h>
#include <ZQ7Standard/platform/path_text.h>

#include "platform/linux/native_path.h"
#include "tests/fuzz/check.h"

using namespace ZQ7Standard;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const DiskObject disk;
  const Text path = FuzzText(data, size);
  const Text name = disk.FileName(path);
  Check(path == name || path == disk.Pathname(path) + u'\\' + name);
  Check(disk.trimPath(path + u"\\\\") == disk.trimPath(path));
  Check(disk.ScaleFullPath(path).ends_with(name));
  const std::string native = NativePath(path, {});
  Check(native.find('\0') == std::string::npos);
  Check(native.empty() || NativePath(PathText(native), {}) == native);
  return 0;
}
