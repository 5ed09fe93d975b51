#include "formats/server_name.h"

#include "tests/support/row_tests.h"

namespace ZQ7Standard {
namespace {

std::string Read(TextView text) {
  const auto server = ReadServerName(text);
  if (!server) return "none";
  return server->host + " " + (server->port ? std::to_string(*server->port) : "-");
}

TEST(ServerName, IsRead) {
  ExpectTexts(Read, {{"time.example -", {u"time.example"}},
                     {"time.example 123", {u"time.example:123"}},
                     {"10.0.0.1 65535", {u"10.0.0.1:65535"}},
                     {"::1 -", {u"::1", u"[::1]"}},
                     {"fe80::1 123", {u"[fe80::1]:123"}},
                     {"เวลา.example -", {u"เวลา.example"}},
                     {"none",
                      {u"", u" ", u"a b", u"a:", u":1", u"a:0", u"a:65536", u"a:1x", u"a:-1",
                       u"[::1", u"[::1]1", u"[::1]:", u"[a]", u"a/b", u"user@a", u"a\r\nb", u"a%00",
                       TextView(u"a\0b", 3)}}});
}

TEST(ServerName, OfThisMachineIsKnown) {
  for (const char* const here : {"localhost", "LocalHost", "127.0.0.1", "127.255.0.9", "::1"}) {
    EXPECT_TRUE(IsThisMachine(here)) << here;
  }
  for (const char* const other :
       {"", "127.0.0.1.example", "127.example", "127.0.0.256", "127.0.0.", "127.0.0.1x", "127.1",
        "10.0.0.1", "128.0.0.1", "localhost.example", "::2"}) {
    EXPECT_FALSE(IsThisMachine(other)) << other;
  }
}

}  // namespace
}  // namespace ZQ7Standard
