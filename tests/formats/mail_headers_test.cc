#include "formats/mail_headers.h"

#include "tests/support/row_tests.h"

namespace ZQ7Standard {
namespace {

std::string Subject(TextView text) {
  return TextHeader("Subject", text);
}

// What readers make of encoded words, the test of mail servers shows.
TEST(MailHeaders, EncodeWhatALineCannotHold) {
  ExpectTexts(Subject, {{"Subject: Invoice 12", {u"Invoice 12"}},
                        {"Subject: =?UTF-8?B?4LiB?=", {u"ก"}},
                        {"Subject: =?UTF-8?B?PT8=?=", {u"=?"}},
                        {"Subject: =?UTF-8?B?IGE=?=", {u" a"}},
                        {"Subject: =?UTF-8?B?YQli?=", {u"a\tb"}},
                        {"Subject: =?UTF-8?B?8J+YgPCfmIDwn5iA8J+YgPCfmIDwn5iA8J+YgPCfmIDwn5iA?=\r\n"
                         " =?UTF-8?B?8J+YgA==?=",
                         {u"😀😀😀😀😀😀😀😀😀😀"}}});
  EXPECT_EQ(Subject(Text(67, u'a')), "Subject: " + std::string(67, 'a'));
  EXPECT_EQ(Subject(Text(68, u'a')).find("Subject: =?UTF-8?B?"), 0U);
}

TEST(MailHeaders, NamePeople) {
  EXPECT_EQ(AddressHeader("To", {{u"", "a@b"}, {u"Last, \"F\"", "c@d"}, {u"ก", "e@f"}}),
            "To: a@b, \"Last, \\\"F\\\"\" <c@d>, =?UTF-8?B?4LiB?= <e@f>");
  EXPECT_EQ(AddressHeader("Cc", std::vector<MailAddress>(5, {u"", "somebody@shop.example"})),
            "Cc: somebody@shop.example, somebody@shop.example, somebody@shop.example,\r\n"
            " somebody@shop.example, somebody@shop.example");
}

TEST(MailHeaders, TellTheDateInItsZone) {
  const OleDate date = OleDate::FromParts(2024, 1, 5, 9, 3, 7);
  EXPECT_EQ(DateHeader(date, std::chrono::minutes(420)), "Date: Fri, 05 Jan 2024 09:03:07 +0700");
  EXPECT_EQ(DateHeader(date, std::chrono::minutes(-210)), "Date: Fri, 05 Jan 2024 09:03:07 -0330");
}

TEST(MailHeaders, NameFiles) {
  const auto type = [](TextView name) { return FileHeaders(name)[0]; };
  EXPECT_EQ(type(u"a.PDF"), "Content-Type: application/pdf");
  EXPECT_EQ(type(u"a.txt"), "Content-Type: application/octet-stream");
  EXPECT_EQ(type(u"pdf"), "Content-Type: application/octet-stream");
  EXPECT_EQ(FileHeaders(u"a \"b\";c.pdf")[1],
            "Content-Disposition: attachment;\r\n filename*=UTF-8''a%20%22b%22%3Bc.pdf");
  const std::string tail = "%E0%B8%81%E0%B8%81%E0%B8%81%E0%B8%81%E0%B8%81";
  EXPECT_EQ(FileHeaders(u"aกกกกกกกกกก")[1],
            "Content-Disposition: attachment;\r\n filename*0*=UTF-8''a" + tail +
                ";\r\n filename*1*=" + tail);
}

}  // namespace
}  // namespace ZQ7Standard
