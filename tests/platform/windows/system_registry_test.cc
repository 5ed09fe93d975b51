#include <ZQ7Standard/RegistryObject.h>
#include <ZQ7Standard/platform/registry.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <limits>
#include <string>

#include "base/code_page.h"
#include "platform/windows/wide_text.h"
#include "tests/support/row_tests.h"

namespace ZQ7Standard {
namespace {

using namespace std::string_literals;

constexpr std::int32_t kUser = std::numeric_limits<std::int32_t>::min() + 1;
constexpr std::int32_t kMachine = kUser + 1;

HKEY UserRoot() {
  return reinterpret_cast<HKEY>(LONG_PTR{kUser});
}

/// Tests the machine's registry, under a key that is removed before and after.
class SystemRegistryTest : public testing::Test {
 protected:
  SystemRegistryTest() { Remove(); }
  ~SystemRegistryTest() override { Remove(); }

  static void Remove() { RegDeleteTreeW(UserRoot(), L"Software\\ZQ7 tests"); }

  /// What other programs find.
  static std::string Found(const std::wstring& path, const std::wstring& name) {
    std::array<wchar_t, 2000> data{};
    DWORD type = 0;
    DWORD size = sizeof data;
    const LSTATUS status = RegGetValueW(UserRoot(), (L"Software\\ZQ7 tests" + path).c_str(),
                                        name.c_str(), RRF_RT_ANY, &type, data.data(), &size);
    if (status != ERROR_SUCCESS) return "error " + std::to_string(status);
    if (type == REG_DWORD)
      return std::to_string(static_cast<std::int32_t>(data[0] + 65536U * data[1]));
    return Utf8(FromWide(data.data()));
  }

  const RegistryObject object_;
};

TEST_F(SystemRegistryTest, KeepsWhatOtherProgramsFind) {
  const Text path = u"Software\\ZQ7 tests\\ร้าน\\";
  EXPECT_EQ(object_.GetKeyValueString(kUser, path, u"เลขที่"), u"");
  EXPECT_FALSE(object_.UpdateKeyValueString(kUser, path, u"เลขที่", u"ก5 ๙日"));
  EXPECT_FALSE(object_.UpdateKeyValueLong(kUser, path, u"", -7));
  EXPECT_EQ(object_.GetKeyValueString(kUser, u"SOFTWARE\\zq7 Tests\\ร้าน", u"เลขที่"), u"ก5 ๙?");
  EXPECT_EQ(object_.GetKeyValueLong(kUser, path, u""), -7);
  EXPECT_EQ(object_.GetKeyValueLong(kUser, path, u"เลขที่"), 0);
  EXPECT_EQ(Found(L"\\ร้าน", L"เลขที่"), "ก5 ๙?") << "code page " << GetACP();
  EXPECT_EQ(Found(L"\\ร้าน", L""), "-7");
}

TEST_F(SystemRegistryTest, KeepsEveryByteAndSize) {
  std::string bytes;
  for (int byte = 255; byte >= 0; --byte) bytes += static_cast<char>(byte);
  const auto registry = SystemRegistry();
  const auto key = registry->Create(kUser, u"Software\\ZQ7 tests", {});
  ASSERT_NE(key, nullptr);
  std::string buffer(9000, '\0');
  for (const std::uint32_t type : {1U, 2U, 3U, 4U, 7U, 11U, 99U}) {
    for (const std::string& data : {bytes, ""s, "x"s, "\xA1\0"s, std::string(9000, 'x')}) {
      ASSERT_TRUE(key->Set(u"V", type, data));
      const auto found = key->Query(u"v", buffer);
      ASSERT_TRUE(found) << type << " " << data.size();
      EXPECT_EQ(found->type, type);
      EXPECT_EQ(buffer.substr(0, found->size), data) << type;
      if (data.empty()) continue;
      const auto less = std::span(buffer).first(data.size() - 1);
      EXPECT_FALSE(key->Query(u"v", less)) << type << " " << data.size();
    }
  }
  const Text all = FromCodePage(bytes).substr(0, 255);
  EXPECT_FALSE(object_.UpdateKeyValueString(kUser, u"Software\\ZQ7 tests", u"all", all));
  EXPECT_EQ(object_.GetKeyValueString(kUser, u"Software\\ZQ7 tests", u"all"), all);
}

TEST_F(SystemRegistryTest, GrantsAllRightsOrNothing) {
  Text deep = u"Software\\ZQ7 tests";
  for (int level = 0; level < 100; ++level) deep += u"\\L";
  const Text longest(255, u'ก');
  const auto round_trip = [&](std::int32_t root, const Text& path) {
    const bool failed = object_.UpdateKeyValueLong(root, path, u"V", 5);
    return std::string(failed ? "failed " : "") +
           std::to_string(object_.GetKeyValueLong(root, path, u"v"));
  };
  ExpectRows<std::int32_t, Text>(
      round_trip, {{{kUser, deep}, "5", "more levels than one call creates"},
                   {{kUser, u"Software\\ZQ7 tests\\" + longest + u"\\" + longest}, "5"},
                   {{kUser, u"Software\\ZQ7 tests\\" + longest + u"ก"}, "failed 0"},
                   {{kUser, u"Software\\\\ZQ7 tests"}, "failed 0"},
                   {{kUser, u"\\Software"}, "failed 0"},
                   {{0, u"Software"}, "failed 0"},
                   {{kUser + 3, u"Software"}, "failed 0", "performance data"},
                   {{kUser + 4, u"Software"}, "failed 0"}});
  const auto registry = SystemRegistry();
  EXPECT_NE(registry->Open(kMachine, u"", KEY_READ), nullptr);
  EXPECT_EQ(registry->Open(kUser, u"Software\\ZQ7 tests\\none", KEY_READ), nullptr);
  const auto reader = registry->Open(kUser, u"Software\\ZQ7 tests", KEY_READ);
  EXPECT_FALSE(reader->Set(u"V", kRegistryText, "x")) << "without the right to write";
}

}  // namespace
}  // namespace ZQ7Standard
