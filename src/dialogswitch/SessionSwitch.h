#pragma once

#include "dialogswitch/CreatedFolders.h"
#include "dialogswitch/DialogSwitch.h"
#include "dialogswitch/LoaderFolder.h"
#include "dialogswitch/SessionEnvironment.h"
#include "dialogswitch/SharedFile.h"

#include <vector>

namespace vantorel {

/// A switch for programs of a toolkit that finds plug-ins by variables of the session's
/// environment.
///
/// Most sessions take these from the files of environment.d(5). X sessions of desktops that systemd
/// does not start take them from a script, in which a few lines read our files.
class SessionSwitch : public DialogSwitch {
public:
    [[nodiscard]] DialogSwitchState state() const override;
    [[nodiscard]] Status turnOn() override;
    [[nodiscard]] Status turnOff() override;

protected:
    /// `loaders` are paths in the folder lib/vantorel.
    SessionSwitch(PosixFiles& files, const DialogSwitchPlaces& places, DialogPrograms programs,
                  std::vector<std::string> loaders);

    void addVariable(ListVariable variable) { _variables.push_back(std::move(variable)); }
    [[nodiscard]] const LoaderFolder& loaders() const { return _loaders; }
    /// A file that is changed in addition. `name` is that of its record.
    [[nodiscard]] SharedFile sharedFile(const std::string& path, const std::string& name);

private:
    [[nodiscard]] SharedFile environment() { return sharedFile(_environmentFile, "environment"); }
    [[nodiscard]] SharedFile sessionScript();
    /// Whether a switch of this kind is on.
    [[nodiscard]] bool hasEnvironmentFiles() const;

    PosixFiles& _files;
    std::string _records;
    CreatedFolders _folders;
    LoaderFolder _loaders;
    std::vector<ListVariable> _variables;
    std::string _environmentFolder;
    std::string _environmentFile;
    std::optional<std::string> _sessionScript;
};

}  // namespace vantorel
