#include <ZQ7Standard/platform/date_convention.h>
#include <langinfo.h>
#include <locale.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/linux/locale_name.h"
#include "platform/linux/locale_table.h"

namespace ZQ7Standard {
namespace {

/// The order of day and month in a short-date layout such as "%d/%m/%Ey"; a layout that begins with
/// the year counts as month first.
std::optional<FieldOrder> OrderOf(std::string_view layout) {
  for (std::size_t at = layout.find('%'); at != std::string_view::npos;
       at = layout.find('%', at + 1)) {
    at = layout.find_first_not_of("-_0^#123456789EO", at + 1);
    if (at == std::string_view::npos) break;
    const std::string_view field = layout.substr(at, 1);
    if (field.find_first_of("yYCGgmbBhDF") == 0) return FieldOrder::kMonthFirst;
    if (field.find_first_of("de") == 0) return FieldOrder::kDayFirst;
  }
  return std::nullopt;
}

/// Whether a short-date layout writes the year of the locale's era.
bool WritesEraYear(std::string_view layout) {
  return layout.find("%Ey") != std::string_view::npos ||
         layout.find("%EY") != std::string_view::npos;
}

/// Whether an era such as "+:1:-543/01/01:+*:พ.ศ.:%EC %Ey" is the Buddhist one, which begins 543
/// years before the Gregorian.
bool IsBuddhistEra(std::string_view era) {
  const std::size_t direction_end = era.find(':');
  if (direction_end == std::string_view::npos) return false;
  const std::size_t offset_end = era.find(':', direction_end + 1);
  return offset_end != std::string_view::npos && era.substr(offset_end + 1).starts_with("-543/");
}

/// The convention in the C library's data; nullopt if the locale is not installed.
std::optional<DateConvention> ConventionByData(const std::string& locale_name) {
  const locale_t locale = newlocale(LC_TIME_MASK, locale_name.c_str(), nullptr);
  if (locale == nullptr) return std::nullopt;
  const std::string_view layout = nl_langinfo_l(D_FMT, locale);
  const std::string_view era = nl_langinfo_l(ERA, locale);
  const bool buddhist = WritesEraYear(layout) && IsBuddhistEra(era);
  const auto order = OrderOf(layout);
  freelocale(locale);
  if (!order) return std::nullopt;
  return DateConvention{*order, buddhist ? Era::kBuddhist : Era::kGregorian};
}

class LinuxDateConvention final : public DateConventionSource {
 public:
  DateConvention Current() override {
    const LocaleName name = LocaleNameFromEnvironment();
    if (!known_ || name.locale != locale_ || name.folder != folder_) {
      locale_ = name.locale;
      folder_ = name.folder;
      convention_ = Judge(locale_);
      known_ = true;
    }
    return convention_;
  }

 private:
  static DateConvention Judge(const std::string& locale) {
    if (locale.empty()) return {};
    return ConventionByData(locale).value_or(ConventionByName(locale));
  }

  bool known_ = false;
  std::string locale_;
  std::string folder_;
  DateConvention convention_;
};

}  // namespace

std::shared_ptr<DateConventionSource> SystemDateConvention() {
  return std::make_shared<LinuxDateConvention>();
}

}  // namespace ZQ7Standard
