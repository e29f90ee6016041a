#include "plugins/PluginLoader.h"

#include "hosts/posix/LibraryFile.h"
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

std::string resourcesOfLibrary(const std::string& libraryFile)
{
    return fs::path(libraryFile).replace_extension(".resources").string();
}

/// The resources in the folder beside the library: those of `NAME.so` are in `NAME.resources`. They
/// steer the plug-in's code, so each must be as trustworthy as the library.
class FolderBundle final : public HostBundle {
public:
    explicit FolderBundle(const std::string& libraryFile) : _folder(resourcesOfLibrary(libraryFile))
    {
    }

    [[nodiscard]] std::optional<std::string> resource(const std::string& name) const override
    {
        const auto found = openResource(name);
        if (!found) return std::nullopt;
        std::ifstream file(found->path(), std::ios::binary);
        if (!file) return std::nullopt;
        return std::string(std::istreambuf_iterator<char>(file), {});
    }

    [[nodiscard]] std::optional<std::string> pathOfResource(const std::string& name) const override
    {
        if (!openResource(name)) return std::nullopt;
        std::error_code error;
        const fs::path path = fs::absolute(_folder / name, error);
        if (error) return std::nullopt;
        return path.lexically_normal().string();
    }

private:
    /// Returns a regular file.
    [[nodiscard]] std::optional<TrustedFile> openResource(const std::string& name) const
    {
        // Rejects names that would lead out of the folder.
        if (name.empty() || name.find('/') != std::string::npos) return std::nullopt;
        auto found = openTrusted(_folder / name);
        if (!found || !found->isRegular) return std::nullopt;
        return *std::move(found);
    }

    fs::path _folder;
};

/// Loads the library that was checked, not what has its name by now. It is never closed: see
/// LoadedPlugin. Never null.
Result<void*> loadLibrary(TrustedFile library, const std::string& file)
{
    // Through the folder, so that the library finds its own path and, by $ORIGIN, libraries beside
    // it. The descriptors stay open: another library must not get a name that the dynamic loader
    // knows. It recognises a library that is loaded again by its inode.
    static std::vector<TrustedFile> libraries;
    const std::string path = libraries.emplace_back(std::move(library)).pathInFolder();
    void* loaded = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (loaded != nullptr) return loaded;
    const char* error = ::dlerror();
    libraries.pop_back();
    if (error == nullptr) return Message{phrase("it cannot be loaded")};
    std::string reason = error;
    if (reason.starts_with(path)) reason.replace(0, path.size(), file);
    return Message{verbatim(reason)};
}

/// Loads a library and returns its plug-in, which is never null.
Result<const HostPlugin*> pluginOfLibrary(const std::string& file)
{
    auto trusted = openTrusted(file);
    if (!trusted) return trusted.error();
    if (!trusted->isRegular) return Message{phrase("it is not a regular file")};
    if (const Status trust = checkTrust(resourcesOfLibrary(file)); !trust) return trust.error();
    if (isCutOffLibrary(trusted->path().c_str())) {
        return Message{phrase("a part of it is missing"), phrase("install it again")};
    }
    const Result<void*> loaded = loadLibrary(*std::move(trusted), file);
    if (!loaded) return loaded.error();
    void* library = *loaded;
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
        // Fails for a relative path if the working folder has been removed.
        std::error_code error;
        const fs::path path = fs::absolute(file, error);
        if (error) {
            search.problems.push_back(
                leftOut(file, {phrase("the working folder cannot be read: %1", error.message()),
                               phrase("use the absolute path of the plug-in")}));
        } else {
            load(path.string(), search);
        }
    }
    return search;
}

}  // namespace vantorel
