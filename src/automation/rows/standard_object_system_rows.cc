#include <ZQ7Standard/StandardObject.h>

#include "automation/catalogue_rows.h"
#include "automation/classes.h"

namespace ZQ7Standard::Automation {
namespace {

using enum Effect;

void AddPrograms(ClassRow& info) {
  const auto attachments = Optional("Attachments", TextList{});
  AddOperations(
      info,
      MayBlock(
          {Operation<&StandardObject::ExecuteProgram>(
               108, "ExecuteProgram", kOutside,
               {"Program", Optional("Arguments", TextList{}), Optional("WaitSeconds", 0),
                Optional("Folder", u"")},
               {{{u"true", TextList{}, 5}, 0}, {{u"C:\\shop\\none.exe"}, Raises(53)}}),
           Operation<&StandardObject::OpenBrowser>(109, "OpenBrowser", kOutside, {"Address"},
                                                   {{{u"ftp://shop.example"}, Raises(5)}}),
           Operation<&StandardObject::OpenMail>(
               110, "OpenMail", kOutside,
               {"To", Optional("Subject", u""), Optional("Body", u""), attachments},
               {{{u"a@shop.example", u"", u"", TextList{u"C:\\shop\\none.pdf"}}, Raises(53)}}),
           Operation<&StandardObject::OpenCalendar>(
               111, "OpenCalendar", kOutside,
               {"Subject", "StartDate", "EndDate", Optional("Place", u""), Optional("Body", u"")},
               {{{u"Stock count", Date(2024, 1, 16), Date(2024, 1, 15)}, Raises(5)}})}));
}

void AddPictures(ClassRow& info) {
  AddOperations(info, MayBlock({Operation<&StandardObject::SavePictureAsJPEG>(
                          126, "SavePictureAsJPEG", kOutside,
                          {"Picture", "FileName", Optional("Quality", 75)},
                          {{{u"C:\\none\\logo.png", u"C:\\shop\\logo.jpg"}, Raises(53)}})}));
}

}  // namespace

void AddSystemOperations(ClassRow& owner) {
  AddPrograms(owner);
  AddPictures(owner);
}

}  // namespace ZQ7Standard::Automation
