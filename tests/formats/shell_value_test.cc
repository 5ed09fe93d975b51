#include "formats/shell_value.h"

#include <gtest/gtest.h>

#include "tests/support/row_tests.h"

namespace ZQ7Standard {
namespace {

TEST(ShellValue, IsReadNotRun) {
  ExpectRows<const char*>(
      [](const char* value) { return ShellValue(value); },
      {{{"\"Debian GNU/Linux 12 (bookworm)\""}, "Debian GNU/Linux 12 (bookworm)"},
       {{"\"a \\\"b\\\" \\\\ \\$c\""}, "a \"b\" \\ $c"},
       {{"'a\\b'"}, "a\\b"},
       {{"Debian"}, "Debian"},
       {{"$(reboot)"}, "$(reboot)"},
       {{""}, ""},
       {{"\"open"}, "none"},
       {{"\"open\\\""}, "none"}});
}

TEST(UserFolder, IsAbsoluteOrBelowHome) {
  const auto desktop = [](const char* settings) {
    return UserFolder(settings, "DESKTOP", "/home/somchai");
  };
  ExpectRows<const char*>(
      desktop, {{{"XDG_DESKTOP_DIR=\"$HOME/เดสก์ท็อป\""}, "/home/somchai/เดสก์ท็อป"},
                {{"# comment\n  XDG_DESKTOP_DIR = \"/srv/a \\\"b\\\"/\"\n"}, "/srv/a \"b\""},
                {{"XDG_DESKTOP_DIR=\"$HOME/\""}, "/home/somchai"},
                {{"XDG_DESKTOP_DIR=\"$HOME\""}, "/home/somchai"},
                {{"XDG_DESKTOP_DIR=\"/a\"\nXDG_DESKTOP_DIR=\"/b\"\n"}, "/b", "the last counts"},
                {{"XDG_DESKTOP_DIR=\"/a\"\nXDG_DESKTOP_DIR=\"b\"\n"}, "/a", "relative"},
                {{"XDG_DESKTOP_DIR=\"$HOMER/a\""}, "none"},
                {{"XDG_DESKTOP_DIR=\"\\$HOME/a\""}, "none"},
                {{"XDG_DESKTOP_DIR=\"$(pwd)/a\""}, "none"},
                {{"XDG_DESKTOP_DIR=/a"}, "none"},
                {{"XDG_DESKTOP_DIR=\"/a"}, "none"},
                {{"XDG_DESKTOP_DIRS=\"/a\""}, "none"},
                {{"XDG_MUSIC_DIR=\"/a\""}, "none"}});
}

}  // namespace
}  // namespace ZQ7Standard
