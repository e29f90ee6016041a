#pragma once

#include "plugins/PluginLoader.h"

#include <string>

namespace vantorel {

/// Returns the plug-in of the colour page in a library, which is loaded at the first call and stays
/// loaded; later calls return the same, whatever the file. Returns null if the library is missing,
/// incomplete, of another version, or could have been changed by other users. Never throws, and
/// prints nothing: the program around us knows nothing of the page.
[[nodiscard]] const LoadedPlugin* pageOfLibrary(const std::string& file) noexcept;

/// Opens the colour page in a folder of plug-ins, as `pageOfLibrary` does, and sets the folder of
/// its translations: share/vantorel/translations of the prefix in which lib/vantorel/pickers is.
bool openPage(const char* pagesFolder) noexcept;
/// Returns the page that `openPage` has opened; null if there is none.
[[nodiscard]] const LoadedPlugin* openedPage() noexcept;

}  // namespace vantorel
