#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/mail_transport.h>

#include <utility>

#include "platform/modules.h"

namespace ZQ7Standard {
namespace {

/// Replaces the transport if its module is missing.
class NoMailTransport final : public MailTransport {
 public:
  explicit NoMailTransport(std::string problem) : problem_(std::move(problem)) {}

  void Send(const MailServer& /*server*/, const MailMessage& /*message*/) override {
    throw RunTimeError(Error::kCannotCreateObject, "no mail can be sent: " + problem_);
  }

 private:
  std::string problem_;
};

}  // namespace

std::shared_ptr<MailTransport> SystemMailTransport(MailOptions options, DriveMap drives) {
  const auto& [functions, problem] = NetworkModule();
  if (functions == nullptr) return std::make_shared<NoMailTransport>(problem);
  return functions->mail_transport(std::move(options), std::move(drives));
}

}  // namespace ZQ7Standard
