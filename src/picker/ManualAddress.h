#pragma once

#include "host/HostFiles.h"

#include <string>
#include <string_view>

namespace vantorel {

/// Returns the `file://` URL of an absolute path. Bytes that are not allowed in a URL are
/// percent-encoded.
[[nodiscard]] std::string fileURLFromPath(std::string_view path);

/// Returns the URL of the manual to open. A URL that is not that of a local file, such as a web
/// page's, is returned unchanged, and so is that of an existing file. If the file does not exist,
/// the copy in the plug-in's resources is used, which is available without an installation. If
/// there is no copy either, the configured URL is returned, so that the desktop can report what is
/// missing.
[[nodiscard]] std::string manualURL(const std::string& configured, const HostFiles& files,
                                    const HostBundle& bundle);

}  // namespace vantorel
