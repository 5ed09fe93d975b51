#include "network/linux/mail_session.h"

#include <ZQ7Standard/RunTimeError.h>

#include <algorithm>
#include <new>

namespace ZQ7Standard {
namespace {

constexpr std::size_t kLongestReply = 500;

struct CodeRow {
  CURLcode code;
  Error error;
};

// Anything else means that the server refused the message, or was lost in the middle of it.
constexpr auto kErrors = std::to_array<CodeRow>({
    {CURLE_COULDNT_RESOLVE_HOST, Error::kDeviceUnavailable},
    {CURLE_COULDNT_CONNECT, Error::kDeviceUnavailable},
    {CURLE_OPERATION_TIMEDOUT, Error::kDeviceUnavailable},
    {CURLE_REMOTE_ACCESS_DENIED, Error::kPermissionDenied},
    {CURLE_SSL_CONNECT_ERROR, Error::kPermissionDenied},
    {CURLE_PEER_FAILED_VERIFICATION, Error::kPermissionDenied},
    {CURLE_SSL_CACERT_BADFILE, Error::kPermissionDenied},
    {CURLE_USE_SSL_FAILED, Error::kPermissionDenied},
    {CURLE_LOGIN_DENIED, Error::kPermissionDenied},
    {CURLE_AUTH_ERROR, Error::kPermissionDenied},
});

/// The greeting tells apart what libcurl calls a strange reply: a server that refuses to serve or is
/// no mail server, and a text that somebody put after the agreement to use TLS.
Error ErrorOf(CURLcode code, const std::string& greeting) {
  if (code == CURLE_WEIRD_SERVER_REPLY) {
    return greeting.starts_with("220") ? Error::kPermissionDenied : Error::kDeviceUnavailable;
  }
  const auto row = std::ranges::find(kErrors, code, &CodeRow::code);
  return row == kErrors.end() ? Error::kDeviceIoError : row->error;
}

/// A limit in seconds, the unit of some options.
long InSeconds(std::chrono::milliseconds limit) {
  return static_cast<long>(std::chrono::ceil<std::chrono::seconds>(limit).count());
}

long InMilliseconds(std::chrono::milliseconds limit) {
  return static_cast<long>(std::max<std::int64_t>(limit.count(), 1));  // 0 would be none
}

/// A host as it stands in an address, where colons are for ports.
std::string HostInAddress(const std::string& host) {
  return host.find(':') == std::string::npos ? host : "[" + host + "]";
}

}  // namespace

MailSession::MailSession(const MailServer& server, const MailOptions& options)
    : server_name_(HostInAddress(server.host) + ":" + std::to_string(server.port)),
      address_(curl_url()),
      curl_(curl_easy_init()) {
  if (!curl_ || !address_) throw std::bad_alloc();
  Set(CURLOPT_NOSIGNAL, 1L);
  Set(CURLOPT_ERRORBUFFER, problem_.data());
  Set(CURLOPT_HEADERFUNCTION, &MailSession::OnReply);
  Set(CURLOPT_HEADERDATA, this);
  Set(CURLOPT_PROTOCOLS_STR, "smtp,smtps");
  Set(CURLOPT_PROXY, "");  // the environment's would be used
  SetAddress(server);
  SetSecurity(server, options);
  SetLogIn(server, options.password_is_token);
  SetLimits(options);
}

template <typename Value>
void MailSession::Set(CURLoption option, Value value) {
  const CURLcode code = curl_easy_setopt(curl_.get(), option, value);
  if (code != CURLE_OK) Fail(code);
}

void MailSession::SetAddress(const MailServer& server) {
  const std::string host = HostInAddress(server.host);
  const std::string port = std::to_string(server.port);
  const bool is_secret = server.security == ZQ7ConnectionSecuritySSL_TLS;
  const bool is_set = curl_url_set(address_.get(), CURLUPART_SCHEME, is_secret ? "smtps" : "smtp",
                                   0) == CURLUE_OK &&
                      curl_url_set(address_.get(), CURLUPART_HOST, host.c_str(), 0) == CURLUE_OK &&
                      curl_url_set(address_.get(), CURLUPART_PORT, port.c_str(), 0) == CURLUE_OK;
  if (!is_set) {
    throw RunTimeError(Error::kInvalidArgument, "\"" + server.host + "\" is not a server");
  }
  Set(CURLOPT_CURLU, address_.get());
}

void MailSession::SetSecurity(const MailServer& server, const MailOptions& options) {
  const bool is_plain = server.security == ZQ7ConnectionSecurityNone;
  // To try would be to send the password in clear if somebody in between removes the offer.
  Set(CURLOPT_USE_SSL, is_plain ? CURLUSESSL_NONE : CURLUSESSL_ALL);
  Set(CURLOPT_SSL_VERIFYPEER, 1L);
  Set(CURLOPT_SSL_VERIFYHOST, 2L);
  Set(CURLOPT_SSLVERSION, CURL_SSLVERSION_TLSv1_2);
  if (options.trusted_certificates.empty()) return;
  Set(CURLOPT_CAINFO, options.trusted_certificates.c_str());
  Set(CURLOPT_CAPATH, static_cast<const char*>(nullptr));
}

void MailSession::SetLogIn(const MailServer& server, bool password_is_token) {
  if (server.user.empty()) return;
  Set(CURLOPT_USERNAME, server.user.c_str());
  Set(password_is_token ? CURLOPT_XOAUTH2_BEARER : CURLOPT_PASSWORD, server.password.c_str());
  // Without those that ask a service of their own.
  Set(CURLOPT_LOGIN_OPTIONS,
      password_is_token ? "AUTH=XOAUTH2" : "AUTH=PLAIN;AUTH=LOGIN;AUTH=CRAM-MD5");
}

void MailSession::SetLimits(const MailOptions& options) {
  Set(CURLOPT_CONNECTTIMEOUT_MS, InMilliseconds(options.connection_limit));
  Set(CURLOPT_TIMEOUT_MS, InMilliseconds(options.whole_limit));
  Set(CURLOPT_SERVER_RESPONSE_TIMEOUT, InSeconds(options.stall_limit));
  Set(CURLOPT_LOW_SPEED_TIME, InSeconds(options.stall_limit));
  Set(CURLOPT_LOW_SPEED_LIMIT, 1L);
  Set(CURLOPT_QUICK_EXIT, 1L);    // do not wait for the name service after a limit
  Set(CURLOPT_FORBID_REUSE, 1L);  // take leave of the server within the limits
}

MailSession::List MailSession::ListOf(const std::vector<std::string>& lines) {
  List list;
  for (const std::string& line : lines) {
    curl_slist* const longer = curl_slist_append(list.get(), line.c_str());
    if (longer == nullptr) throw std::bad_alloc();
    static_cast<void>(list.release());
    list.reset(longer);
  }
  return list;
}

curl_mimepart* MailSession::NewPart() {
  curl_mimepart* const part = curl_mime_addpart(mime_.get());
  if (part == nullptr) throw std::bad_alloc();
  return part;
}

void MailSession::AddBody(const MailMessage& message) {
  curl_mimepart* const part = NewPart();
  curl_mime_data(part, message.body.data(), message.body.size());
  curl_mime_type(part, message.is_html ? "text/html; charset=utf-8" : "text/plain; charset=utf-8");
  curl_mime_encoder(part, "quoted-printable");
}

void MailSession::AddAttachment(const MailAttachment& attachment, AttachedFile& file) {
  curl_mimepart* const part = NewPart();
  file.AddTo(part);
  curl_mime_encoder(part, "base64");
  curl_mime_headers(part, ListOf(attachment.headers).release(), 1);
}

void MailSession::Send(const MailMessage& message, std::vector<AttachedFile>& files) {
  Set(CURLOPT_MAIL_FROM, ("<" + message.sender + ">").c_str());
  envelope_ = ListOf(message.recipients);
  Set(CURLOPT_MAIL_RCPT, envelope_.get());
  headers_ = ListOf(message.headers);
  Set(CURLOPT_HTTPHEADER, headers_.get());
  mime_.reset(curl_mime_init(curl_.get()));
  AddBody(message);
  for (std::size_t i = 0; i < files.size(); ++i) AddAttachment(message.attachments[i], files[i]);
  Set(CURLOPT_MIMEPOST, mime_.get());
  const CURLcode code = curl_easy_perform(curl_.get());
  for (const AttachedFile& file : files) file.RaiseFailure();
  if (code != CURLE_OK) Fail(code);
}

std::size_t MailSession::OnReply(char* bytes, std::size_t size, std::size_t count, void* session) {
  const std::string_view line(bytes, size * count);
  auto& self = *static_cast<MailSession*>(session);
  const std::string reply(
      line.substr(0, std::min(line.find_last_not_of("\r\n") + 1, kLongestReply)));
  if (self.greeting_.empty()) self.greeting_ = reply;
  if (reply.starts_with('4') || reply.starts_with('5')) self.refusal_ = reply;
  return line.size();
}

void MailSession::Fail(CURLcode code) const {
  if (code == CURLE_OUT_OF_MEMORY) throw std::bad_alloc();
  std::string detail = server_name_ + ": ";
  detail += problem_[0] == '\0' ? curl_easy_strerror(code) : problem_.data();
  if (!refusal_.empty()) detail += ": " + refusal_;
  throw RunTimeError(ErrorOf(code, greeting_), detail);
}

}  // namespace ZQ7Standard
