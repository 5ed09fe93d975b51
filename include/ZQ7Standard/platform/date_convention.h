#ifndef ZQ7STANDARD_PLATFORM_DATE_CONVENTION_H_
#define ZQ7STANDARD_PLATFORM_DATE_CONVENTION_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>

#include <memory>
#include <optional>
#include <span>
#include <string_view>

namespace ZQ7Standard {

/// Tells the date convention in force. Every date operation asks anew, so that a change
/// takes effect at once; answering must be cheap.
class ZQ7STANDARD_EXPORT DateConventionSource {
 public:
  virtual ~DateConventionSource();

  virtual DateConvention Current() = 0;
};

/// The convention of the locale that the environment names: LC_ALL, else
/// LC_TIME, else LANG, the first that is not empty.
///
/// An installed locale decides by its own short date; one that is named but not installed
/// is judged by its language and territory (th is day first and Buddhist, US month first,
/// most others day first). No locale, "C" and "POSIX" are month first and Gregorian, also
/// in a container (docs/surprises.md). The object caches the last answer while the names
/// stay the same, so it belongs to one thread.
ZQ7STANDARD_EXPORT std::shared_ptr<DateConventionSource> SystemDateConvention();

/// Always `convention`: for hosts with their own setting, and the only way to get the
/// month-first Buddhist convention, which no locale has.
ZQ7STANDARD_EXPORT std::shared_ptr<DateConventionSource> FixedDateConvention(
    DateConvention convention);

struct NamedDateConvention {
  std::string_view name;
  DateConvention convention;
};

/// The conventions by the names that settings of hosts use: "mdy", "dmy", "mdy-buddhist"
/// and "dmy-buddhist".
ZQ7STANDARD_EXPORT std::span<const NamedDateConvention> DateConventions();

/// The convention of that name, in lower case; nullopt for any other text.
ZQ7STANDARD_EXPORT std::optional<DateConvention> DateConventionNamed(std::string_view name);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_DATE_CONVENTION_H_
