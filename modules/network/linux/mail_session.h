#ifndef ZQ7STANDARD_MODULES_NETWORK_LINUX_MAIL_SESSION_H_
#define ZQ7STANDARD_MODULES_NETWORK_LINUX_MAIL_SESSION_H_

#include <ZQ7Standard/platform/mail_transport.h>
#include <curl/curl.h>

#include <array>
#include <string>
#include <vector>

#include "handle.h"
#include "network/linux/attached_file.h"

namespace ZQ7Standard {

/// One connection to a mail server, for one message.
class MailSession {
 public:
  MailSession(const MailServer& server, const MailOptions& options);
  MailSession(const MailSession&) = delete;
  MailSession& operator=(const MailSession&) = delete;

  /// Sends the message with its opened attachments; returns once the server has accepted it.
  void Send(const MailMessage& message, std::vector<AttachedFile>& files);

 private:
  using List = Handle<curl_slist, curl_slist_free_all>;

  template <typename Value>
  void Set(CURLoption option, Value value);
  void SetAddress(const MailServer& server);
  void SetSecurity(const MailServer& server, const MailOptions& options);
  void SetLogIn(const MailServer& server, bool password_is_token);
  void SetLimits(const MailOptions& options);
  curl_mimepart* NewPart();
  void AddBody(const MailMessage& message);
  void AddAttachment(const MailAttachment& attachment, AttachedFile& file);
  [[noreturn]] void Fail(CURLcode code) const;

  static List ListOf(const std::vector<std::string>& lines);
  static std::size_t OnReply(char* bytes, std::size_t size, std::size_t count, void* session);

  std::string server_name_;
  std::string greeting_;  // the server's first line
  std::string refusal_;   // the last line with which it refused something
  std::array<char, CURL_ERROR_SIZE> problem_{};
  // The connection uses the rest until it is closed.
  List envelope_;
  List headers_;
  Handle<curl_mime, curl_mime_free> mime_;
  Handle<CURLU, curl_url_cleanup> address_;
  Handle<CURL, curl_easy_cleanup> curl_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_NETWORK_LINUX_MAIL_SESSION_H_
