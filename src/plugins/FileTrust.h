#pragma once

#include "result/Result.h"

#include <sys/types.h>

#include <string>

/// Whether a plug-in may be run: what a panel loads acts in its user's name.
namespace vantorel {

/// Fails if somebody whom neither the user nor the administrator trusts could change the file or
/// folder, or put another one in its place. A missing file is trusted.
///
/// It must belong to one of the two, or to the owner of this program: in a sandbox, what belongs to
/// the administrator may appear as an unknown user's. All users may not write to it, nor to a
/// folder above it unless that one is sticky, as /tmp is; nor may a group, unless the user is alone
/// in it, or the folder is the administrator's, who has then chosen the group (Debian's /usr/local
/// belongs to root and can be written by the group staff).
Status checkTrust(const std::string& path);
/// For another user than the one whose program this is.
Status checkTrust(const std::string& path, uid_t user);

}  // namespace vantorel
