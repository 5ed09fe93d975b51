#ifndef ZQ7STANDARD_PLATFORM_MAIL_TRANSPORT_H_
#define ZQ7STANDARD_PLATFORM_MAIL_TRANSPORT_H_

#include <ZQ7Standard/Enumerations.h>
#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/Types.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace ZQ7Standard {

/// A mail server and the log-in to it, in UTF-8.
struct MailServer {
  std::string host;  ///< a name or an address, without brackets
  std::uint16_t port = 0;
  ZQ7ConnectionSecurity security = ZQ7ConnectionSecurityNone;
  std::string user = {};  ///< empty: no log-in
  std::string password = {};
};

/// A file that goes with a message.
struct MailAttachment {
  Text path;                         ///< a path text
  std::vector<std::string> headers;  ///< its content type and its file name, as header lines
};

/// A message ready to be sent. Its parts are ASCII but for the body.
struct MailMessage {
  std::string sender;                   ///< an address alone
  std::vector<std::string> recipients;  ///< the same, each once
  std::vector<std::string> headers;     ///< encoded and folded, without those of MIME
  std::string body;                     ///< UTF-8 with CR LF after each line
  bool is_html = false;
  std::vector<MailAttachment> attachments = {};
};

/// Hands messages to a mail server, which delivers them. Raises 53 for an attachment that
/// does not exist, 68 if there is no connection in time, 70 if it cannot be made secure or the
/// log-in fails, 57 if the server refuses the message or a recipient: nobody gets it then.
class ZQ7STANDARD_EXPORT MailTransport {
 public:
  virtual ~MailTransport();

  virtual void Send(const MailServer& server, const MailMessage& message) = 0;
};

/// How the machine's transport connects and for how long it waits.
struct MailOptions {
  /// The certificates (PEM) that are trusted instead of the system's.
  std::filesystem::path trusted_certificates = {};
  /// The password is an access token (XOAUTH2).
  bool password_is_token = false;
  /// To the end of the log-in.
  std::chrono::milliseconds connection_limit = std::chrono::seconds(30);
  /// Without a byte or an answer.
  std::chrono::milliseconds stall_limit = std::chrono::seconds(60);
  std::chrono::milliseconds whole_limit = std::chrono::minutes(30);
};

/// The transport of the network module, by SMTP. It asks no proxy. In a library built without
/// ZQ7STANDARD_WITH_NETWORK, sending raises 429. docs/system.md
ZQ7STANDARD_EXPORT std::shared_ptr<MailTransport> SystemMailTransport(MailOptions options = {},
                                                                      DriveMap drives = {});

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_MAIL_TRANSPORT_H_
