#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/platform/mail_transport.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "base/raise.h"
#include "formats/lines.h"
#include "formats/mail_address.h"
#include "formats/mail_headers.h"
#include "formats/server_name.h"
#include "io/random_id.h"
#include "platform/service_set.h"

namespace ZQ7Standard {
namespace {

constexpr std::string_view kOperation = "SendMail";

/// Raises 5 for a text that could begin a line of its own, and so a header or a command.
void RefuseLineBreaks(std::string_view parameter, TextView text) {
  if (text.find_first_of(TextView(u"\r\n\0", 3)) == TextView::npos) return;
  Raise(Error::kInvalidArgument, {kOperation, parameter}, "a line break or a zero character");
}

std::vector<MailAddress> AddressesOf(std::string_view parameter, TextView list) {
  MailAddresses read = ReadMailAddresses(list);
  if (!read.problem.empty()) {
    Raise(Error::kInvalidArgument, {kOperation, parameter}, read.problem);
  }
  return std::move(read.addresses);
}

std::string HostOf(TextView server) {
  const auto name = ReadServerName(server);
  if (!name || name->port) Raise(Error::kInvalidArgument, {kOperation, "Server"}, server);
  return name->host;
}

/// A server for which the password is safe: never shown in an error, and never sent in clear to
/// another machine.
MailServer ServerOf(TextView name, std::int32_t port, ZQ7ConnectionSecurity security, TextView user,
                    TextView password) {
  if (port < 1 || port > 65535) Raise(Error::kInvalidArgument, {kOperation, "Port"}, port);
  if (security < ZQ7ConnectionSecurityNone || security > ZQ7ConnectionSecuritySSL_TLS) {
    Raise(Error::kInvalidArgument, {kOperation, "Security"}, +security);
  }
  RefuseLineBreaks("User", user);
  RefuseLineBreaks("Password", password);
  MailServer server = {HostOf(name), static_cast<std::uint16_t>(port), security, Utf8(user),
                       Utf8(password)};
  if (password.empty()) return server;
  if (user.empty()) {
    Raise(Error::kInvalidArgument, {kOperation, "Password"}, "there is no user for it");
  }
  if (security == ZQ7ConnectionSecurityNone && !IsThisMachine(server.host)) {
    Raise(Error::kInvalidArgument, {kOperation, "Password"},
          "without security anybody could read it");
  }
  return server;
}

/// The name of the file that a path text leads to.
TextView FileName(TextView path) {
  const std::size_t end = path.find_last_of(u"\\/:");
  return path.substr(end == TextView::npos ? 0 : end + 1);
}

std::vector<MailAttachment> AttachmentsOf(const std::vector<Text>& paths) {
  std::vector<MailAttachment> attachments;
  for (const Text& path : paths) {
    RefuseLineBreaks("Attachments", path);
    attachments.push_back({path, FileHeaders(FileName(path))});
  }
  return attachments;
}

/// Who is written to.
struct Recipients {
  std::vector<MailAddress> to;
  std::vector<MailAddress> cc;
  std::vector<MailAddress> bcc;
};

/// The addresses alone, each once.
std::vector<std::string> MailboxesOf(const Recipients& recipients) {
  std::vector<std::string> mailboxes;
  for (const auto* const list : {&recipients.to, &recipients.cc, &recipients.bcc}) {
    for (const MailAddress& entry : *list) {
      const auto is_same = [&](const std::string& known) {
        return IsSameMailbox(known, entry.address);
      };
      if (std::ranges::none_of(mailboxes, is_same)) mailboxes.push_back(entry.address);
    }
  }
  return mailboxes;
}

std::string DateHeaderOf(OleDate local, TimeZone& zone) {
  const double days = local.Days() - zone.ToUtc(local).Days();
  return DateHeader(local, std::chrono::minutes(std::lround(days * 24 * 60)));
}

/// The headers that name people and the subject. The hidden recipients are in none.
std::vector<std::string> HeadersOf(const MailAddress& from, const Recipients& recipients,
                                   TextView subject) {
  std::vector<std::string> headers = {AddressHeader("From", {from})};
  if (!recipients.to.empty()) headers.push_back(AddressHeader("To", recipients.to));
  if (!recipients.cc.empty()) headers.push_back(AddressHeader("Cc", recipients.cc));
  if (!subject.empty()) headers.push_back(TextHeader("Subject", subject));
  return headers;
}

}  // namespace

void StandardObject::SendMail(TextView Server, std::int32_t Port, ZQ7ConnectionSecurity Security,
                              TextView User, TextView Password, TextView From, TextView To,
                              TextView Subject, TextView Body, const std::vector<Text>& Attachments,
                              TextView CC, TextView BCC, bool IsHtml) const {
  const MailServer server = ServerOf(Server, Port, Security, User, Password);
  const auto from = AddressesOf("From", From);
  if (from.size() != 1) Raise(Error::kInvalidArgument, {kOperation, "From"}, From);
  const Recipients recipients = {AddressesOf("To", To), AddressesOf("CC", CC),
                                 AddressesOf("BCC", BCC)};
  RefuseLineBreaks("Subject", Subject);
  if (Body.find(u'\0') != TextView::npos) {
    Raise(Error::kInvalidArgument, {kOperation, "Body"}, "a zero character");
  }
  MailMessage message = {.sender = from[0].address,
                         .recipients = MailboxesOf(recipients),
                         .headers = HeadersOf(from[0], recipients, Subject),
                         .body = Utf8(WithLineEnds(Body)),
                         .is_html = IsHtml,
                         .attachments = AttachmentsOf(Attachments)};
  if (message.recipients.empty()) Raise(Error::kInvalidArgument, {kOperation, "To"}, To);
  Named({kOperation}, [&] {
    const std::string domain = message.sender.substr(message.sender.find('@'));
    message.headers.push_back(DateHeaderOf(services_->Now(), services_->Zone()));
    message.headers.push_back("Message-ID: <" + RandomId(services_->Random()) + domain + ">");
    services_->Mail().Send(server, message);
  });
}

}  // namespace ZQ7Standard
