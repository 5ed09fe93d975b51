#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/platform/mail_transport.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "tests/support/row_tests.h"

namespace ZQ7Standard {
namespace {

/// Keeps what it is to send.
struct FakeTransport final : MailTransport {
  void Send(const MailServer& to, const MailMessage& sent) override {
    server = to;
    message = sent;
  }
  MailServer server;
  std::optional<MailMessage> message;
};

/// The arguments of a message, one of which a test changes.
struct Arguments {
  Text server = u"127.0.0.1";
  std::int32_t port = 25;
  ZQ7ConnectionSecurity security = ZQ7ConnectionSecurityNone;
  Text user = u"user";
  Text password = u"p@ss";
  Text from = u"shop@shop.example";
  Text to = u"a@b.example";
  Text subject = u"Subject";
  Text body = u"Body";
  std::vector<Text> attachments = {};
  Text cc = {};
  Text bcc = {};
};

/// The error of sending; 0 if the message went to the transport.
std::string ErrorText(const Arguments& a, const std::shared_ptr<FakeTransport>& transport) {
  try {
    StandardObject({.mail_transport = transport})
        .SendMail(a.server, a.port, a.security, a.user, a.password, a.from, a.to, a.subject, a.body,
                  a.attachments, a.cc, a.bcc);
    return "";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), 5);
    EXPECT_EQ(transport->message, std::nullopt);
    return error.what();
  }
}

TEST(SendMail, RefusesWhatIsNoMessage) {
  using Change = void (*)(Arguments&);
  const std::vector<std::pair<const char*, Change>> cases = {
      {"Server", [](Arguments& a) { a.server = u""; }},
      {"Server", [](Arguments& a) { a.server = u"127.0.0.1:25"; }},
      {"Server", [](Arguments& a) { a.server = u"a\r\nb"; }},
      {"Port", [](Arguments& a) { a.port = 0; }},
      {"Port", [](Arguments& a) { a.port = 65536; }},
      {"Security", [](Arguments& a) { a.security = static_cast<ZQ7ConnectionSecurity>(3); }},
      {"User", [](Arguments& a) { a.user = u"a\r\nQUIT"; }},
      {"Password", [](Arguments& a) { a.password += u'\0'; }},
      {"Password", [](Arguments& a) { a.user = u""; }},
      {"Password", [](Arguments& a) { a.server = u"127.0.0.1.example"; }},
      {"From", [](Arguments& a) { a.from = u""; }},
      {"From", [](Arguments& a) { a.from = u"a@b, c@d"; }},
      {"From", [](Arguments& a) { a.from = u"\"a\r\nBcc: c@d\" <a@b>"; }},
      {"To", [](Arguments& a) { a.to = u"ก@b"; }},
      {"To", [](Arguments& a) { a.to = u" ; "; }},
      {"CC", [](Arguments& a) { a.cc = u"a@b\nDATA"; }},
      {"BCC", [](Arguments& a) { a.bcc = u"nobody"; }},
      {"Subject", [](Arguments& a) { a.subject = u"a\nBcc: c@d"; }},
      {"Body", [](Arguments& a) { a.body += u'\0'; }},
      {"Attachments", [](Arguments& a) { a.attachments = {u"a\nb.pdf"}; }},
  };
  for (const auto& [parameter, change] : cases) {
    Arguments arguments;
    change(arguments);
    const std::string error = ErrorText(arguments, std::make_shared<FakeTransport>());
    EXPECT_NE(error.find(": " + std::string(parameter)), std::string::npos) << error;
    EXPECT_EQ(error.find("p@ss"), std::string::npos) << "a password is in no message";
  }
}

TEST(SendMail, SendsAPasswordWhereItIsSafe) {
  for (const auto& [server, security] : std::vector<std::pair<TextView, ZQ7ConnectionSecurity>>{
           {u"localhost", ZQ7ConnectionSecurityNone},
           {u"[::1]", ZQ7ConnectionSecurityNone},
           {u"mail.example", ZQ7ConnectionSecuritySTARTTLS},
           {u"mail.example", ZQ7ConnectionSecuritySSL_TLS}}) {
    const auto transport = std::make_shared<FakeTransport>();
    Arguments arguments = {.server = Text(server), .security = security};
    EXPECT_EQ(ErrorText(arguments, transport), "");
    EXPECT_EQ(transport->server.password, "p@ss");
  }
}

TEST(SendMail, NamesEverybodyOnce) {
  const auto transport = std::make_shared<FakeTransport>();
  EXPECT_EQ(
      ErrorText(
          {.to = u"a@b.example; A@B.example, c@d", .cc = u"x <c@d>", .bcc = u"e@f;a@b.example"},
          transport),
      "");
  const MailMessage& message = *transport->message;
  EXPECT_EQ(message.recipients, (std::vector<std::string>{"a@b.example", "c@d", "e@f"}));
  EXPECT_TRUE(std::ranges::none_of(message.headers, [](const std::string& header) {
    return header.find("e@f") != std::string::npos;
  }));
}

TEST(SendMail, TellsItsTimeAndHasAName) {
  const auto transport = std::make_shared<FakeTransport>();
  const StandardObject standard({.clock = FixedClock(TestNow()), .mail_transport = transport});
  std::string last;
  for (int i = 0; i < 3; ++i) {
    standard.SendMail(u"mail.example", 25, ZQ7ConnectionSecurityNone, u"", u"", u"a@b.example",
                      u"c@d", u"", u"a\nb\r\n\rc");
    const auto& headers = transport->message->headers;
    ASSERT_EQ(headers.size(), 4U);
    EXPECT_EQ(headers[2].find("Date: Mon, 15 Jan 2024 09:30:00 "), 0U);
    EXPECT_NE(headers[3], std::exchange(last, headers[3]));
    EXPECT_TRUE(headers[3].ends_with("@b.example>"));
    EXPECT_EQ(transport->message->body, "a\r\nb\r\n\r\nc");
  }
}

}  // namespace
}  // namespace ZQ7Standard
