#include <ZQ7Standard/RegistryObject.h>
#include <ZQ7Standard/platform/registry.h>

#include "tests/support/row_tests.h"

namespace ZQ7Standard {
namespace {

using namespace std::string_literals;

constexpr std::int32_t kUser = HKEY_CURRENT_USER;

TEST(Registry, IsAskedWithTheseArgumentsAndFailsToTheFallbacks) {
  using Call = std::function<std::int64_t(const RegistryObject&)>;
  const Call read_number = [](auto& o) { return o.GetKeyValueLong(kUser, u"กA\0B"s, u"日\0"s); };
  const Call read_text = [](auto& o) { return o.GetKeyValueString(5, u"K", u"V").size(); };
  const Call set_number = [](auto& o) {
    return o.UpdateKeyValueLong(kUser, u"K", u"V", 0x04434241);
  };
  const Call set_text = [](auto& o) { return o.UpdateKeyValueString(kUser, u"", u"", u"กx日\0"s); };
  const std::string created = "Create -2147483647 K 1 0 983103 50 null inherit; ";
  const std::tuple<Call, std::string, std::int64_t, std::string> rows[] = {
      {read_number, "", 7, "Open -2147483647 กA 983103; Query ? of 4; close; "},
      {read_number, "Open", 0, "Open -2147483647 กA 983103; "},
      {read_number, "Query", 0, "Open -2147483647 กA 983103; Query ? of 4; close; "},
      {read_text, "", 0, "Open 5 K 983103; Query V of 1024; close; "},
      {read_text, "Open", 0, "Open 5 K 983103; "},
      {set_number, "", 0, created + "Set V as 4 bytes ABC\4; close; "},
      {set_number, "Create", 1, created},
      {set_number, "Set", 1, created + "Set V as 4 bytes ABC\4; close; "},
      {set_text, "", 0,
       "Create -2147483647  1 0 983103 50 null inherit; Set  as 1 bytes กx?\0; close; "s},
  };
  for (const bool raises : {false, true}) {
    for (const auto& [call, failing, expected, calls] : rows) {
      RegistryScript script{"", failing, raises};
      EXPECT_EQ(call(RegistryObject({.registry = FakeRegistry(script)})), expected) << calls;
      EXPECT_EQ(script.calls, calls) << raises;
    }
  }
}

TEST(Registry, ReadsByTypeAndSize) {
  const auto read = [](std::uint32_t type, const std::string& data) {
    const Services services{.registry = MemoryRegistry()};
    services.registry->Create(kUser, u"K", {})->Set(u"V", type, data);
    const RegistryObject object(services);
    const Text text = object.GetKeyValueString(kUser, u"K", u"V");
    const std::string number = std::to_string(object.GetKeyValueLong(kUser, u"K", u"V"));
    return number + ", " + std::to_string(text.size()) + " " + Utf8(text.substr(0, 3));
  };
  ExpectRows<std::uint32_t, std::string>(
      read, {
                {{4, "\xFE\xFF\xFF\xFF"s}, "-2, 0 "},
                {{4, "\5\1"s}, "261, 0 ", "what the buffer holds"},
                {{4, "\5\0\0\0\0"s}, "0, 0 ", "longer than a number"},
                {{5, "\0\0\0\5"s}, "0, 0 ", "high byte first"},
                {{1, "5"s}, "0, 1 5", "digits are no number"},
                {{1, "\xA1\xE0\x80\0"s}, "0, 3 กเ€", "a terminating zero that was counted"},
                {{1, "abcd\0\0"s}, "0, 5 abc", "one alone is dropped"},
                {{1, "\0"s}, "0, 0 "},
                {{1, ""s}, "0, 0 "},
                {{1, std::string(1024, 'x')}, "0, 1024 xxx", "the buffer, full"},
                {{1, std::string(1025, 'x')}, "0, 0 ", "longer than the buffer"},
                {{2, "%PATH%"s}, "0, 0 ", "a text to be expanded"},
                {{7, "ab\0\0"s}, "0, 0 ", "several texts"},
            });
}

}  // namespace
}  // namespace ZQ7Standard
