#include "plugins/FileTrust.h"

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <optional>
#include <vector>

namespace vantorel {
namespace {

namespace fs = std::filesystem;

constexpr uid_t administrator = 0;

enum class Sticky { counts, doesNotCount };

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

Status checkThatOthersCannotWrite(const fs::path& path, const struct stat& status, Sticky sticky,
                                  uid_t user)
{
    if (sticky == Sticky::counts && (status.st_mode & S_ISVTX) != 0) return {};
    if ((status.st_mode & S_IWOTH) != 0) {
        return Message{phrase("all users can write to \"%1\"", path.string()),
                       phrase("remove the permission with \"chmod o-w\"")};
    }
    if ((status.st_mode & S_IWGRP) != 0 && status.st_uid != administrator &&
        !isGroupOfTheUserAlone(status.st_gid, user)) {
        return Message{phrase("a group can write to \"%1\"", path.string()),
                       phrase("remove the permission with \"chmod g-w\"")};
    }
    return {};
}

/// Returns the owner of this program, who can change what it does even without plug-ins.
uid_t ownerOfThisProgram()
{
    struct stat status {};
    return ::stat("/proc/self/exe", &status) == 0 ? status.st_uid : administrator;
}

Status checkOwner(const fs::path& path, const struct stat& status, uid_t user)
{
    const uid_t owner = status.st_uid;
    if (owner == administrator || owner == user || owner == ownerOfThisProgram()) return {};
    return Message{phrase("\"%1\" belongs to another user", path.string())};
}

std::optional<struct stat> statusOf(const fs::path& path)
{
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return std::nullopt;
    return status;
}

/// Checks the parent folders, because whoever can write to one can replace the folder below it.
/// Their owners are not checked: where users keep their files is up to them.
Status checkFoldersAbove(const fs::path& folder, uid_t user)
{
    for (fs::path above = folder.parent_path(); !above.empty(); above = above.parent_path()) {
        if (const auto status = statusOf(above)) {
            Status trust = checkThatOthersCannotWrite(above, *status, Sticky::counts, user);
            if (!trust) return trust;
        }
        if (above == above.parent_path()) break;
    }
    return {};
}

/// Returns the given path and, if it contains links, the path of their target. Both are checked,
/// because a link can be replaced by whoever can write to its folder.
std::vector<fs::path> waysTo(const std::string& path)
{
    std::error_code error;
    std::vector<fs::path> ways{fs::absolute(path, error).lexically_normal()};
    const fs::path real = fs::canonical(path, error);
    if (!error && real != ways.front()) ways.push_back(real);
    return ways;
}

}  // namespace

Status checkTrust(const std::string& path)
{
    return checkTrust(path, ::geteuid());
}

Status checkTrust(const std::string& path, uid_t user)
{
    for (const fs::path& way : waysTo(path)) {
        const auto status = statusOf(way);
        if (!status) continue;
        Status trust = checkOwner(way, *status, user);
        if (trust) trust = checkThatOthersCannotWrite(way, *status, Sticky::doesNotCount, user);
        if (trust) trust = checkFoldersAbove(way, user);
        if (!trust) return trust;
    }
    return {};
}

}  // namespace vantorel
