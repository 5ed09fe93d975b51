#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/platform/print_picture.h>

#include <string>

#include "base/raise.h"
#include "platform/service_set.h"

namespace ZQ7Standard {
namespace {

constexpr std::string_view kSavePictureAsJPEG = "SavePictureAsJPEG";

}  // namespace

void StandardObject::SavePictureAsJPEG(const std::shared_ptr<PrintPicture>& Picture,
                                       TextView FileName, std::int16_t Quality) const {
  if (!Picture) Raise(Error::kInvalidArgument, {kSavePictureAsJPEG, "Picture"}, "no picture");
  if (Quality < 1 || Quality > 100) {
    Raise(Error::kInvalidArgument, {kSavePictureAsJPEG, "Quality"}, Quality);
  }
  const std::string file = Named({kSavePictureAsJPEG, "Picture"}, [&] {
    return services_->PictureEncoder().ToJpeg(Picture->Picture(), Quality);
  });
  Named({kSavePictureAsJPEG, "FileName"}, [&] {
    const auto rewrite = [&] {
      return services_->FileRewriter().Rewrite(FileName,
                                               [&](const auto&) { return std::string(file); });
    };
    // Another process may create the file in between.
    while (!rewrite() && !services_->FileWriter().Create(FileName, file)) {
    }
  });
}

}  // namespace ZQ7Standard
