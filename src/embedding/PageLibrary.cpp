#include "embedding/PageLibrary.h"

#include "embedding/PageTranslations.h"

namespace vantorel {
namespace {

constexpr const char* pageName = "/QTXHexColorPicker.so";
/// From PREFIX/lib/vantorel/pickers, or a link to it, which the system follows before the dots.
constexpr const char* translationsBesidePages = "/../../../share/vantorel/translations";

const LoadedPlugin* opened = nullptr;

}  // namespace

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

bool openPage(const char* pagesFolder) noexcept
{
    try {
        setPageTranslations(pagesFolder + std::string(translationsBesidePages));
        opened = pageOfLibrary(pagesFolder + std::string(pageName));
    } catch (...) {
        opened = nullptr;
    }
    return opened != nullptr;
}

const LoadedPlugin* openedPage() noexcept
{
    return opened;
}

}  // namespace vantorel
