#pragma once

#include "host/HostFiles.h"

#include <string>
#include <string_view>

namespace vantorel {

/// Returns the `file://` URL of an absolute path. Bytes that are not allowed in a URL are
/// percent-encoded.
[[nodiscard]] std::string fileURLFromPath(std::string_view path);

/// Returns the URL of the manual to open. `translatedPage` is the name of the page in the user's
/// language, such as "supportManual_de.htm", or the English name.
///
/// A configured URL that is not that of a local file, such as a web page's, is returned unchanged,
/// because it is unknown which translations are beside it. Otherwise the page is the first that
/// exists: the translation beside the configured file, the translation among the plug-in's
/// resources, which are available without an installation, the configured file, or the English page
/// among the resources. If there is none, the configured URL is returned, so that the desktop can
/// report what is missing.
[[nodiscard]] std::string manualURL(const std::string& configured, const HostFiles& files,
                                    const HostBundle& bundle, const std::string& translatedPage);

}  // namespace vantorel
