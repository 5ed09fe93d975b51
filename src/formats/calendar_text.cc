#include "formats/calendar_text.h"

#include <string_view>

#include "base/ascii.h"
#include "formats/lines.h"

namespace ZQ7Standard {
namespace {

constexpr std::size_t kLongestLine = 75;  // bytes, without the line end

/// "20240115T093000Z"
std::string Moment(OleDate utc) {
  Text text;
  AppendNumber(text, utc.Year(), 4);
  AppendNumber(text, utc.Month(), 2);
  AppendNumber(text, utc.Day(), 2);
  AppendNumber(text += u'T', utc.Hour(), 2);
  AppendNumber(text, utc.Minute(), 2);
  AppendNumber(text, utc.Second(), 2);
  return Utf8(text += u'Z');
}

std::string Escaped(TextView text) {
  Text escaped;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t c = text[i];
    const bool pair = c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
    if (pair) continue;  // the line feed counts
    if (c == u'\n' || c == u'\r') {
      escaped += u"\\n";
    } else if (c == u'\\' || c == u';' || c == u',') {
      escaped.append({u'\\', c});
    } else if (c >= 0x20 && c != 0x7F) {
      escaped += c;
    }
  }
  return Utf8(escaped);
}

bool BeginsCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80;
}

/// A property; a line that goes on begins with a blank.
void AppendProperty(std::string& text, std::string_view name, std::string_view value) {
  std::size_t length = 0;
  const std::string line = std::string(name).append(":").append(value);
  for (std::size_t i = 0; i < line.size();) {
    std::size_t end = i + 1;
    while (end < line.size() && !BeginsCharacter(line[end])) ++end;
    if (length + (end - i) > kLongestLine) {
      text.append(kLineEnd).append(" ");
      length = 1;
    }
    text.append(line, i, end - i);
    length += end - i;
    i = end;
  }
  text.append(kLineEnd);
}

}  // namespace

std::string CalendarText(const CalendarEvent& event) {
  std::string text;
  const auto add = [&text](std::string_view name, const std::string& value) {
    if (!value.empty()) AppendProperty(text, name, value);
  };
  add("BEGIN", "VCALENDAR");
  add("VERSION", "2.0");
  add("PRODID", "-//ZQ7Standard//ZQ7Standard//EN");
  add("BEGIN", "VEVENT");
  add("UID", event.id);
  add("DTSTAMP", Moment(event.written));
  add("DTSTART", Moment(event.start));
  add("DTEND", Moment(event.end));
  add("SUMMARY", Escaped(event.subject));
  add("LOCATION", Escaped(event.place));
  add("DESCRIPTION", Escaped(event.body));
  add("END", "VEVENT");
  add("END", "VCALENDAR");
  return text;
}

}  // namespace ZQ7Standard
