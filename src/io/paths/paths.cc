#include <ZQ7Standard/DiskObject.h>

#include <algorithm>
#include <utility>

#include "base/fields.h"
#include "base/raise.h"
#include "formats/path_parts.h"
#include "io/paths/folder_status.h"

namespace ZQ7Standard {
namespace {

constexpr TextView kSeparator = u"\\";
constexpr TextView kNetworkPrefix = u"\\\\";

/// The drive and first folder of `path`, or its server and share, searched for in the first
/// `length` characters.
TextView Head(TextView path, std::size_t length) {
  std::size_t head_length = 0;
  int separators = 0;
  for (std::size_t i = path.starts_with(kNetworkPrefix) ? kNetworkPrefix.size() : 0; i < length;
       ++i) {
    if (path.substr(std::min(i, path.size()), 1) != kSeparator) {
      head_length = i + 1;
    } else if (++separators == 2) {
      break;
    }
  }
  return path.substr(0, head_length);
}

}  // namespace

DiskObject::DiskObject() : DiskObject(Services{}) {}

DiskObject::DiskObject(Services services)
    : services_(std::make_shared<ServiceSet>(std::move(services))) {}

Text DiskObject::FileName(TextView full_name) const {
  return Text(FileNamePart(full_name));
}

Text DiskObject::Pathname(TextView full_name) const {
  return Text(FolderPart(full_name));
}

Text DiskObject::trimPath(TextView Path) const {
  return Text(TrimBack(Path, kSeparator));
}

Text DiskObject::ScaleFullPath(TextView inFullPath, std::int32_t /*MaxLen*/) const {
  const TextView path = TrimBack(TrimFront(inFullPath));
  const TextView name = FileNamePart(inFullPath);
  Text scaled(Head(path, FolderPart(inFullPath).size()));
  if (path == scaled + u'\\' + Text(name)) return Text(path);
  return scaled.append(u"\\...\\").append(name);
}

std::int16_t DiskObject::CreateFullPath(TextView FullPathName) const {
  const TextView path = TrimBack(TrimFront(FullPathName, kSeparator), kSeparator);
  Named({"CreateFullPath", "FullPathName"}, [&] {
    for (std::size_t end = 0; end < path.size(); ++end) {
      end = std::min(path.find(kSeparator, end), path.size());
      MakeFolder(*services_, path.substr(0, end));
    }
  });
  return IsFolder(*services_, path) ? -1 : 0;
}

}  // namespace ZQ7Standard
