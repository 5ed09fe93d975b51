#ifndef ZQ7STANDARD_TOOLS_ZQ7_HOST_H_
#define ZQ7STANDARD_TOOLS_ZQ7_HOST_H_

#include <ZQ7Standard/automation/invoke.h>
#include <ZQ7Standard/platform/message_box.h>

#include <filesystem>
#include <memory>
#include <optional>

namespace ZQ7Tool {

/// What a command line overrides of the machine.
struct Settings {
  std::optional<ZQ7Standard::OleDate> now = std::nullopt;
  std::optional<ZQ7Standard::DateConvention> convention = std::nullopt;
  bool example = false;  ///< run like the catalogue's examples
};

/// The services that the tool provides to classes. Examples print nothing, and their drive C: is a
/// temporary folder that contains a folder "shop" and is removed with the host.
class Host {
 public:
  /// `message_box` receives the messages of the classes.
  Host(const Settings& settings, std::shared_ptr<ZQ7Standard::MessageBox> message_box);
  ~Host();
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;

  const ZQ7Standard::Services& Services() const { return services_; }

 private:
  ZQ7Standard::Services services_;
  std::filesystem::path example_drive_;  // empty if there is none
};

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_HOST_H_
