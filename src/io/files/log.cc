#include <ZQ7Standard/ASCIIObject.h>

#include "base/ascii.h"
#include "base/code_page.h"
#include "formats/lines.h"
#include "io/files/attempts.h"

namespace ZQ7Standard {
namespace {

/// "3/7/2024", whatever the locale.
Text LogDate(OleDate moment) {
  Text date;
  AppendNumber(date, moment.Month(), 1);
  date += u'/';
  AppendNumber(date, moment.Day(), 1);
  date += u'/';
  AppendNumber(date, moment.Year(), 4);
  return date;
}

}  // namespace

void ASCIIObject::AddLog(TextView iTextFile, TextView iOwner, TextView iType, TextView iSuccess,
                         TextView iDescription) const {
  Attempt(*services_, disable_msg_level_, [&] {
    const TextView problem =
        FolderProblem(*services_, iTextFile, u"Specified folder or no permission to updated.");
    if (!problem.empty()) return problem;
    const OleDate now = services_->Now();
    Text line = LogDate(now) + u';' + services_->TimeText().LongTime(now);
    for (const TextView field : {iOwner, iType, iSuccess, iDescription}) {
      line.append(u";").append(field);
    }
    services_->FileWriter().Append(iTextFile, ToCodePage(line).append(kLineEnd));
    return problem;
  });
}

}  // namespace ZQ7Standard
