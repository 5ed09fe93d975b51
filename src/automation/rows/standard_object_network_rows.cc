#include <ZQ7Standard/StandardObject.h>

#include "automation/catalogue_rows.h"
#include "automation/classes.h"

namespace ZQ7Standard::Automation {

using enum Effect;

void AddNetworkOperations(ClassRow& owner) {
  AddOperations(
      owner, MayBlock({Operation<&StandardObject::getRemoteTOD>(
                           120, "getRemoteTOD", kOutside, {"ServerName"}, {{{u""}, Raises(5)}}),
                       Operation<&StandardObject::SendMail>(
                           121, "SendMail", kOutside,
                           {"Server", "Port", "Security", "User", "Password", "From", "To",
                            "Subject", "Body", Optional("Attachments", TextList{}),
                            Optional("CC", u""), Optional("BCC", u""), Optional("IsHtml", false)},
                           {{{u"mail.example", 25, ZQ7ConnectionSecurityNone, u"shop", u"secret",
                              u"shop@shop.example", u"a@b.example", u"Invoice", u"Thank you."},
                             Raises(5)}})}));
}

}  // namespace ZQ7Standard::Automation
