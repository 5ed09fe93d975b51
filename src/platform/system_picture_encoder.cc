#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/picture_encoder.h>

#include "platform/modules.h"

namespace ZQ7Standard {
namespace {

class ModuleEncoder final : public PictureEncoder {
 public:
  std::string ToJpeg(std::string_view picture, int quality) override {
    const auto& [functions, problem] = PrintingModule();
    if (functions == nullptr) throw RunTimeError(Error::kCannotCreateObject, problem);
    return functions->to_jpeg(picture, quality);
  }
};

}  // namespace

std::shared_ptr<PictureEncoder> SystemPictureEncoder() {
  return std::make_shared<ModuleEncoder>();
}

}  // namespace ZQ7Standard
