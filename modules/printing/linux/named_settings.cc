#include "printing/linux/named_settings.h"

#include <ZQ7Standard/RunTimeError.h>
#include <cups/cups.h>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace ZQ7Standard {
namespace {

constexpr std::int16_t kLandscape = 2;
constexpr double kPwgUnitsPerMillimetre = 100;
constexpr PageSize kA4 = {210, 297};

const SettingNames& NamesOf(PrinterSetting setting) {
  return kSettings[static_cast<std::size_t>(setting)];
}

const CodeName* RowOf(const SettingNames& setting, std::int16_t code) {
  const auto row = std::ranges::find(setting.names, code, &CodeName::code);
  return row == setting.names.end() ? nullptr : &*row;
}

/// The sheet of a paper; A4 if it has no fixed size.
PageSize SheetOf(const std::string& paper) {
  const pwg_media_t* const media = pwgMediaForPWG(paper.c_str());
  if (media == nullptr || media->width <= 0 || media->length <= 0) return kA4;
  return {static_cast<float>(media->width / kPwgUnitsPerMillimetre),
          static_cast<float>(media->length / kPwgUnitsPerMillimetre)};
}

}  // namespace

SettingValue ValueOf(const SettingNames& setting, std::string_view name) {
  const auto row = std::ranges::find(setting.names, name, &CodeName::name);
  return {row == setting.names.end() ? setting.other : row->code, std::string(name)};
}

const SettingValues& NamedSettings::Values() {
  if (!values_) values_ = Defaults();
  return *values_;
}

SettingValue& NamedSettings::Value(PrinterSetting setting) {
  Values();
  return (*values_)[static_cast<std::size_t>(setting)];
}

std::int16_t NamedSettings::Get(PrinterSetting setting) {
  return Value(setting).code;
}

void NamedSettings::Set(PrinterSetting setting, std::int16_t value) {
  SettingValue& current = Value(setting);
  if (value == current.code) return;
  const SettingNames& names = NamesOf(setting);
  const CodeName* const row = RowOf(names, value);
  if (row == nullptr || !Supports(names, std::string(row->name))) {
    throw RunTimeError(Error::kPrinterError, "the printer has no " + std::string(names.attribute) +
                                                 " of code " + std::to_string(value));
  }
  current = {value, std::string(row->name)};
}

PageSize NamedSettings::Page() {
  const SettingValue& paper = Value(PrinterSetting::kPaperSize);
  PageSize page = SheetOf(paper.name);
  const CodeName* const row = RowOf(NamesOf(PrinterSetting::kPaperSize), paper.code);
  const bool turned = row != nullptr && row->turned;
  const bool landscape = Get(PrinterSetting::kOrientation) == kLandscape;
  if (turned != landscape) std::swap(page.width, page.height);
  return page;
}

Printer PrinterOn(Text device_name, const std::shared_ptr<NamedSettings>& printer) {
  return {std::move(device_name), printer, NewPageDocument(printer)};
}

}  // namespace ZQ7Standard
