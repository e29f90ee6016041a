#include "plugins/PluginLoader.h"

#include "plugins/FileTrust.h"

#include <dlfcn.h>

#include <algorithm>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace vantorel {
namespace {

namespace fs = std::filesystem;

/// The resources in the folder beside the library: those of `NAME.so` are in `NAME.resources`.
class FolderBundle final : public HostBundle {
public:
    explicit FolderBundle(const std::string& libraryFile)
        : _folder(fs::path(libraryFile).replace_extension(".resources"))
    {
    }

    [[nodiscard]] std::optional<std::string> resource(const std::string& name) const override
    {
        if (!isFileName(name)) return std::nullopt;
        std::ifstream file(_folder / name, std::ios::binary);
        if (!file) return std::nullopt;
        return std::string(std::istreambuf_iterator<char>(file), {});
    }

    [[nodiscard]] std::optional<std::string> pathOfResource(const std::string& name) const override
    {
        if (!isFileName(name)) return std::nullopt;
        std::error_code error;
        const fs::path path = fs::absolute(_folder / name, error);
        if (error || !fs::is_regular_file(path, error)) return std::nullopt;
        return path.lexically_normal().string();
    }

private:
    /// Rejects names that would lead out of the folder.
    static bool isFileName(const std::string& name)
    {
        return !name.empty() && name.find('/') == std::string::npos;
    }

    fs::path _folder;
};

/// Loads a library and returns its plug-in, which is never null.
Result<const HostPlugin*> pluginOfLibrary(const std::string& file)
{
    if (const Status trust = checkTrust(file); !trust) return trust.error();
    std::error_code error;
    // Opening a pipe would block the panel.
    if (fs::exists(file, error) && !fs::is_regular_file(file, error))
        return Message{phrase("it is not a regular file")};
    // The library is never closed: see LoadedPlugin.
    void* library = ::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        const char* reason = ::dlerror();
        return Message{reason != nullptr ? verbatim(reason) : phrase("it cannot be loaded")};
    }
    const auto* abi = static_cast<const std::uint32_t*>(::dlsym(library, "vantorelPluginABI"));
    if (abi == nullptr)
        return Message{phrase("it is not a picker plug-in (it lacks vantorelPluginABI)")};
    if (*abi != hostPluginABI) {
        return Message{phrase("it was built for version %1 of the plug-in interface, and this "
                              "panel has version %2",
                              *abi, hostPluginABI),
                       phrase("install one that was built for this panel")};
    }
    using Entry = const HostPlugin* (*)();
    const auto entry = reinterpret_cast<Entry>(::dlsym(library, "vantorelPlugin"));
    const HostPlugin* plugin = nullptr;
    try {
        plugin = entry != nullptr ? entry() : nullptr;
    } catch (...) {
        plugin = nullptr;
    }
    const bool complete = plugin != nullptr && plugin->identifier != nullptr &&
                          plugin->displayName != nullptr && plugin->createPicker != nullptr &&
                          plugin->destroyPicker != nullptr;
    if (!complete) return Message{phrase("it contains no picker")};
    return plugin;
}

std::vector<std::string> librariesIn(const std::string& folder)
{
    std::vector<std::string> files;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error)) {
        if (entry.path().extension() == ".so") files.push_back(entry.path().string());
    }
    std::sort(files.begin(), files.end());
    return files;
}

void load(const std::string& file, PluginSearch& search)
{
    const Result<const HostPlugin*> plugin = pluginOfLibrary(file);
    if (!plugin) {
        search.problems.push_back(leftOut(file, plugin.error()));
        return;
    }
    const std::string identifier = (*plugin)->identifier;
    const auto known = std::find_if(
        search.plugins.begin(), search.plugins.end(),
        [&](const LoadedPlugin& other) { return other.plugin().identifier == identifier; });
    if (known == search.plugins.end()) {
        search.plugins.emplace_back(**plugin, file);
    } else if (known->file() != file) {
        search.problems.push_back(
            leftOut(file, {phrase("%1 is the same plug-in and was loaded first", known->file())}));
    }
}

}  // namespace

LoadedPlugin::LoadedPlugin(const HostPlugin& plugin, std::string file)
    : _plugin(plugin), _file(std::move(file)), _bundle(std::make_unique<FolderBundle>(_file))
{
}

Result<LoadedPlugin::Picker> LoadedPlugin::makePicker(HostColorPanel& panel) const
{
    try {
        HostColorPicker* picker = _plugin.createPicker(0, panel, *_bundle);
        if (picker == nullptr) return Message{phrase("it did not create a page")};
        return Picker(picker, {_plugin.destroyPicker});
    } catch (const std::exception& error) {
        return Message{phrase("it failed to create its page: %1", error.what())};
    } catch (...) {
        return Message{phrase("it failed to create its page")};
    }
}

Message leftOut(const std::string& path, Message why)
{
    return {phrase("%1 is left out: %2", path, std::move(why.what)), std::move(why.remedy)};
}

std::vector<std::string> pluginFolders(const std::string& programFolder,
                                       const std::string& userDataFolder)
{
    std::vector<std::string> folders{
        (fs::path(programFolder).parent_path() / "lib/vantorel/pickers").string()};
    if (!userDataFolder.empty()) folders.push_back(userDataFolder + "/Vantorel/Plugins");
    return folders;
}

PluginSearch loadPlugins(const std::vector<std::string>& folders,
                         const std::vector<std::string>& files)
{
    PluginSearch search;
    for (const std::string& folder : folders) {
        if (const Status trust = checkTrust(folder); !trust) {
            search.problems.push_back(leftOut(folder, trust.error()));
            continue;
        }
        for (const std::string& file : librariesIn(folder))
            load(file, search);
    }
    for (const std::string& file : files) {
        // Made absolute, because dlopen searches the system's folders for a name without "/".
        load(fs::absolute(file).string(), search);
    }
    return search;
}

}  // namespace vantorel
