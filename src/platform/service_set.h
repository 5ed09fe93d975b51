#ifndef ZQ7STANDARD_SRC_PLATFORM_SERVICE_SET_H_
#define ZQ7STANDARD_SRC_PLATFORM_SERVICE_SET_H_

#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/platform/block_cipher.h>
#include <ZQ7Standard/platform/clock.h>
#include <ZQ7Standard/platform/date_convention.h>
#include <ZQ7Standard/platform/desktop.h>
#include <ZQ7Standard/platform/file_contents.h>
#include <ZQ7Standard/platform/file_copier.h>
#include <ZQ7Standard/platform/file_rewrite.h>
#include <ZQ7Standard/platform/file_status.h>
#include <ZQ7Standard/platform/file_versions.h>
#include <ZQ7Standard/platform/folders.h>
#include <ZQ7Standard/platform/machine.h>
#include <ZQ7Standard/platform/mail_transport.h>
#include <ZQ7Standard/platform/management.h>
#include <ZQ7Standard/platform/message_box.h>
#include <ZQ7Standard/platform/picture_encoder.h>
#include <ZQ7Standard/platform/printers.h>
#include <ZQ7Standard/platform/programs.h>
#include <ZQ7Standard/platform/random_source.h>
#include <ZQ7Standard/platform/registry.h>
#include <ZQ7Standard/platform/special_folders.h>
#include <ZQ7Standard/platform/time_servers.h>
#include <ZQ7Standard/platform/time_text.h>
#include <ZQ7Standard/platform/time_zone.h>

namespace ZQ7Standard {

/// The services of an object. Those that the host left empty are created on first use: an object
/// that never prints asks for no printers. Use a set from one thread at a time.
class ServiceSet {
 public:
  explicit ServiceSet(Services services);

  const Services& Given() const { return services_; }

  ZQ7Standard::FileStatusSource& FileStatus();
  ZQ7Standard::Folders& Folders();
  ZQ7Standard::FileReader& FileReader();
  ZQ7Standard::FileWriter& FileWriter();
  ZQ7Standard::FileRewriter& FileRewriter();
  ZQ7Standard::FileCopier& FileCopier();
  ZQ7Standard::MessageBox& MessageBox();
  ZQ7Standard::TimeTextSource& TimeText();
  ZQ7Standard::RandomSource& Random();
  ZQ7Standard::Registry& Registry();
  ZQ7Standard::PrinterList& Printers();
  ZQ7Standard::Programs& Programs();
  ZQ7Standard::Desktop& Desktop();
  ZQ7Standard::PictureEncoder& PictureEncoder();
  TimeZone& Zone();
  ZQ7Standard::Machine& Machine();
  ZQ7Standard::Management& Management();
  ZQ7Standard::SpecialFolders& SpecialFolders();
  ZQ7Standard::FileVersions& FileVersions();
  ZQ7Standard::TimeServers& TimeServers();
  MailTransport& Mail();

  /// The local date and time, and that day at 00:00.
  OleDate Now();
  OleDate Today();
  /// The date convention in force.
  DateConvention Convention();
  /// A new cipher; null without a factory.
  std::unique_ptr<BlockCipher> NewCipher() const;
  /// The environment variable "OS"; nullopt if there is none.
  std::optional<Text> Os() const;

 private:
  Services services_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_SERVICE_SET_H_
