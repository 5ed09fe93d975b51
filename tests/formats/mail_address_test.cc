#include "formats/mail_address.h"

#include "tests/support/row_tests.h"

namespace ZQ7Standard {
namespace {

std::string Read(TextView list) {
  const auto [addresses, problem] = ReadMailAddresses(list);
  std::string read;
  for (const auto& [name, address] : addresses) read += "[" + Utf8(name) + "|" + address + "]";
  return problem.empty() ? read : "problem";
}

TEST(MailAddress, IsRead) {
  ExpectTexts(Read, {{"", {u"", u" ", u";", u" , ;"}},
                     {"[|a@b]", {u"a@b", u" a@b ; ", u"<a@b>"}},
                     {"[|a@b][|c@d]", {u"a@b;c@d", u"a@b,c@d", u"a@b, ;c@d"}},
                     {"[Last, First|a@b]", {u"\"Last, First\" <a@b>"}},
                     {"[a \"b\" \\|a@b]", {u"\"a \\\"b\\\" \\\\\" <a@b>"}},
                     {"[ร้าน ก|a@b]", {u"ร้าน ก<a@b>", u"\"ร้าน ก\" <a@b>"}},
                     {"[|a.b+c=d@x-y.example]", {u"a.b+c=d@x-y.example"}},
                     {"[|a@[127.0.0.1]]", {u"a@[127.0.0.1]"}},
                     {"problem",
                      {u"a",
                       u"@b",
                       u"a@",
                       u"a@b@c",
                       u"a b@c",
                       u"ก@b",
                       u"a@ก.example",
                       u"a@b>",
                       u"<a@b",
                       u"a@b c@d",
                       u"\"a <a@b>",
                       u"\"a\"b <a@b>",
                       u"a \"b <a@b>",
                       u"x <a@b> y",
                       u"a@[",
                       u"a@[]",
                       u"a@b\r\nRCPT TO:<c@d>",
                       u"\"a\nb\" <a@b>",
                       u"a<b@c>d@e",
                       TextView(u"a@b\0", 4)}}});
  EXPECT_EQ(Read(Text(250, u'a') + u"@b.c"), "[|" + std::string(250, 'a') + "@b.c]");
  EXPECT_EQ(Read(Text(251, u'a') + u"@b.c"), "problem");
}

TEST(MailAddress, IsTheSameInCapitals) {
  EXPECT_TRUE(IsSameMailbox("A@b.Example", "a@B.example"));
  EXPECT_FALSE(IsSameMailbox("a@b", "a@c"));
}

}  // namespace
}  // namespace ZQ7Standard
