#pragma once

#include "host/HostFiles.h"

#include <string>
#include <string_view>

namespace vantorel {

/// The `file://` address of an absolute path: bytes that an address cannot hold are escaped.
[[nodiscard]] std::string fileURLFromPath(std::string_view path);

/// The address of the manual to open. An address that is of no file on this computer, such as a web
/// page's, is taken as it is. One of a file is taken while that file is there; otherwise the copy
/// beside the plug-in, which is there when nothing has been installed. Without that, too, the
/// configured one, so that the desktop can say what is missing.
[[nodiscard]] std::string manualURL(const std::string& configured, const HostFiles& files,
                                    const HostBundle& bundle);

}  // namespace vantorel
