#include "platform/service_set.h"

#include <cstdlib>
#include <utility>

namespace ZQ7Standard {
namespace {

/// Returns a service, made by `make` if it is missing.
template <typename Service, typename Make>
Service& Completed(std::shared_ptr<Service>& service, const Make& make) {
  if (!service) [[unlikely]] {
    service = make();
  }
  return *service;
}

// Services without a state of their own are made once for all objects.

std::shared_ptr<Clock> SharedClock() {
  static const auto clock = SystemClock();
  return clock;
}

std::shared_ptr<MessageBox> SharedMessageBox() {
  static const auto box = SystemMessageBox();
  return box;
}

}  // namespace

ServiceSet::ServiceSet(Services services) : services_(std::move(services)) {}

FileStatusSource& ServiceSet::FileStatus() {
  return Completed(services_.file_status, [this] { return SystemFileStatus(services_.drives); });
}

Folders& ServiceSet::Folders() {
  return Completed(services_.folders, [this] { return SystemFolders(services_.drives); });
}

FileReader& ServiceSet::FileReader() {
  return Completed(services_.file_reader, [this] { return SystemFileReader(services_.drives); });
}

FileWriter& ServiceSet::FileWriter() {
  return Completed(services_.file_writer, [this] { return SystemFileWriter(services_.drives); });
}

FileRewriter& ServiceSet::FileRewriter() {
  return Completed(services_.file_rewriter,
                   [this] { return SystemFileRewriter(services_.drives); });
}

FileCopier& ServiceSet::FileCopier() {
  return Completed(services_.file_copier, [this] { return SystemFileCopier(services_.drives); });
}

MessageBox& ServiceSet::MessageBox() {
  return Completed(services_.message_box, SharedMessageBox);
}

TimeTextSource& ServiceSet::TimeText() {
  return Completed(services_.time_text, SystemTimeText);
}

RandomSource& ServiceSet::Random() {
  return Completed(services_.random_source, SystemRandomSource);
}

Registry& ServiceSet::Registry() {
  return Completed(services_.registry, [] { return SystemRegistry(); });
}

PrinterList& ServiceSet::Printers() {
  return Completed(services_.printers, [] { return SystemPrinters(); });
}

Programs& ServiceSet::Programs() {
  return Completed(services_.programs, [this] { return SystemPrograms(services_.drives); });
}

Desktop& ServiceSet::Desktop() {
  return Completed(services_.desktop, [this] { return SystemDesktop(services_.drives); });
}

PictureEncoder& ServiceSet::PictureEncoder() {
  return Completed(services_.picture_encoder, SystemPictureEncoder);
}

TimeZone& ServiceSet::Zone() {
  return Completed(services_.time_zone, SystemTimeZone);
}

Machine& ServiceSet::Machine() {
  return Completed(services_.machine,
                   [this] { return SystemMachine({.drives = services_.drives}); });
}

Management& ServiceSet::Management() {
  return Completed(services_.management,
                   [this] { return SystemManagement({.drives = services_.drives}); });
}

SpecialFolders& ServiceSet::SpecialFolders() {
  return Completed(services_.special_folders,
                   [this] { return SystemSpecialFolders({.drives = services_.drives}); });
}

FileVersions& ServiceSet::FileVersions() {
  return Completed(services_.file_versions,
                   [this] { return SystemFileVersions({.drives = services_.drives}); });
}

TimeServers& ServiceSet::TimeServers() {
  return Completed(services_.time_servers, SystemTimeServers);
}

MailTransport& ServiceSet::Mail() {
  return Completed(services_.mail_transport,
                   [this] { return SystemMailTransport({}, services_.drives); });
}

OleDate ServiceSet::Now() {
  return Completed(services_.clock, SharedClock).Now();
}

OleDate ServiceSet::Today() {
  return OleDate::FromCivil(Now().Civil());
}

DateConvention ServiceSet::Convention() {
  return Completed(services_.date_convention, SystemDateConvention).Current();
}

std::unique_ptr<BlockCipher> ServiceSet::NewCipher() const {
  return services_.block_cipher ? services_.block_cipher() : nullptr;
}

std::optional<Text> ServiceSet::Os() const {
  if (services_.os) return services_.os;
  const char* const variable = std::getenv("OS");
  return variable == nullptr ? std::nullopt : std::optional(FromUtf8(variable));
}

}  // namespace ZQ7Standard
