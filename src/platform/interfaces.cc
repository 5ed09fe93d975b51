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
#include <ZQ7Standard/platform/print_document.h>
#include <ZQ7Standard/platform/print_picture.h>
#include <ZQ7Standard/platform/printer_settings.h>
#include <ZQ7Standard/platform/printers.h>
#include <ZQ7Standard/platform/programs.h>
#include <ZQ7Standard/platform/random_source.h>
#include <ZQ7Standard/platform/registry.h>
#include <ZQ7Standard/platform/serial_port.h>
#include <ZQ7Standard/platform/special_folders.h>
#include <ZQ7Standard/platform/time_servers.h>
#include <ZQ7Standard/platform/time_text.h>
#include <ZQ7Standard/platform/time_zone.h>

namespace ZQ7Standard {

// The destructors of the interfaces that hosts implement.

BlockCipher::~BlockCipher() = default;
Clock::~Clock() = default;
DateConventionSource::~DateConventionSource() = default;
Desktop::~Desktop() = default;
FileCopier::~FileCopier() = default;
FileReader::~FileReader() = default;
FileRewriter::~FileRewriter() = default;
FileStatusSource::~FileStatusSource() = default;
FileVersions::~FileVersions() = default;
FileWriter::~FileWriter() = default;
Folders::~Folders() = default;
Machine::~Machine() = default;
Management::~Management() = default;
MailTransport::~MailTransport() = default;
MessageBox::~MessageBox() = default;
PictureEncoder::~PictureEncoder() = default;
PrintDocument::~PrintDocument() = default;
PrintPicture::~PrintPicture() = default;
PrinterList::~PrinterList() = default;
PrinterSettings::~PrinterSettings() = default;
Programs::~Programs() = default;
RandomSource::~RandomSource() = default;
Registry::~Registry() = default;
RegistryKey::~RegistryKey() = default;
SerialPort::~SerialPort() = default;
SpecialFolders::~SpecialFolders() = default;
TimeServers::~TimeServers() = default;
TimeTextSource::~TimeTextSource() = default;
TimeZone::~TimeZone() = default;

void PrinterList::DoOperation(const std::function<void()>& steps) {
  steps();
}

}  // namespace ZQ7Standard
