#pragma once

#include "host/HostPlugin.h"
#include "result/Result.h"

#include <memory>
#include <string>
#include <vector>

namespace vantorel {

/// A picker plug-in that has been loaded. It stays loaded for the life of the process: its code may
/// be referred to by anything it has made.
class LoadedPlugin {
public:
    LoadedPlugin(const HostPlugin& plugin, std::string file);

    [[nodiscard]] const HostPlugin& plugin() const { return _plugin; }
    [[nodiscard]] const std::string& file() const { return _file; }
    [[nodiscard]] const HostBundle& bundle() const { return *_bundle; }

    struct PickerDeleter {
        void (*destroy)(HostColorPicker*) = nullptr;
        void operator()(HostColorPicker* picker) const { destroy(picker); }
    };
    using Picker = std::unique_ptr<HostColorPicker, PickerDeleter>;

    /// Never null. Fails if the plug-in makes no page or throws.
    [[nodiscard]] Result<Picker> makePicker(HostColorPanel& panel) const;

private:
    const HostPlugin& _plugin;
    std::string _file;
    std::unique_ptr<HostBundle> _bundle;
};

/// Plug-ins, and why each other file or folder was left out.
struct PluginSearch {
    std::vector<LoadedPlugin> plugins;
    std::vector<Message> problems;
};

/// Says that a plug-in's file, or a folder of plug-ins, is left out, and why.
[[nodiscard]] Message leftOut(const std::string& path, Message why);

/// Where plug-ins are looked for: the panel's own folder, found from the program's place
/// (`../lib/vantorel/pickers`), then `Vantorel/Plugins` in the folder of the user's data.
[[nodiscard]] std::vector<std::string> pluginFolders(const std::string& programFolder,
                                                     const std::string& userDataFolder);

/// Loads every `.so` file of the folders, in order and each by name, and then the given files. Of
/// two plug-ins with the same identifier the first counts. Folders and files that other users could
/// change are left out.
[[nodiscard]] PluginSearch loadPlugins(const std::vector<std::string>& folders,
                                       const std::vector<std::string>& files);

}  // namespace vantorel
