#include "formats/calendar_text.h"

#include <gtest/gtest.h>

#include <string>

namespace ZQ7Standard {
namespace {

CalendarEvent EventOf(TextView subject) {
  return {.id = "1@zq7standard",
          .written = OleDate::FromParts(2024, 1, 15, 2, 30),
          .start = OleDate::FromParts(2024, 1, 16, 2, 0),
          .end = OleDate::FromParts(2024, 1, 16, 3, 0, 59),
          .subject = subject};
}

TEST(CalendarText, IsOneEvent) {
  CalendarEvent event = EventOf(u"นับสินค้า; a,b\\c\x1b");
  event.body = u"1\r\n2\n3\r4";
  EXPECT_EQ(CalendarText(event),
            "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//ZQ7Standard//ZQ7Standard//EN\r\n"
            "BEGIN:VEVENT\r\nUID:1@zq7standard\r\nDTSTAMP:20240115T023000Z\r\n"
            "DTSTART:20240116T020000Z\r\nDTEND:20240116T030059Z\r\n"
            "SUMMARY:นับสินค้า\\; a\\,b\\\\c\r\nDESCRIPTION:1\\n2\\n3\\n4\r\n"
            "END:VEVENT\r\nEND:VCALENDAR\r\n");
}

// Lines fold at every length without splitting a character, and unfold to the same text.
TEST(CalendarText, FoldsBetweenCharacters) {
  for (std::size_t ascii = 0; ascii < 4; ++ascii) {
    const Text subject = Text(ascii, u'a') + Text(60, u'ก') + u"😀" + Text(60, u'ข');
    const std::string text = CalendarText(EventOf(subject));
    std::string unfolded;
    for (std::size_t start = 0; start < text.size();) {
      const std::size_t end = text.find("\r\n", start);
      const std::string line = text.substr(start, end - start);
      EXPECT_LE(line.size(), 75U);
      EXPECT_EQ(Utf8(FromUtf8(line)), line) << "a character is split";
      unfolded += line.starts_with(" ") ? line.substr(1) : "\n" + line;
      start = end + 2;
    }
    EXPECT_NE(unfolded.find("\nSUMMARY:" + Utf8(subject) + "\n"), std::string::npos);
  }
}

}  // namespace
}  // namespace ZQ7Standard
