#include <ZQ7Standard/RegistryObject.h>

#include "tests/support/rows.h"

namespace ZQ7Standard {
namespace {

using namespace std::string_literals;

constexpr std::int32_t kUser = HKEY_CURRENT_USER;

TEST(Registry, IsAskedWithTheseArgumentsAndFailsToTheFallbacks) {
  const auto read_number = [](auto& object) {
    return object.GetKeyValueLong(kUser, u"กA\0B"s, u"日\0"s);
  };
  const auto read_text = [](auto& object) {
    return object.GetKeyValueString(5, u"K", u"V").size();
  };
  const auto set_number = [](auto& object) {
    return object.UpdateKeyValueLong(kUser, u"K", u"V", 0x04434241);
  };
  const auto set_text = [](auto& object) {
    return object.UpdateKeyValueString(kUser, u"", u"", u"กx日\0"s);
  };
  const std::string created = "Create -2147483647 K 1 0 983103 50 null inherit; ";
  struct Case {
    std::function<std::int64_t(const RegistryObject&)> call;
    std::string failing;
    std::int64_t expected;
    std::string calls;
  };
  const Case cases[] = {
      {read_number, "", 7, "Open -2147483647 กA 983103; Query ? of 4; close; "},
      {read_number, "Open", 0, "Open -2147483647 กA 983103; "},
      {read_number, "Query", 0, "Open -2147483647 กA 983103; Query ? of 4; close; "},
      {read_text, "", 0, "Open 5 K 983103; Query V of 1024; close; "},
      {read_text, "Open", 0, "Open 5 K 983103; "},
      {set_number, "", 0, created + "Set V as 4: ABC\4; close; "},
      {set_number, "Create", 1, created},
      {set_number, "Set", 1, created + "Set V as 4: ABC\4; close; "},
      {set_text, "", 0,
       "Create -2147483647  1 0 983103 50 null inherit; Set  as 1: \xA1x?\0; close; "s},
  };
  for (const bool raises : {false, true}) {
    for (const auto& [call, failing, expected, calls] : cases) {
      RegistryScript script{"", failing, raises};
      EXPECT_EQ(call(RegistryObject({.registry = FakeRegistry(script)})), expected) << calls;
      EXPECT_EQ(script.calls, calls) << raises;
    }
  }
}

TEST(Registry, ReadsByTypeAndSize) {
  const auto read = [](std::uint32_t type, const std::string& data) {
    const RegistryServices services{.registry = MemoryRegistry()};
    services.registry->Create(kUser, u"K", {})->Set(u"V", type, data);
    const RegistryObject object(services);
    const Text text = object.GetKeyValueString(kUser, u"K", u"V");
    const std::string number = std::to_string(object.GetKeyValueLong(kUser, u"K", u"V"));
    return number + ", " + std::to_string(text.size()) + " " + Utf8(text.substr(0, 3));
  };
  ExpectRows<std::uint32_t, std::string>(
      read, {
                {{4, "\5\0\0\0"s}, "5, 0 "},
                {{4, "\xFE\xFF\xFF\xFF"s}, "-2, 0 "},
                {{4, "\0\0\0\x80"s}, "-2147483648, 0 "},
                {{4, "\5\1"s}, "261, 0 ", "what the buffer holds"},
                {{4, "\5\0\0\0\0"s}, "0, 0 ", "longer than a number"},
                {{4, ""s}, "0, 0 "},
                {{5, "\0\0\0\5"s}, "0, 0 ", "high byte first"},
                {{3, "\5\0\0\0"s}, "0, 0 ", "binary"},
                {{1, "5"s}, "0, 1 5", "digits are no number"},
                {{1, "\xA1\xE0\x80"s}, "0, 3 กเ€"},
                {{1, "ab\0"s}, "0, 2 ab", "a terminating zero that was counted"},
                {{1, "abcd\0\0"s}, "0, 5 abc", "one alone is dropped"},
                {{1, "\0"s}, "0, 0 "},
                {{1, ""s}, "0, 0 "},
                {{1, std::string(1024, 'x')}, "0, 1024 xxx", "the buffer, full"},
                {{1, std::string(1023, 'x') + '\0'}, "0, 1023 xxx"},
                {{1, std::string(1025, 'x')}, "0, 0 ", "longer than the buffer"},
                {{1, std::string(2000, 'x')}, "0, 0 "},
                {{2, "%PATH%"s}, "0, 0 ", "a text to be expanded"},
                {{7, "ab\0\0"s}, "0, 0 ", "several texts"},
            });
}

}  // namespace
}  // namespace ZQ7Standard
