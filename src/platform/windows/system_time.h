#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_SYSTEM_TIME_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_SYSTEM_TIME_H_

#include <ZQ7Standard/Types.h>
#include <windows.h>

namespace ZQ7Standard {

/// The moment, to the second.
inline OleDate DateOf(const SYSTEMTIME& time) {
  return OleDate::FromParts(time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute,
                            time.wSecond);
}

inline SYSTEMTIME SystemTimeOf(OleDate moment) {
  const auto word = [](int number) { return static_cast<WORD>(number); };
  return {.wYear = word(moment.Year()),
          .wMonth = word(moment.Month()),
          .wDayOfWeek = word(moment.Weekday() - 1),
          .wDay = word(moment.Day()),
          .wHour = word(moment.Hour()),
          .wMinute = word(moment.Minute()),
          .wSecond = word(moment.Second()),
          .wMilliseconds = 0};
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_SYSTEM_TIME_H_
