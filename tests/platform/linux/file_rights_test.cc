#include "platform/linux/file_rights.h"

#include <endian.h>
#include <gtest/gtest.h>
#include <linux/posix_acl.h>
#include <linux/posix_acl_xattr.h>

#include <vector>

namespace ZQ7Standard {
namespace {

constexpr mode_t kAll = 7;
constexpr mode_t kOwners = 0600;

/// A list with one named user and one named group.
struct Entries {
  mode_t user, group, named_group, mask, others;
};

std::string ListOf(const Entries& entries) {
  const posix_acl_xattr_header header{htole32(POSIX_ACL_XATTR_VERSION)};
  std::string bytes(reinterpret_cast<const char*>(&header), sizeof header);
  const std::pair<int, mode_t> rows[] = {
      {ACL_USER_OBJ, kOwners >> 6U},    {ACL_USER, entries.user}, {ACL_GROUP_OBJ, entries.group},
      {ACL_GROUP, entries.named_group}, {ACL_MASK, entries.mask}, {ACL_OTHER, entries.others}};
  for (const auto& [tag, rights] : rows) {
    const posix_acl_xattr_entry entry{htole16(static_cast<std::uint16_t>(tag)),
                                      htole16(static_cast<std::uint16_t>(rights)), htole32(1)};
    bytes.append(reinterpret_cast<const char*>(&entry), sizeof entry);
  }
  return bytes;
}

/// A user other than the owner who asks for access.
struct Asker {
  bool is_named, in_group, in_named_group;
};

/// Whether the list grants the user everything asked for, by the rules of the system.
bool Gives(const Entries& entries, const Asker& asker, mode_t asked) {
  const auto has = [&](mode_t rights) { return (rights & asked) == asked; };
  if (asker.is_named) return has(entries.user & entries.mask);
  if (!asker.in_group && !asker.in_named_group) return has(entries.others);
  return (asker.in_group && has(entries.group & entries.mask)) ||
         (asker.in_named_group && has(entries.named_group & entries.mask));
}

bool Gives(mode_t mode, const Asker& asker, mode_t asked) {
  const mode_t rights = asker.in_group ? mode >> 3U : mode;
  return (rights & asked) == asked;
}

TEST(FileRights, NobodyGainsARightWhenAListIsDropped) {
  for (mode_t bits = 0; bits < 1U << 15U; ++bits) {
    const Entries entries{bits & kAll, bits >> 3U & kAll, bits >> 6U & kAll, bits >> 9U & kAll,
                          bits >> 12U & kAll};
    const mode_t mode =
        ModeWithoutList(kOwners | entries.mask << 3U | entries.others, ListOf(entries));
    ASSERT_EQ(mode & S_IRWXU, kOwners);
    for (unsigned who = 0; who < 8; ++who) {
      const Asker asker{(who & 1U) != 0, (who & 2U) != 0, (who & 4U) != 0};
      for (mode_t asked = 1; asked <= kAll; ++asked) {
        const bool had = Gives(entries, asker, asked);
        ASSERT_TRUE(had || !Gives(mode, asker, asked)) << std::oct << bits << ' ' << who;
      }
    }
  }
}

TEST(FileRights, KeepsWhatTheListGaveToAll) {
  EXPECT_EQ(ModeWithoutList(0664, ListOf({6, 4, 4, 6, 4})), 0644U) << "the mask is no right";
  EXPECT_EQ(ModeWithoutList(0644, ListOf({7, 7, 7, 4, 4})), 0644U);
  EXPECT_EQ(ModeWithoutList(0666, ListOf({6, 6, 4, 6, 6})), 0664U);
  EXPECT_EQ(ModeWithoutList(0640, ""), 0640U) << "no list";
}

}  // namespace
}  // namespace ZQ7Standard
