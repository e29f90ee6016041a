#pragma once

#include "dialogswitch/CreatedFolders.h"
#include "dialogswitch/DialogSwitch.h"
#include "dialogswitch/LoaderFolder.h"

#include <vector>

namespace vantorel {

/// GIMP loads the modules in a folder of the user's, one for each of its versions. They are links
/// to ours.
class GimpSwitch final : public DialogSwitch {
public:
    GimpSwitch(PosixFiles& files, const DialogSwitchPlaces& places);

    [[nodiscard]] DialogSwitchState state() const override;
    /// Fails if the user has never started a version of GIMP for which there is a module. GIMP must
    /// create its folder: it takes over the settings of an older version only then.
    [[nodiscard]] Status turnOn() override;
    [[nodiscard]] Status turnOff() override;

private:
    struct Module {
        /// The folder of that version of GIMP.
        std::string folder;
        /// A path in the folder lib/vantorel.
        std::string loader;

        [[nodiscard]] std::string modules() const { return folder + "/modules"; }
        [[nodiscard]] std::string link() const { return modules() + "/libvantorel.so"; }
    };

    /// Those that are installed, and whose version of GIMP the user has started.
    [[nodiscard]] std::vector<Module> modulesToLink() const;
    [[nodiscard]] bool isLinked(const Module& module) const;

    PosixFiles& _files;
    CreatedFolders _folders;
    LoaderFolder _loaders;
    std::vector<Module> _modules;
};

}  // namespace vantorel
