#ifndef ZQ7STANDARD_MODULES_PRINTING_LINUX_NAMED_SETTINGS_H_
#define ZQ7STANDARD_MODULES_PRINTING_LINUX_NAMED_SETTINGS_H_

#include <ZQ7Standard/platform/printers.h>

#include <array>
#include <optional>
#include <string>

#include "printing/linux/printer_names.h"
#include "printing/page_document.h"

namespace ZQ7Standard {

/// The value of a setting; the name is empty where the printer tells none.
struct SettingValue {
  std::int16_t code = 0;
  std::string name;
};

using SettingValues = std::array<SettingValue, kSettings.size()>;

/// The value of the name that CUPS has for it.
SettingValue ValueOf(const SettingNames& setting, std::string_view name);

/// A printer whose settings go by the names of CUPS.
class NamedSettings : public PrinterSettings, public PageTarget {
 public:
  std::int16_t Get(PrinterSetting setting) final;
  void Set(PrinterSetting setting, std::int16_t value) final;
  PageSize Page() final;

 protected:
  const SettingValues& Values();

 private:
  /// What the settings are before any is set.
  virtual SettingValues Defaults() = 0;
  virtual bool Supports(const SettingNames& setting, const std::string& name) = 0;

  SettingValue& Value(PrinterSetting setting);

  std::optional<SettingValues> values_;
};

/// The printer of that name, on the settings and the target that `printer` is.
Printer PrinterOn(Text device_name, const std::shared_ptr<NamedSettings>& printer);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_PRINTING_LINUX_NAMED_SETTINGS_H_
