// SPDX-License-Identifier: Apache-2.0
#include "base/files/FileRights.h"

#include <acl/libacl.h>
#include <sys/acl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <memory>
#include <type_traits>

namespace tarsil {

namespace {

struct Free
{
    void operator()(acl_t list) const { acl_free(list); }
};
using AccessList = std::unique_ptr<std::remove_pointer_t<acl_t>, Free>;

/// Whether the new file has the owner and the group of the old one.
struct Kept
{
    bool owner;
    bool group;
};

/// Changing the owner needs root. Changing the group needs a user who is a member of it.
Kept keepOwner(const struct stat& old, int handle)
{
    constexpr auto asItIs = static_cast<uid_t>(-1);
    const bool group = ::fchown(handle, asItIs, old.st_gid) == 0;
    return {::fchown(handle, old.st_uid, asItIs) == 0, group};
}

/// The access list of a file, made from `mode` where the file system has none; null on failure.
AccessList accessListOf(const std::filesystem::path& path, mode_t mode)
{
    AccessList list(acl_get_file(path.c_str(), ACL_TYPE_ACCESS));
    if (!list && (errno == ENOTSUP || errno == ENOSYS))
        list.reset(acl_from_mode(mode));
    return list;
}

acl_entry_t entryOf(const AccessList& list, acl_tag_t wanted)
{
    acl_entry_t entry = nullptr;
    int found = acl_get_entry(list.get(), ACL_FIRST_ENTRY, &entry);
    while (found == 1) {
        acl_tag_t tag = ACL_UNDEFINED_TAG;
        if (acl_get_tag_type(entry, &tag) == 0 && tag == wanted)
            return entry;
        found = acl_get_entry(list.get(), ACL_NEXT_ENTRY, &entry);
    }
    return nullptr;
}

/// Removes from `entry` each permission that `by` lacks. A missing entry counts as all permissions.
void narrow(acl_entry_t entry, acl_entry_t by)
{
    acl_permset_t own = nullptr;
    acl_permset_t others = nullptr;
    if (entry == nullptr || by == nullptr || acl_get_permset(entry, &own) != 0
        || acl_get_permset(by, &others) != 0)
        return;
    for (const acl_perm_t right : {ACL_READ, ACL_WRITE, ACL_EXECUTE}) {
        if (acl_get_perm(others, right) != 1)
            acl_delete_perm(own, right);
    }
}

/// When the owner or the group changed, people move between the classes owner, group and others.
/// Each affected class keeps only the permissions that all of them had.
void narrowToKept(const AccessList& list, Kept kept)
{
    acl_entry_t owner = entryOf(list, ACL_USER_OBJ);
    acl_entry_t group = entryOf(list, ACL_GROUP_OBJ);
    acl_entry_t others = entryOf(list, ACL_OTHER);
    if (!kept.group) {
        narrow(group, entryOf(list, ACL_MASK));
        narrow(group, others);
        narrow(others, group);
    }
    if (!kept.owner) {
        narrow(group, owner);
        narrow(others, owner);
    }
}

/// Sets the access list, or the nine bits where lists are not supported. Returns success.
bool give(const AccessList& list, int handle)
{
    mode_t mode = 0;
    return acl_set_fd(handle, list.get()) == 0
        || (acl_equiv_mode(list.get(), &mode) == 0 && ::fchmod(handle, mode) == 0);
}

} // namespace

void copyRights(const std::filesystem::path& target, std::FILE* file)
{
    struct stat old = {};
    if (::stat(target.c_str(), &old) != 0)
        return;
    const int handle = ::fileno(file);
    const Kept kept = keepOwner(old, handle);
    const AccessList list = accessListOf(target, old.st_mode);
    if (list)
        narrowToKept(list, kept);
    if (!list || !give(list, handle)) // the meaning of the group bits is unknown
        static_cast<void>(::fchmod(handle, old.st_mode & S_IRWXU));
}

} // namespace tarsil
