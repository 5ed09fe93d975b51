#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>
#include <locale.h>
#include <stdlib.h>
#include <time.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <optional>

#include "platform/linux/locale_table.h"
#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

/// Sets variables of the environment and puts the old values back at the end.
class Environment {
 public:
  ~Environment() {
    for (const auto& [name, value] : old_) Put(name, value);
  }

  void Set(const char* name, std::optional<std::string> value) {
    const char* const old = getenv(name);
    old_.emplace(name, old != nullptr ? std::optional<std::string>(old) : std::nullopt);
    Put(name, value);
  }

  void SetLocale(const std::string& all, const std::string& time = "",
                 const std::string& lang = "") {
    Set("LC_ALL", all);
    Set("LC_TIME", time);
    Set("LANG", lang);
  }

 private:
  static void Put(const std::string& name, const std::optional<std::string>& value) {
    value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
  }

  std::map<std::string, std::optional<std::string>> old_;
};

struct LocaleCase {
  const char* locale;
  DateConvention expected;
};

// clang-format off
constexpr LocaleCase kLocales[] = {
    {"th_TH.UTF-8", kDmyBe}, {"en_US.UTF-8", kMdy}, {"en_GB.UTF-8", kDmy}, {"de_DE.UTF-8", kDmy},
    {"sv_SE.UTF-8", kMdy}, {"ja_JP.UTF-8", kMdy}, {"C", kMdy}, {"POSIX", kMdy}, {"C.UTF-8", kMdy},
    {"th_TH.NOSUCH", kDmyBe}, {"th", kDmyBe}, {"en_PH.NOSUCH", kMdy}, {"xx_YY.UTF-8", kDmy},
    {"xx", kDmy},
};
// clang-format on

TEST(SystemDateConvention, JudgesInstalledAndOtherLocalesAlike) {
  Environment environment;
  const StandardObject object;
  for (const char* folder : {"", "/nonexistent"}) {  // there nothing is installed
    environment.Set("LOCPATH", *folder != '\0' ? std::optional<std::string>(folder) : std::nullopt);
    for (const LocaleCase& c : kLocales) {
      environment.SetLocale(c.locale);
      const bool buddhist = c.expected.era == Era::kBuddhist;
      const bool day_first = c.expected.order == FieldOrder::kDayFirst;
      // The same object on purpose: no answer may outlive its names.
      EXPECT_EQ(object.GetDateFormat(), 1 + (day_first ? 1 : 0) + (buddhist ? 2 : 0)) << c.locale;
    }
  }
}

TEST(SystemDateConvention, TakesTheFirstNameThatIsNotEmpty) {
  Environment environment;
  const auto source = SystemDateConvention();
  environment.SetLocale("en_GB.UTF-8", "th_TH.UTF-8", "en_US.UTF-8");
  EXPECT_EQ(source->Current(), kDmy);
  environment.SetLocale("", "th_TH.UTF-8", "en_US.UTF-8");
  EXPECT_EQ(source->Current(), kDmyBe);
  environment.SetLocale("", "", "en_GB.UTF-8");
  EXPECT_EQ(source->Current(), kDmy);
  environment.SetLocale("", "", "");
  EXPECT_EQ(source->Current(), kMdy);
  for (const char* name : {"LC_ALL", "LC_TIME", "LANG"}) environment.Set(name, std::nullopt);
  EXPECT_EQ(source->Current(), kMdy);
}

/// The names of all locales that are installed here.
std::vector<std::string> InstalledLocales() {
  std::vector<std::string> names;
  const auto close = [](FILE* pipe) { pclose(pipe); };
  const std::unique_ptr<FILE, decltype(close)> pipe(popen("locale -a", "r"), close);
  std::array<char, 256> line;
  while (pipe && fgets(line.data(), line.size(), pipe.get()) != nullptr) {
    names.emplace_back(line.data());
    names.back().pop_back();
  }
  return names;
}

// The C library has these day first; for one that is not installed the territory
// decides. Names without a territory are aliases of other locales.
TEST(SystemDateConvention, TheTableAgreesWithEveryInstalledLocale) {
  const std::array<std::string_view, 5> by_territory = {"en_PH", "es_PR", "es_US", "unm_US",
                                                        "yi_US"};
  Environment environment;
  const auto source = SystemDateConvention();
  std::size_t compared = 0;
  for (const std::string& name : InstalledLocales()) {
    const std::string pair = name.substr(0, name.find_first_of(".@"));
    if (std::ranges::find(by_territory, pair) != by_territory.end()) continue;
    if (pair.size() > 3 && pair.find('_') == std::string::npos && pair != "POSIX") continue;
    environment.SetLocale(name);
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
  const OleDate utc = clock->Now();
  environment.Set("TZ", "Asia/Bangkok");
  tzset();
  const OleDate bangkok = clock->Now();
  EXPECT_NEAR(bangkok.Days() - utc.Days(), 7 / 24.0, 1 / 1440.0);
  const time_t now = time(nullptr);
  tm parts{};
  gmtime_r(&now, &parts);
  EXPECT_NEAR(utc.Days(),
              OleDate::FromParts(parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday,
                                 parts.tm_hour, parts.tm_min)
                  .Days(),
              2 / 1440.0);
  EXPECT_EQ(StandardObject({.clock = FixedClock(TestNow())}).CTYEAR() % 543, 2024 % 543);
}

}  // namespace
}  // namespace ZQ7Standard
