#include <ZQ7Standard/StandardObject.h>

#include <chrono>
#include <cmath>
#include <string>

#include "base/raise.h"
#include "formats/address.h"
#include "formats/calendar_text.h"
#include "io/random_id.h"
#include "platform/service_set.h"

namespace ZQ7Standard {
namespace {

constexpr double kLongestWait = 1e6;  // seconds

}  // namespace

std::int32_t StandardObject::ExecuteProgram(TextView Program, const std::vector<Text>& Arguments,
                                            double WaitSeconds, TextView Folder) const {
  if (!(WaitSeconds >= 0 && WaitSeconds <= kLongestWait)) {
    Raise(Error::kInvalidArgument, {"ExecuteProgram", "WaitSeconds"}, WaitSeconds);
  }
  if (Program.empty()) Raise(Error::kInvalidArgument, {"ExecuteProgram", "Program"}, Program);
  const ProgramStart start = {Text(Program), Arguments, Text(Folder)};
  return Named({"ExecuteProgram"}, [&] {
    if (WaitSeconds == 0) return services_->Programs().Start(start);
    const std::chrono::duration<double> limit(WaitSeconds);
    return services_->Programs().Run(start, std::chrono::ceil<std::chrono::milliseconds>(limit));
  });
}

void StandardObject::OpenBrowser(TextView Address) const {
  const auto address = AddressToOpen(Address);
  if (!address) Raise(Error::kInvalidArgument, {"OpenBrowser", "Address"}, Address);
  Named({"OpenBrowser", "Address"}, [&] { services_->Desktop().Open(*address); });
}

void StandardObject::OpenMail(TextView To, TextView Subject, TextView Body,
                              const std::vector<Text>& Attachments) const {
  const std::string address = MailtoAddress(To, Subject, Body);
  Named({"OpenMail"}, [&] { services_->Desktop().Compose(address, Attachments); });
}

void StandardObject::OpenCalendar(TextView Subject, OleDate StartDate, OleDate EndDate,
                                  TextView Place, TextView Body) const {
  if (EndDate < StartDate) Raise(Error::kInvalidArgument, {"OpenCalendar", "EndDate"}, EndDate);
  Named({"OpenCalendar"}, [&] {
    TimeZone& zone = services_->Zone();
    const CalendarEvent event = {.id = RandomId(services_->Random()) + "@zq7standard",
                                 .written = zone.ToUtc(services_->Now()),
                                 .start = zone.ToUtc(StartDate),
                                 .end = zone.ToUtc(EndDate),
                                 .subject = Subject,
                                 .place = Place,
                                 .body = Body};
    services_->Desktop().OpenDocument("appointment.ics", CalendarText(event));
  });
}

}  // namespace ZQ7Standard
