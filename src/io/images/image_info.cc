#include <ZQ7Standard/CImageInfo.h>

#include <array>
#include <limits>
#include <utility>

#include "base/raise.h"
#include "formats/image_header.h"
#include "platform/service_set.h"

namespace ZQ7Standard {

CImageInfo::CImageInfo() : CImageInfo(Services{}) {}

CImageInfo::CImageInfo(Services services)
    : services_(std::make_shared<ServiceSet>(std::move(services))) {}

void CImageInfo::ReadImageInfo(TextView sFileName) {
  width_ = height_ = depth_ = 0;
  image_type_ = itUNKNOWN;
  std::array<char, kImageHeaderSize> start;
  const std::size_t size = Named({"ReadImageInfo", "sFileName"}, [&] {
    return services_->FileReader().ReadStart(sFileName, start);
  });
  const ImageHeader header = ReadImageHeader({start.data(), size});
  if (header.depth > std::numeric_limits<std::uint8_t>::max()) {
    Raise(Error::kOverflow, {"ReadImageInfo", "sFileName"}, sFileName, "depth");
  }
  width_ = header.width;
  height_ = header.height;
  depth_ = static_cast<std::uint8_t>(header.depth);
  image_type_ = header.type;
}

}  // namespace ZQ7Standard
