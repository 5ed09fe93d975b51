#include "formats/address.h"

#include <gtest/gtest.h>

#include "tests/support/row_tests.h"

namespace ZQ7Standard {
namespace {

TEST(AddressToOpen, AcceptsAndEncodes) {
  ExpectRows<TextView>(
      [](TextView typed) { return AddressToOpen(typed); },
      {{{u"https://shop.example/a?b=1#c"}, "https://shop.example/a?b=1#c"},
       {{u" HTTP://shop.example "}, "http://shop.example"},
       {{u"https://shop.example/ราคา 5"},
        "https://shop.example/%E0%B8%A3%E0%B8%B2%E0%B8%84%E0%B8%B2%205"},
       {{u"https://shop.example/100%25"}, "https://shop.example/100%25", "encoded already"},
       {{u"https://shop.example/\"><'"}, "https://shop.example/%22%3E%3C'"},
       {{u"mailto:a@shop.example"}, "mailto:a@shop.example"},
       {{u"file:///srv/a b"}, "file:///srv/a%20b"},
       {{u"http://"}, "none"},
       {{u"http:///etc"}, "none", "no host"},
       {{u"http://:80/"}, "none", "no host"},
       {{u"http://shop.example/\r\nX"}, "none", "a control character"},
       {{u"javascript:alert(1)"}, "none"},
       {{u"data:text/html,x"}, "none"},
       {{u"--help"}, "none"},
       {{u"shop.example"}, "none"},
       {{u""}, "none"}});
}

TEST(FileOfAddress, IsOnThisMachine) {
  ExpectRows<const char*>([](const char* address) { return FileOfAddress(address); },
                          {{{"file:///srv/a%20b?x#y"}, "/srv/a b"},
                           {{"file:/srv/a"}, "/srv/a"},
                           {{"file://localhost/srv/%E0%B8%81"}, "/srv/ก"},
                           {{"file:///srv/100%"}, "/srv/100%", "no digits"},
                           {{"file:///srv/%4"}, "/srv/%4", "one digit"},
                           {{"file:///srv/a%00b"}, "none", "no path holds it"},
                           {{"file://server/share"}, "none", "another machine"},
                           {{"file:srv"}, "none", "not a whole path"},
                           {{"http://shop.example/"}, "none"}});
}

TEST(MailtoAddress, AddsNothingThatWasTyped) {
  ExpectRows<TextView, TextView, TextView>(
      MailtoAddress,
      {{{u"a@shop.example", u"", u""}, "mailto:a@shop.example"},
       {{u" a@b.example ; c@d.example,", u"", u""}, "mailto:a@b.example,c@d.example"},
       {{u"", u"a&b=c?", u""}, "mailto:?subject=a%26b%3Dc%3F"},
       {{u"a@b?attach=/etc/passwd&bcc=x@y", u"", u""},
        "mailto:a@b%3Fattach%3D%2Fetc%2Fpasswd%26bcc%3Dx@y"},
       {{u"a@b", u"ก", u"1\n2\r\n3\r4"},
        "mailto:a@b?subject=%E0%B8%81&body=1%0D%0A2%0D%0A3%0D%0A4"}});
}

}  // namespace
}  // namespace ZQ7Standard
