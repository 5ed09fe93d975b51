#include "formats/file_version.h"

#include <gtest/gtest.h>

#include "tests/support/pe_file.h"
#include "tests/support/row_tests.h"

namespace ZQ7Standard {
namespace {

std::string VersionIn(const std::string& bytes) {
  const auto version = ReadFileVersion([&bytes](std::uint64_t offset, std::size_t size) {
    return offset < bytes.size() ? bytes.substr(static_cast<std::size_t>(offset), size)
                                 : std::string();
  });
  if (!version) return "none";
  std::string text;
  for (const std::uint16_t number : *version) text += "." + std::to_string(number);
  return text;
}

TEST(FileVersion, IsReadFromBothKinds) {
  EXPECT_EQ(VersionIn(PeFile(0x10B)), ".1.2.3.65535");
  EXPECT_EQ(VersionIn(PeFile(0x20B)), ".1.2.3.65535");
  EXPECT_EQ(VersionIn(PeFile(0x107)), "none");
  EXPECT_EQ(VersionIn(""), "none");
  EXPECT_EQ(VersionIn("MZ"), "none") << "a program of an older system";
}

// Whatever is missing or damaged, there is no version, or the one that is there.
TEST(FileVersion, NeedsTheWholeWayToIt) {
  const std::string whole = PeFile(0x20B);
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_EQ(VersionIn(whole.substr(0, size)), "none") << size;
  }
  struct Damage {
    const char* what;
    std::size_t at;
  };
  for (const auto& [what, at] : {Damage{"signature of the file", kPeHeader},
                                 Damage{"address of the resources", kPeResources + 2},
                                 Damage{"address of the section", kPeSection + 14},
                                 Damage{"type of the resource", kPeLists + 16},
                                 Damage{"address of the version", kPeEntry + 2},
                                 Damage{"signature of the version", kPeFixedInfo}}) {
    std::string damaged = whole;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x7F);
    EXPECT_EQ(VersionIn(damaged), "none") << what;
  }
}

}  // namespace
}  // namespace ZQ7Standard
