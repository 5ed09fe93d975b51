// Sends mail to servers of this machine: suites named Network*.

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/platform/mail_transport.h>
#include <gtest/gtest.h>
#include <stdlib.h>

#include <fstream>
#include <sstream>
#include <string>

#include "tests/support/child_server.h"
#include "tests/support/row_tests.h"
#include "tests/support/temp_folder.h"

namespace ZQ7Standard {
namespace {

constexpr auto kNone = ZQ7ConnectionSecurityNone;
constexpr auto kStartTls = ZQ7ConnectionSecuritySTARTTLS;
constexpr auto kTls = ZQ7ConnectionSecuritySSL_TLS;

/// The folders of servers with a certificate for 127.0.0.1.
class NetworkMail : public ::testing::Test {
 protected:
  NetworkMail() {
    folder_.Run(
        "openssl req -x509 -newkey rsa:2048 -nodes -keyout key -out certificate -days 2 "
        "-subj /CN=zq7 -addext subjectAltName=IP:127.0.0.1 2>&1");
    options_.trusted_certificates = folder_.Native() / "certificate";
    options_.connection_limit = std::chrono::seconds(20);
  }

  /// Starts another server.
  void Serve(const std::string& security, const std::string& fault = "") {
    for (const char* const name : {"message", "summary", "envelope", "body", "files"}) {
      std::filesystem::remove(folder_.Native() / name);
    }
    server_ = std::make_unique<ChildServer>(std::vector<std::string>{
        ZQ7_SOURCE_DIR "/tests/support/mail_server", folder_.Native().string(), security, fault});
    port_ = std::stoi("0" + server_->FirstLine());
  }

  /// The number of the error of sending a message; 0 if there is none.
  int Send(ZQ7ConnectionSecurity security, TextView user = {}, TextView password = {},
           TextView to = u"a@b.example") {
    const StandardObject standard({.mail_transport = SystemMailTransport(options_)});
    return ErrorOf([&] {
      standard.SendMail(host_, port_, security, user, password, u"shop@shop.example", to,
                        u"Subject", u"Body");
    });
  }

  std::string Kept(const std::string& name) const {
    return (std::ostringstream() << std::ifstream(folder_.Native() / name).rdbuf()).str();
  }

