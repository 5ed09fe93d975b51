#ifndef ZQ7STANDARD_SRC_FORMATS_CALENDAR_TEXT_H_
#define ZQ7STANDARD_SRC_FORMATS_CALENDAR_TEXT_H_

#include <ZQ7Standard/Types.h>

#include <string>

namespace ZQ7Standard {

/// An appointment; its moments are in UTC.
struct CalendarEvent {
  std::string id;  ///< ASCII, never used twice
  OleDate written;
  OleDate start;
  OleDate end;
  TextView subject;
  TextView place = {};
  TextView body = {};
};

/// The bytes of a calendar file (RFC 5545) with one event: no line has more than 75 bytes, and none
/// is folded inside a character. Control characters other than line breaks are left out.
std::string CalendarText(const CalendarEvent& event);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_CALENDAR_TEXT_H_
