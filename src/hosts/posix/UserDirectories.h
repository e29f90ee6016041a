#pragma once

#include "host/HostFiles.h"

namespace vantorel {

/// The base directories of the user who runs the program (XDG Base Directory Specification): of
/// `$XDG_CONFIG_HOME`, `$XDG_DATA_HOME`, `$XDG_CONFIG_DIRS` and `$XDG_DATA_DIRS` the absolute
/// paths, and the specified default where a variable has none. Without a home the user's own two
/// are missing where they would be in it.
[[nodiscard]] HostBaseDirectories userBaseDirectories();

}  // namespace vantorel
