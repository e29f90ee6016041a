#include "plugins/WriteAccess.h"

#include "plugins/AccessList.h"

#include <grp.h>
#include <pwd.h>

#include <algorithm>

namespace vantorel {
namespace {

/// Whether the user is the only member of a group. Many systems create such a group for each user.
bool isGroupOfTheUserAlone(gid_t group, uid_t user)
{
    const struct passwd* account = ::getpwuid(user);
    if (account == nullptr || account->pw_gid != group) return false;
    const std::string name = account->pw_name;
    const struct group* row = ::getgrgid(group);
    if (row == nullptr || name != row->gr_name) return false;
    for (char** member = row->gr_mem; *member != nullptr; ++member) {
        if (name != *member) return false;
    }
    return true;
}

Phrase withoutAccessList()
{
    return phrase("remove the access-control list with \"setfacl -b\"");
}

}  // namespace

Status checkThatOthersCannotWrite(const OwnedFile& file, uid_t user)
{
    const struct stat& status = file.status;
    Writers writers;
    const AccessListState list = readAccessList(file.path, writers);
    if (list == AccessListState::unreadable)
        return Message{phrase("the access-control list of \"%1\" cannot be read", file.shownPath)};
    if (list == AccessListState::none) {
        writers.everyone = (status.st_mode & S_IWOTH) != 0;
        writers.owningGroup = (status.st_mode & S_IWGRP) != 0;
    }
    if (writers.everyone) {
        return Message{phrase("all users can write to \"%1\"", file.shownPath),
                       phrase("remove the permission with \"chmod o-w\"")};
    }
    if (writers.owningGroup && status.st_uid != administrator &&
        !isGroupOfTheUserAlone(status.st_gid, user)) {
        return Message{phrase("a group can write to \"%1\"", file.shownPath),
                       phrase("remove the permission with \"chmod g-w\"")};
    }
    if (std::ranges::any_of(writers.users,
                            [=](uid_t one) { return one != administrator && one != user; }))
        return Message{phrase("another user can write to \"%1\"", file.shownPath),
                       withoutAccessList()};
    if (!std::ranges::all_of(writers.groups,
                             [=](gid_t one) { return isGroupOfTheUserAlone(one, user); }))
        return Message{phrase("a group can write to \"%1\"", file.shownPath), withoutAccessList()};
    return {};
}

}  // namespace vantorel
