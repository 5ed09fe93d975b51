#ifndef ZQ7STANDARD_MODULES_PRINTING_LINUX_NAMED_SETTINGS_H_
#define ZQ7STANDARD_MODULES_PRINTING_LINUX_NAMED_SETTINGS_H_

#include <ZQ7Standard/platform/printers.h>

#include <array>
#include <optional>
#include <string>

#include "printing/linux/printer_names.h"
#include "printing/page_document.h"

namespace ZQ7Standard {

/// The value of a setting; the name is empty if the printer reports none.
struct SettingValue {
  std::int16_t code = 0;
  std::string name;
};

using SettingValues = std::array<SettingValue, kSettings.size()>;

/// The value with that CUPS name.
SettingValue ValueOf(const SettingNames& setting, std::string_view name);

/// A printer whose settings have CUPS names.
class NamedSettings : public PrinterSettings, public PageTarget {
 public:
  std::int16_t Get(PrinterSetting setting) final;
  void Set(PrinterSetting setting, std::int16_t value) final;
  PageSize Page() final;

 protected:
  const SettingValues& Values();

 private:
  /// The settings before any is set.
  virtual SettingValues Defaults() = 0;
  virtual bool Supports(const SettingNames& setting, const std::string& name) = 0;

  SettingValue& Value(PrinterSetting setting);

  std::optional<SettingValues> values_;
};

/// A printer of that name with `printer` as its settings and its target.
Printer PrinterOn(Text device_name, const std::shared_ptr<NamedSettings>& printer);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_PRINTING_LINUX_NAMED_SETTINGS_H_
