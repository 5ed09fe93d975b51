#include "office.h"

#include <ZQ7Standard/CImageInfo.h>
#include <ZQ7Standard/platform/path_text.h>

#include <iostream>
#include <stdexcept>

#include "next_number.h"
#include "terminal_text.h"

namespace InvoiceDemo {
namespace {

using ZQ7Standard::CImageInfo;
using ZQ7Standard::PathText;
using ZQ7Standard::StandardObject;
using ZQ7Standard::Text;
using ZQ7Standard::TextView;
using ZQ7Standard::Utf8;

constexpr auto kSettingsFile = "settings.txt";
constexpr auto kLogFile = "invoices.log";
constexpr TextView kLastNumber = u"LAST NUMBER";
constexpr TextView kFirstNumber = u"INV0001";

// The last numbers by the name of the company, which is the value's name.
constexpr TextView kRegistryKey = u"Software\\ZQ7Standard\\Invoice\\Last numbers";

}  // namespace

std::unique_ptr<Office> Office::Beside(const std::filesystem::path& data) {
  const std::filesystem::path folder = std::filesystem::absolute(data).parent_path();
  if (!std::filesystem::exists(folder / kSettingsFile)) return nullptr;
  return std::unique_ptr<Office>(new Office(folder));
}

Office::Office(const std::filesystem::path& folder)
    : folder_(folder),
      settings_(PathText(folder / kSettingsFile)),
      remark_(std::make_shared<Remark>()),
      files_({.message_box = remark_}) {
  files_.SetDisableMsgLevel(1);  // shows messages
  company_ = {.name = Setting(u"COMPANY"),
              .english_name = Setting(u"COMPANY EN"),
              .address = Setting(u"ADDRESS"),
              .tax_id = Setting(u"TAX ID"),
              .code_word = Setting(u"CODE WORD"),
              .logo = ReadLogo()};
  default_net_days_ = Setting(u"DEFAULT TERM");
}

Text Office::Setting(TextView key) {
  Text value = files_.GetValue(settings_, key);
  remark_->ThrowIfAny("cannot read " + (folder_ / kSettingsFile).string());
  return value;
}

// `ReadImageInfo` makes a file that is not there.
std::optional<Logo> Office::ReadLogo() {
  const Text name = Setting(u"LOGO");
  if (name.empty()) return std::nullopt;
  const std::filesystem::path file = folder_ / Utf8(name);
  if (!std::filesystem::is_regular_file(file)) {
    throw std::runtime_error("there is no logo " + file.string());
  }
  CImageInfo info;
  info.ReadImageInfo(PathText(file));
  if (info.ImageType() == ZQ7Standard::itUNKNOWN) {
    throw std::runtime_error("the logo is no picture: " + file.string());
  }
  return Logo{.file = file, .width = info.Width(), .height = info.Height()};
}

Text Office::TakeNumber(const StandardObject& standard, const std::set<Text>& taken) {
  Text last = Setting(kLastNumber);
  if (last.empty()) {
    last = registry_.GetKeyValueString(ZQ7Standard::HKEY_CURRENT_USER, kRegistryKey, company_.name);
  }
  Text number = last.empty() ? Text(kFirstNumber) : NextNumber(standard, last);
  while (taken.contains(number)) number = NextNumber(standard, number);
  if (number.empty()) {
    throw std::runtime_error("no number follows the last one, \"" + Utf8(OneLine(last)) + '"');
  }
  files_.Setvalue(settings_, kLastNumber, number);
  remark_->ThrowIfAny("cannot write " + (folder_ / kSettingsFile).string());
  if (registry_.UpdateKeyValueString(ZQ7Standard::HKEY_CURRENT_USER, kRegistryKey, company_.name,
                                     number)) {
    std::cerr << "invoice: the registry does not take the last number, " << Utf8(number) << '\n';
  }
  return number;
}

void Office::Log(TextView type, TextView success, TextView description) {
  files_.AddLog(PathText(folder_ / kLogFile), u"invoice", type, success, OneLine(description));
  remark_->ThrowIfAny("cannot write " + (folder_ / kLogFile).string());
}

}  // namespace InvoiceDemo
