#pragma once

#include "hosts/posix/SystemCalls.h"
#include "result/Result.h"

#include <sys/types.h>

#include <optional>
#include <string>

/// Whether a plug-in may be run: what a panel loads acts in its user's name.
namespace vantorel {

/// Whose files are trusted, apart from the administrator's.
struct TrustedUsers {
    uid_t user = 0;
    /// The folder above that of the program, without links; empty if it is not known. Its
    /// `lib/vantorel/pickers` has the program's own plug-ins.
    std::string prefix = {};
    /// Whoever owns the program can make it do anything, with or without plug-ins, and is therefore
    /// trusted below `prefix`; but only there. In a sandbox, all files of other users seem to
    /// belong to one unknown user: the administrator's, and so a program that is installed for all
    /// users, but those of an attacker as well. An attacker who starts the program through a link
    /// gains nothing, because the prefix and the owner are those of the link's target.
    std::optional<uid_t> programOwner = {};
    /// The user's home folder, without links; empty if it is not known.
    std::string home = {};

    [[nodiscard]] static TrustedUsers ofThisProcess();
};

/// A file or folder that has passed the check.
struct TrustedFile {
    /// The file, opened only to identify it (O_PATH).
    Descriptor file;
    /// The folder that contains it, after all links have been followed, opened in the same way.
    Descriptor folder;
    /// Its name in `folder`.
    std::string name;
    bool isRegular;

    /// Returns a path to the file that was checked, valid as long as `file` is open.
    [[nodiscard]] std::string path() const;
    /// Returns a path that leads to the file through the folder that was checked, valid as long as
    /// `folder` is open. Only trusted users can put another file there.
    [[nodiscard]] std::string pathInFolder() const;
};

/// Opens a file or folder. Fails if it does not exist, or if somebody whom neither the user nor the
/// administrator trusts could change it or put another one in its place.
///
/// The path is followed from the root, one name at a time, through open folders. Each folder and
/// link on the way is checked, including those that links lead through. It must belong to a trusted
/// user, except for folders above the home folder or the program, whose owners could replace
/// either. All users may not write to it, unless it is a sticky folder, as /tmp is; nor may a
/// group, unless the user is alone in it, or the folder is the administrator's, who has then chosen
/// the group (Debian's /usr/local belongs to root and can be written by the group staff). An
/// access-control list may not let anyone else write. The same holds for the file itself, for which
/// being sticky makes no difference.
[[nodiscard]] Result<TrustedFile> openTrusted(
    const std::string& path, const TrustedUsers& users = TrustedUsers::ofThisProcess());

/// Fails as `openTrusted` does, but trusts a file that does not exist.
[[nodiscard]] Status checkTrust(const std::string& path,
                                const TrustedUsers& users = TrustedUsers::ofThisProcess());

}  // namespace vantorel
