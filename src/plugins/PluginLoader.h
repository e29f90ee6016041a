#pragma once

#include "host/HostPlugin.h"
#include "result/Result.h"

#include <memory>
#include <string>
#include <vector>

namespace vantorel {

/// A loaded picker plug-in. It is never unloaded, because the objects that it has created refer to
/// its code.
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

    /// Creates a picker, which is never null. Fails if the plug-in creates none or throws.
    [[nodiscard]] Result<Picker> makePicker(HostColorPanel& panel) const;

private:
    const HostPlugin& _plugin;
    std::string _file;
    std::unique_ptr<HostBundle> _bundle;
};

/// The loaded plug-ins, and a message for each file or folder that was left out.
struct PluginSearch {
    std::vector<LoadedPlugin> plugins;
    std::vector<Message> problems;
};

/// Returns the message that a plug-in, or a folder of plug-ins, is left out, with the reason.
[[nodiscard]] Message leftOut(const std::string& path, Message why);

/// Returns the folders that are searched for plug-ins: the installed one, relative to the program
/// (`../lib/vantorel/pickers`), then `Vantorel/Plugins` in the user's data folder, unless that is
/// empty.
[[nodiscard]] std::vector<std::string> pluginFolders(const std::string& programFolder,
                                                     const std::string& userDataFolder);

/// Loads all `.so` files of the folders, sorted by name in each, then the given files. If two
/// plug-ins have the same identifier, the first is used. Folders and files that other users could
/// modify are left out.
[[nodiscard]] PluginSearch loadPlugins(const std::vector<std::string>& folders,
                                       const std::vector<std::string>& files);

}  // namespace vantorel