  TempFolder folder_;
  MailOptions options_;
  std::unique_ptr<ChildServer> server_;
  Text host_ = u"127.0.0.1";
  int port_ = 0;
};

TEST_F(NetworkMail, ArrivesAsItWasSent) {
  Serve("none");
  std::string bytes;
  for (unsigned i = 0; i < 3'000'000; ++i) bytes += static_cast<char>(i * 7919 >> 3);
  std::ofstream(folder_.Native() / "ใบเสร็จ รับเงิน เลขที่ 0001.pdf") << bytes;
  std::ofstream(folder_.Native() / "empty") << "";
  setenv("ALL_PROXY", "http://127.0.0.1:1", 1);
  StandardObject().SendMail(
      u"localhost", port_, kNone, u"", u"", u"\"ร้าน, สาขา 2\" <shop@shop.example>",
      u"\"Last, First\" <a@b.example>; c@d.example",
      u"ใบเสร็จรับเงินสำหรับการสั่งซื้อเมื่อวันที่ 15 มกราคม 2567", u".\nสวัสดี\r\n.. end \n",
      {folder_.Path("ใบเสร็จ รับเงิน เลขที่ 0001.pdf"), folder_.Path("empty")}, u"ก <c@D.EXAMPLE>",
      u"hidden@e.example");
  unsetenv("ALL_PROXY");
  EXPECT_EQ(Kept("summary"),
            "From: \"ร้าน, สาขา 2\" <shop@shop.example>\n"
            "To: \"Last, First\" <a@b.example>, c@d.example\n"
            "Cc: ก <c@D.EXAMPLE>\n"
            "Subject: ใบเสร็จรับเงินสำหรับการสั่งซื้อเมื่อวันที่ 15 มกราคม 2567\n"
            "text/plain\n"
            "application/pdf ใบเสร็จ รับเงิน เลขที่ 0001.pdf\n"
            "application/octet-stream empty");
  EXPECT_EQ(Kept("envelope"), "shop@shop.example a@b.example c@d.example hidden@e.example");
  EXPECT_EQ(Kept("body"), ".\r\nสวัสดี\r\n.. end \r\n");
  EXPECT_TRUE(Kept("files") == bytes);
  const std::string message = Kept("message");
  EXPECT_EQ(message.find("hidden"), std::string::npos);
  EXPECT_NE(message.find("\nDate: "), std::string::npos);
  EXPECT_NE(message.find("\nMessage-ID: <"), std::string::npos);
}

TEST_F(NetworkMail, IsSecureOrNotSent) {
  struct Case {
    const char* server;
    ZQ7ConnectionSecurity security;
    bool trusted;
    TextView host;
    int error;
  };
  const Case cases[] = {
      {"starttls", kStartTls, true, u"127.0.0.1", 0},   {"tls", kTls, true, u"127.0.0.1", 0},
      {"starttls", kStartTls, false, u"127.0.0.1", 70}, {"tls", kTls, false, u"127.0.0.1", 70},
      {"starttls", kStartTls, true, u"localhost", 70},  {"tls", kTls, true, u"localhost", 70},
      {"none", kStartTls, true, u"127.0.0.1", 70}};
  for (const auto& [server, security, trusted, host, error] : cases) {
    Serve(server);
    options_.trusted_certificates = trusted ? folder_.Native() / "certificate" : "";
    host_ = host;
    EXPECT_EQ(Send(security), error) << server << trusted << Utf8(host);
    EXPECT_EQ(Kept("message").empty(), error != 0) << server << trusted << Utf8(host);
  }
}

TEST_F(NetworkMail, LogsIn) {
  Serve("starttls");
  EXPECT_EQ(Send(kStartTls, u"ร้าน", u"ลับ"), 0);
  EXPECT_EQ(Send(kStartTls, u"ร้าน", u"wrong"), 70);
  options_.password_is_token = true;
  EXPECT_EQ(Send(kStartTls, u"shop", u"token"), 0);
  EXPECT_EQ(Send(kStartTls, u"shop", u"other"), 70);
  Serve("none");
  options_.password_is_token = false;
  EXPECT_EQ(Send(kNone, u"ร้าน", u"ลับ"), 0);
  EXPECT_EQ(Send(kNone, u"ร้าน", u"wrong"), 70);
}

TEST_F(NetworkMail, TellsWhatWentWrong) {
  Serve("none");
  EXPECT_EQ(Send(kNone, u"", u"", u"a@b.example, refused@b.example"), 57);
  EXPECT_EQ(Kept("message"), "") << "nobody gets what one recipient cannot";
  const StandardObject standard({.mail_transport = SystemMailTransport(options_)});
  try {
    standard.SendMail(host_, port_, kNone, u"", u"", u"a@b", u"refused@b", u"", u"");
  } catch (const RunTimeError& error) {
    EXPECT_NE(std::string(error.what()).find("550 5.1.1 nobody has this name"), std::string::npos);
  }
  for (const auto& [path, number] : std::vector<std::pair<Text, int>>{
           {folder_.Path("none"), 53}, {folder_.Path(""), 75}, {u"/none/none", 76}}) {
    EXPECT_EQ(ErrorOf([&, &path = path] {
                standard.SendMail(host_, port_, kNone, u"", u"", u"a@b", u"a@b", u"", u"", {path});
              }),
              number)
        << Utf8(path);
  }
  server_.reset();
  EXPECT_EQ(Send(kNone), 68);
}

TEST_F(NetworkMail, DoesNotWaitForBrokenServers) {
  options_.connection_limit = std::chrono::seconds(1);
  options_.stall_limit = std::chrono::seconds(1);
  const std::vector<std::tuple<const char*, ZQ7ConnectionSecurity, int>> cases = {
      {"silent", kNone, 68},
      {"silent", kTls, 68},
      {"pipelined", kStartTls, 70},
      {"stalled", kNone, 68},
      {"dropped", kNone, 57}};
  for (const auto& [fault, security, error] : cases) {
    Serve("none", fault);
    EXPECT_EQ(Send(security), error) << fault;
  }
}

}  // namespace
}  // namespace ZQ7Standard
