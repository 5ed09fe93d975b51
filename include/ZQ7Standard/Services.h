#ifndef ZQ7STANDARD_SERVICES_H_
#define ZQ7STANDARD_SERVICES_H_

#include <ZQ7Standard/Types.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include <ZQ7Standard/HideMacros.h>

namespace ZQ7Standard {

class BlockCipher;
class Clock;
class DateConventionSource;
class Desktop;
class FileCopier;
class FileReader;
class FileRewriter;
class FileStatusSource;
class FileVersions;
class FileWriter;
class Folders;
class Machine;
class Management;
class MailTransport;
class MessageBox;
class PictureEncoder;
class PrinterList;
class Programs;
class RandomSource;
class Registry;
class SpecialFolders;
class TimeServers;
class TimeTextSource;
class TimeZone;

/// Makes a cipher for one call; returns null if it cannot.
using BlockCipherFactory = std::function<std::unique_ptr<BlockCipher>()>;

/// The folders that the drives of path texts stand for, by the drive's letter in upper
/// case: with `{{'D', "/srv/shop"}}`, "D:\set.ini" is the file /srv/shop/set.ini, and so
/// is "D:\..\set.ini". A drive without an entry is the root folder. docs/files.md
/// explains path texts.
using DriveMap = std::map<char, std::filesystem::path>;

/// The devices of port numbers, such as {3, "/dev/serial/by-id/usb-..."}.
using SerialDevices = std::map<std::int16_t, std::string>;

/// What objects need from the machine. A host sets what it wants to replace:
///
///     StandardObject standard({.clock = FixedClock(day)});
///
/// What is left empty is the machine's own, made when first needed:
///
///     file_status ... file_copier   the machine's files, with `drives`
///     clock                         the machine's clock, shared by all objects
///     date_convention               the environment's locale, for the object alone
///     time_text                     the same
///     random_source                 seeded by the machine's clock, for the object alone
///     block_cipher                  none: Encrypt and Decrypt raise 429
///     message_box                   the error stream, shared by all objects
///     serial_devices                port n is /dev/ttyS(n-1)
///     drives                        every drive is the root folder
///     registry                      the user's and the machine's, for the object alone
///     printers                      the print server's, for the object alone
///     programs                      the machine's programs, with `drives`
///     desktop                       the programs that the user chose, with `drives`
///     picture_encoder               the printing module's
///     time_zone                     the process's, for the object alone
///     machine ... file_versions     the machine itself, with `drives`
///     time_servers                  the network's, by SNTP
///     mail_transport                the network's, by SMTP, with `drives`
///     os                            the environment variable "OS", asked each time
///
/// On Windows the message box is a window in programs that have windows, serial port n is
/// COMn, and a drive without an entry is the system's own.
///
/// Copies of an object share its services. A host that gives the same services to objects
/// in two threads must make them safe to use at the same time.
struct Services {
  std::shared_ptr<FileStatusSource> file_status = nullptr;
  std::shared_ptr<Folders> folders = nullptr;
  std::shared_ptr<FileReader> file_reader = nullptr;
  std::shared_ptr<FileWriter> file_writer = nullptr;
  std::shared_ptr<FileRewriter> file_rewriter = nullptr;
  std::shared_ptr<FileCopier> file_copier = nullptr;
  std::shared_ptr<Clock> clock = nullptr;
  std::shared_ptr<DateConventionSource> date_convention = nullptr;
  std::shared_ptr<TimeTextSource> time_text = nullptr;
  std::shared_ptr<RandomSource> random_source = nullptr;
  BlockCipherFactory block_cipher = nullptr;
  std::shared_ptr<MessageBox> message_box = nullptr;
  SerialDevices serial_devices = {};
  DriveMap drives = {};
  std::shared_ptr<Registry> registry = nullptr;
  std::shared_ptr<PrinterList> printers = nullptr;
  std::shared_ptr<Programs> programs = nullptr;
  std::shared_ptr<Desktop> desktop = nullptr;
  std::shared_ptr<PictureEncoder> picture_encoder = nullptr;
  std::shared_ptr<TimeZone> time_zone = nullptr;
  std::shared_ptr<Machine> machine = nullptr;
  std::shared_ptr<Management> management = nullptr;
  std::shared_ptr<SpecialFolders> special_folders = nullptr;
  std::shared_ptr<FileVersions> file_versions = nullptr;
  std::shared_ptr<TimeServers> time_servers = nullptr;
  std::shared_ptr<MailTransport> mail_transport = nullptr;
  std::optional<Text> os = std::nullopt;
};

}  // namespace ZQ7Standard

#include <ZQ7Standard/RestoreMacros.h>

#endif  // ZQ7STANDARD_SERVICES_H_
