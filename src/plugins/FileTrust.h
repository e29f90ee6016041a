#pragma once

#include "result/Result.h"

#include <sys/types.h>

#include <string>

/// Checks whether a plug-in can be trusted. It runs with all rights of the user.
namespace vantorel {

/// Fails if anyone whom neither the user nor the administrator trusts could modify or replace the
/// file or folder. A missing file is trusted.
///
/// The owner must be the user, the administrator or the owner of this program; in a sandbox, the
/// administrator's files can appear to belong to an unknown user. The file and its parent folders
/// must not be writable by everyone, except for sticky parent folders such as /tmp. They must not
/// be writable by a group either, unless the user is its only member or they belong to the
/// administrator, who has chosen the group: in Debian, the group staff can write to /usr/local.
Status checkTrust(const std::string& path);
/// Checks for a given user instead of the one who runs this program.
Status checkTrust(const std::string& path, uid_t user);

}  // namespace vantorel
