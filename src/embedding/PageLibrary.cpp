#include "embedding/PageLibrary.h"

namespace vantorel {

const LoadedPlugin* pageOfLibrary(const std::string& file) noexcept
{
    try {
        // Never destroyed: a program that ends may still be showing a dialog.
        static const auto* const search = new PluginSearch(loadPlugins({}, {file}));
        return search->plugins.empty() ? nullptr : &search->plugins.front();
    } catch (...) {
        return nullptr;
    }
}

}  // namespace vantorel
