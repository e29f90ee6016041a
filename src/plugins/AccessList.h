#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// POSIX access-control lists, which let more users write than the mode of a file shows.
namespace vantorel {

/// Who can write, apart from the owner.
struct Writers {
    bool everyone = false;
    bool owningGroup = false;
    std::vector<uid_t> users;
    std::vector<gid_t> groups;

    bool operator==(const Writers&) const = default;
};

/// Reads a list in the form of the extended attribute `system.posix_acl_access`. Returns
/// `std::nullopt` if it has another form.
[[nodiscard]] std::optional<Writers> writersInAccessList(std::string_view attribute);

enum class AccessListState { none, read, unreadable };

/// Reads the access-control list of a file or folder into `writers`, following links. Files without
/// a list, and file systems that have none, give `none`.
[[nodiscard]] AccessListState readAccessList(const std::string& path, Writers& writers);

}  // namespace vantorel
