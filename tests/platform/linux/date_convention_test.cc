#include <ZQ7Standard/platform/clock.h>
#include <ZQ7Standard/platform/date_convention.h>
#include <ZQ7Standard/platform/time_text.h>
#include <stdlib.h>
#include <time.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>

#include "platform/linux/locale_table.h"
#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

/// Sets environment variables; the destructor restores the old values.
class Environment {
 public:
  ~Environment() {
    for (const auto& [name, value] : old_) Put(name, value ? value->c_str() : nullptr);
  }

  /// Sets a variable; nullptr removes it.
  void Set(const std::string& name, const char* value) {
    const char* const old = getenv(name.c_str());
    old_.emplace(name, old != nullptr ? std::optional<std::string>(old) : std::nullopt);
    Put(name, value);
  }

  void SetLocale(const char* all, const char* time = "", const char* lang = "") {
    Set("LC_ALL", all);
    Set("LC_TIME", time);
    Set("LANG", lang);
  }

 private:
  static void Put(const std::string& name, const char* value) {
    value != nullptr ? setenv(name.c_str(), value, 1) : unsetenv(name.c_str());
  }

  std::map<std::string, std::optional<std::string>> old_;
};

TEST(SystemDateConvention, JudgesInstalledAndOtherLocalesAlike) {
  Environment environment;
  const StandardObject object;
  for (const char* folder : {static_cast<const char*>(nullptr), "/nonexistent"}) {
    environment.Set("LOCPATH", folder);  // no locale is installed in the second
    // clang-format off
    // The same object on purpose: no result may outlive its locale names.
    ExpectRows<const char*>([&](const char* locale) {
      environment.SetLocale(locale);
      return object.GetDateFormat();
    }, {{"th_TH.UTF-8", "4"}, {"en_US.UTF-8", "1"}, {"en_GB.UTF-8", "2"}, {"de_DE.UTF-8", "2"},
        {"sv_SE.UTF-8", "1"}, {"ja_JP.UTF-8", "1"}, {"C", "1"}, {"POSIX", "1"}, {"C.UTF-8", "1"},
        {"th_TH.NOSUCH", "4"}, {"th", "4"}, {"en_PH.NOSUCH", "1"}, {"xx_YY.UTF-8", "2"},
        {"xx", "2"}, {"th-TH", "4"}, {"TH_TH", "4"}, {"en-us", "1"}, {"DE-at", "1"},
        {"posix", "1"}});
    // clang-format on
  }
}

TEST(SystemTimeText, IsTheLocalesOwn) {
  Environment environment;
  // clang-format off
  ExpectRows<const char*>([&, source = SystemTimeText()](const char* locale) {
    environment.SetLocale(locale);
    return source->LongTime(OleDate::FromParts(2024, 3, 7, 9, 5, 7));
  }, {{"en_US.UTF-8", "09:05:07 AM"}, {"th_TH.UTF-8", "09:05:07"}, {"xx_YY", "09:05:07"},
      {"ja_JP.EUC-JP", "09時05分07秒", "whatever its encoding"}, {"", "09:05:07"}});
  // clang-format on
}

TEST(SystemDateConvention, TakesTheFirstNameThatIsNotEmpty) {
  Environment environment;
  const auto source = SystemDateConvention();
  const auto convention_of = [&](auto... names) {
    environment.SetLocale(names...);
    return source->Current();
  };
  EXPECT_EQ(convention_of("en_GB.UTF-8", "th_TH.UTF-8", "en_US.UTF-8"), kDmy);
  EXPECT_EQ(convention_of("", "th_TH.UTF-8", "en_US.UTF-8"), kDmyBe);
  EXPECT_EQ(convention_of("", "", "en_GB.UTF-8"), kDmy);
  EXPECT_EQ(convention_of("", "", ""), kMdy);
  EXPECT_EQ(convention_of(nullptr, nullptr, nullptr), kMdy);
}

// The C library has these day first; for one that is not installed, the territory decides. Names
// without a territory are aliases of other locales.
TEST(SystemDateConvention, TheTableAgreesWithEveryInstalledLocale) {
  const std::array<std::string_view, 5> by_territory = {"en_PH", "es_PR", "es_US", "unm_US",
                                                        "yi_US"};
  Environment environment;
  const auto source = SystemDateConvention();
  const std::unique_ptr<FILE, int (*)(FILE*)> names(popen("locale -a", "r"), pclose);
  std::size_t compared = 0;
  for (std::array<char, 256> line; fgets(line.data(), line.size(), names.get()) != nullptr;) {
    std::string name = line.data();
    name.pop_back();
    const std::string pair = name.substr(0, name.find_first_of(".@"));
    if (std::ranges::find(by_territory, pair) != by_territory.end()) continue;
    if (pair.size() > 3 && pair.find('_') == std::string::npos && pair != "POSIX") continue;
    environment.SetLocale(name.c_str());
    EXPECT_EQ(source->Current(), ConventionByName(name)) << name;
    ++compared;
  }
  EXPECT_GT(compared, 2U);
}

TEST(SystemClock, ShowsTheTimeOfTheTimeZone) {
  Environment environment;
  const auto clock = SystemClock();
  environment.Set("TZ", "UTC");
  tzset();
  const double utc = clock->Now().Days();
  environment.Set("TZ", "Asia/Bangkok");
  tzset();
  EXPECT_NEAR(clock->Now().Days() - utc, 7 / 24.0, 1 / 1440.0);
  const double day_zero_to_1970 = OleDate::FromParts(1970, 1, 1).Days();
  EXPECT_NEAR(utc, day_zero_to_1970 + static_cast<double>(time(nullptr)) / 86400, 2 / 1440.0);
}
