#include <ZQ7Standard/CImageInfo.h>

#include <memory>

#include "automation/classes.h"
#include "automation/rows.h"

namespace ZQ7Standard::Automation {

ClassInfo CImageInfoEntry() {
  ClassInfo info = {.name = "CImageInfo",
                    .help = "The kind, size and colour depth of an image file.",
                    .create = [](const Services& services) -> std::shared_ptr<void> {
                      return std::make_shared<CImageInfo>(services);
                    }};
  info.properties = {Property<&CImageInfo::Width>("Width", "The width in pixels."),
                     Property<&CImageInfo::Height>("Height", "The height in pixels."),
                     Property<&CImageInfo::Depth>("Depth", "Bits per pixel."),
                     Property<&CImageInfo::ImageType>("ImageType", "The kind of file.")};
  AddSubject(info, "",
             {Operation<&CImageInfo::ReadImageInfo>(
                 "ReadImageInfo", {ByRef("sFileName")}, "Reads a file, for the properties to tell.",
                 {{{u"C:\\shop\\logo.png"}}, {{u"C:\\shop\\none\\logo.png"}, Raises(76)}})});
  return info;
}

}  // namespace ZQ7Standard::Automation
