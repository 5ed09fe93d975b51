#include "office.h"

#include <ZQ7Standard/CImageInfo.h>
#include <ZQ7Standard/PeripheralObject.h>
#include <ZQ7Standard/platform/path_text.h>
#include <ZQ7Standard/platform/serial_port.h>
#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <iostream>
#include <span>
#include <stdexcept>
#include <system_error>
#include <vector>

namespace InvoiceDemo {
namespace {

constexpr auto kSettingsFile = "settings.txt";
constexpr auto kLogFile = "invoices.log";
constexpr TextView kLastNumber = u"LAST NUMBER";
constexpr TextView kFirstNumber = u"INV0001";

// The last numbers by the name of the company, which is the value's name.
constexpr TextView kRegistryKey = u"Software\\ZQ7Standard\\Invoice\\Last numbers";

}  // namespace

std::optional<Office> Office::Beside(const std::filesystem::path& data) {
  const std::filesystem::path folder = std::filesystem::absolute(data).parent_path();
  if (!std::filesystem::exists(folder / kSettingsFile)) return std::nullopt;
  return Office(folder);
}

Office::Office(const std::filesystem::path& folder)
    : folder_(folder),
      messages_(std::make_shared<RecordingMessageBox>()),
      files_({.message_box = messages_}) {
  files_.SetDisableMsgLevel(1);  // shows messages
  company_ = {.name = Setting(u"COMPANY"),
              .english_name = Setting(u"COMPANY EN"),
              .address = Setting(u"ADDRESS"),
              .tax_id = Setting(u"TAX ID"),
              .code_word = Setting(u"CODE WORD"),
              .default_net_days = Setting(u"DEFAULT TERM")};
  ReadLogo();
}

void Office::ThrowIfFailed(const std::string& what, const std::string& file) {
  const std::vector<Message> messages = messages_->Take();
  if (messages.empty()) return;
  throw std::runtime_error("cannot " + what + ' ' + (folder_ / file).string() + ": " +
                           Utf8(OneLine(messages.back().text)));
}

Text Office::Setting(TextView key) {
  Text value = files_.GetValue(PathText(folder_ / kSettingsFile), key);
  ThrowIfFailed("read", kSettingsFile);
  return value;
}

// `ReadImageInfo` makes a file that is not there.
void Office::ReadLogo() {
  const Text name = Setting(u"LOGO");
  if (name.empty()) return;
  company_.logo = folder_ / Utf8(name);
  CImageInfo info;
  if (std::filesystem::is_regular_file(company_.logo)) info.ReadImageInfo(PathText(company_.logo));
  if (info.ImageType() == itUNKNOWN) {
    throw std::runtime_error("there is no logo, or no picture: " + company_.logo.string());
  }
  company_.logo_width = info.Width();
  company_.logo_height = info.Height();
}

Text Office::TakeNumber(const StandardObject& standard, const std::set<Text>& taken) {
  Text last = Setting(kLastNumber);
  if (last.empty()) {
    last = registry_.GetKeyValueString(HKEY_CURRENT_USER, kRegistryKey, company_.name);
  }
  Text number = last.empty() ? Text(kFirstNumber) : NextNumber(standard, last);
  while (taken.contains(number)) number = NextNumber(standard, number);
  if (number.empty()) {
    throw std::runtime_error("no number follows the last one, \"" + Utf8(OneLine(last)) + '"');
  }
  files_.Setvalue(PathText(folder_ / kSettingsFile), kLastNumber, number);
  ThrowIfFailed("write", kSettingsFile);
  if (registry_.UpdateKeyValueString(HKEY_CURRENT_USER, kRegistryKey, company_.name, number)) {
    std::cerr << "invoice: the registry does not take the last number, " << Utf8(number) << '\n';
  }
  return number;
}

void Office::Log(TextView type, TextView description) {
  files_.AddLog(PathText(folder_ / kLogFile), u"invoice", type, u"OK", OneLine(description));
  ThrowIfFailed("write", kLogFile);
}

Text NextNumber(const StandardObject& standard, TextView last) {
  constexpr std::size_t kMostCountedDigits = 14;  // `IncreaseString` writes 15 of them
  const TextView digits = last.substr(last.find_last_not_of(u"0123456789") + 1);
  if (digits.size() > kMostCountedDigits || standard.StrVal(digits) == 0) return {};
  return standard.IncreaseString(last);
}

std::string KickDrawer() {
  constexpr std::int16_t kPort = 1;
  constexpr TextView kKick(u"\x1Bp\0\x19\u0E5A", 5);  // the bytes 27 112 0 25 250
  const int drawer = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
  if (drawer < 0 || grantpt(drawer) != 0 || unlockpt(drawer) != 0) {
    throw std::system_error(errno, std::generic_category(), "no pseudo-terminal");
  }
  PeripheralObject().OpenDraw(SystemSerialPort({{kPort, ptsname(drawer)}}), kKick, kPort);
  std::array<unsigned char, 64> bytes{};
  const ssize_t count = read(drawer, bytes.data(), bytes.size());
  close(drawer);
  if (count <= 0) throw std::runtime_error("the drawer stays shut");
  std::string decimals = std::to_string(bytes.front());
  for (const auto byte : std::span(bytes).subspan(1, static_cast<std::size_t>(count) - 1)) {
    decimals += ' ' + std::to_string(byte);
  }
  return decimals;
}

}  // namespace InvoiceDemo
