#include "network/linux/mail_transport.h"

#include <ZQ7Standard/RunTimeError.h>

#include <utility>

#include "network/linux/mail_session.h"

namespace ZQ7Standard {
namespace {

/// Prepares libcurl, once in the process.
void StartCurl() {
  static const CURLcode code = curl_global_init(CURL_GLOBAL_DEFAULT);
  if (code != CURLE_OK) throw RunTimeError(Error::kCannotCreateObject, curl_easy_strerror(code));
}

class CurlMailTransport final : public MailTransport {
 public:
  CurlMailTransport(MailOptions options, DriveMap drives)
      : options_(std::move(options)), drives_(std::move(drives)) {}

  void Send(const MailServer& server, const MailMessage& message) override {
    StartCurl();
    std::vector<AttachedFile> files;
    files.reserve(message.attachments.size());
    for (const MailAttachment& attachment : message.attachments) {
      files.emplace_back(attachment.path, drives_);
    }
    MailSession(server, options_).Send(message, files);
  }

 private:
  MailOptions options_;
  DriveMap drives_;
};

std::shared_ptr<MailTransport> MakeTransport(MailOptions options, DriveMap drives) {
  return std::make_shared<CurlMailTransport>(std::move(options), std::move(drives));
}

}  // namespace

const NetworkFunctions kNetworkFunctions = {&MakeTransport};

}  // namespace ZQ7Standard
