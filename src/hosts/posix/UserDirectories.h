#pragma once

#include "host/HostFiles.h"

namespace vantorel {

/// Returns the base directories of the user who runs the program (XDG Base Directory
/// Specification): the absolute paths in `$XDG_CONFIG_HOME`, `$XDG_DATA_HOME`, `$XDG_CONFIG_DIRS`
/// and `$XDG_DATA_DIRS`, and the specified default for a variable without one. If the user has no
/// home directory, the defaults of the first two are `std::nullopt`.
[[nodiscard]] HostBaseDirectories userBaseDirectories();

}  // namespace vantorel
