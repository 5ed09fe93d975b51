#include "platform/linux/file_rights.h"

#include <endian.h>
#include <linux/posix_acl.h>
#include <linux/posix_acl_xattr.h>

#include <cerrno>
#include <cstring>

namespace ZQ7Standard {
namespace {

constexpr const char* kAccessList = "system.posix_acl_access";
constexpr mode_t kAll = S_IRWXO;  // the rights of one entry

/// The rights in the entries of an access control list, as bits of `S_IRWXO`.
struct ListedRights {
  mode_t group = kAll;         ///< the file's own group
  mode_t mask = kAll;          ///< limits everyone but the owner and others
  mode_t named_users = kAll;   ///< what all named users have
  mode_t named_groups = kAll;  ///< what all named groups have
};

void Add(const posix_acl_xattr_entry& entry, ListedRights& rights) {
  const mode_t given = le16toh(entry.e_perm);
  switch (le16toh(entry.e_tag)) {
    case ACL_GROUP_OBJ:
      rights.group = given;
      break;
    case ACL_MASK:
      rights.mask = given;
      break;
    case ACL_USER:
      rights.named_users &= given;
      break;
    case ACL_GROUP:
      rights.named_groups &= given;
      break;
    default:
      break;
  }
}

ListedRights RightsOf(std::string_view list) {
  ListedRights rights;
  posix_acl_xattr_entry entry;
  for (list.remove_prefix(sizeof(posix_acl_xattr_header)); list.size() >= sizeof entry;
       list.remove_prefix(sizeof entry)) {
    std::memcpy(&entry, list.data(), sizeof entry);
    Add(entry, rights);
  }
  return rights;
}

bool SetList(const OpenFile& file, const std::string& list) {
  return file.Calls().fsetxattr(file.Descriptor(), kAccessList, list.data(), list.size(), 0) == 0;
}

/// Removes what a new file inherited from its folder's default list.
void RemoveList(const OpenFile& file) {
  const auto list = AccessListOf(file);
  if (list && list->empty()) return;
  if (file.Calls().fremovexattr(file.Descriptor(), kAccessList) != 0) {
    file.Fail(errno, "set rights");
  }
}

/// The mode that a file keeps if its group changes. The members of either group are others to the
/// other, so they keep what everyone has.
mode_t ForOtherGroup(mode_t mode) {
  const mode_t everyone = mode >> 3U & mode & S_IRWXO;
  return (mode & S_IRWXU) | everyone << 3U | everyone;
}

}  // namespace

std::optional<std::string> AccessListOf(const OpenFile& file) {
  const auto get = [&](char* list, std::size_t size) {
    return file.Calls().fgetxattr(file.Descriptor(), kAccessList, list, size);
  };
  // Asking for the size first is fast if there is no list.
  const ssize_t size = get(nullptr, 0);
  if (size < 0 && (errno == ENODATA || errno == EOPNOTSUPP)) return "";
  if (size < 0) return std::nullopt;
  std::string list(static_cast<std::size_t>(size), '\0');
  if (get(list.data(), list.size()) != size) return std::nullopt;
  return list;
}

mode_t ModeWithoutList(mode_t mode, std::string_view list) {
  if (list.size() < sizeof(posix_acl_xattr_header)) return mode;
  const ListedRights rights = RightsOf(list);
  // Without the list, a user whom it names may belong to the group or to the others, and a member
  // of a group that it names may be one of the others.
  const mode_t group = rights.group & rights.mask & rights.named_users;
  const mode_t others = mode & rights.mask & rights.named_users & rights.named_groups;
  return (mode & S_IRWXU) | group << 3U | others;
}

void TakeRights(const OpenFile& file, const struct stat& own, const FileRights& other) {
  constexpr auto kSameOwner = static_cast<uid_t>(-1);
  const auto& [status, list] = other;
  const auto& calls = file.Calls();
  const int descriptor = file.Descriptor();
  const bool same = (own.st_uid == status.st_uid && own.st_gid == status.st_gid) ||
                    calls.fchown(descriptor, status.st_uid, status.st_gid) == 0;
  const bool same_group = same || calls.fchown(descriptor, kSameOwner, status.st_gid) == 0;
  mode_t mode = status.st_mode & ACCESSPERMS;
  if (!list) mode &= S_IRWXU;
  const bool has_list = list && !list->empty();
  if (!(has_list && same && SetList(file, *list))) {
    RemoveList(file);
    if (has_list) mode = ModeWithoutList(mode, *list);
  }
  if (!same_group) mode = ForOtherGroup(mode);
  if (calls.fchmod(descriptor, mode | S_IWUSR) != 0) file.Fail(errno, "set rights");
}

}  // namespace ZQ7Standard
