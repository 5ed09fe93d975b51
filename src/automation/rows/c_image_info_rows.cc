#include <ZQ7Standard/CImageInfo.h>

#include <memory>

#include "automation/catalogue_rows.h"
#include "automation/classes.h"

namespace ZQ7Standard::Automation {

using enum Effect;

ClassRow CImageInfoRows() {
  ClassRow info = {.name = "CImageInfo",
                   .create = [](const Services& services) -> std::shared_ptr<void> {
                     return std::make_shared<CImageInfo>(services);
                   }};
  info.properties = {
      Property<&CImageInfo::Width>(1, "Width"), Property<&CImageInfo::Height>(2, "Height"),
      Property<&CImageInfo::Depth>(3, "Depth"), Property<&CImageInfo::ImageType>(4, "ImageType")};
  AddOperations(info,
                MayBlock({Operation<&CImageInfo::ReadImageInfo>(
                    5, "ReadImageInfo", kOutside, {ByRef("sFileName")},
                    {{{u"C:\\shop\\logo.png"}}, {{u"C:\\shop\\none\\logo.png"}, Raises(76)}})}));
  return info;
}

}  // namespace ZQ7Standard::Automation
