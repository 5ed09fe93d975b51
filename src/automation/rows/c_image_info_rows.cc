#include <ZQ7Standard/CImageInfo.h>

#include <memory>

#include "automation/classes.h"
#include "automation/rows.h"

namespace ZQ7Standard::Automation {

ClassRow CImageInfoEntry() {
  ClassRow info = {.name = "CImageInfo",
                   .help = "The kind, size and colour depth of an image file.",
                   .create = [](const HostServices& services) -> std::shared_ptr<void> {
                     return std::make_shared<CImageInfo>(
                         ImageServices{.reader = SystemFileReader(services.drives)});
                   }};
  info.properties = {Property<&CImageInfo::Width>(1, "Width", "The width in pixels."),
                     Property<&CImageInfo::Height>(2, "Height", "The height in pixels."),
                     Property<&CImageInfo::Depth>(3, "Depth", "Bits per pixel."),
                     Property<&CImageInfo::ImageType>(4, "ImageType", "The kind of file.")};
  AddSubject(
      info, "",
      {Operation<&CImageInfo::ReadImageInfo>(
          5, "ReadImageInfo", {ByRef("sFileName")}, "Reads a file, for the properties to tell.",
          {{{u"C:\\shop\\logo.png"}}, {{u"C:\\shop\\none\\logo.png"}, Raises(76)}})});
  return info;
}

}  // namespace ZQ7Standard::Automation
