#include "dialogswitch/GimpSwitch.h"

#include "dialogswitch/Folders.h"
#include "hosts/posix/FileRemoval.h"
#include "hosts/posix/SymbolicLink.h"

#include <algorithm>
#include <iterator>

namespace vantorel {
namespace {

constexpr const char* loaderFor2 = "gimp/2.10/libvantorel.so";
constexpr const char* loaderFor3 = "gimp/3.0/libvantorel.so";

}  // namespace

GimpSwitch::GimpSwitch(PosixFiles& files, const DialogSwitchPlaces& places)
    : _files(files),
      _folders(files, places.createdFolders()),
      _loaders(files, places.records() + '/' + std::string(keyOf(DialogPrograms::gimp)),
               places.installed, {loaderFor2, loaderFor3}),
      _modules{{places.config + "/GIMP/2.10", loaderFor2},
               {places.config + "/GIMP/3.0", loaderFor3}}
{
}

std::vector<GimpSwitch::Module> GimpSwitch::modulesToLink() const
{
    const auto installed = _loaders.installedLoaders();
    std::vector<Module> modules;
    std::ranges::copy_if(_modules, std::back_inserter(modules), [&](const Module& module) {
        return _files.kindAtPath(module.folder) == HostFileKind::folder &&
               std::ranges::count(installed, module.loader) > 0;
    });
    return modules;
}

bool GimpSwitch::isLinked(const Module& module) const
{
    return targetOfLink(module.link()) == _loaders.copyOf(module.loader);
}

DialogSwitchState GimpSwitch::state() const
{
    const auto installed = _loaders.installedLoaders();
    if (!_loaders.isLinked()) {
        if (installed.empty()) return DialogSwitchState::notInstalled;
        return modulesToLink().empty() ? DialogSwitchState::waitsForFirstStart
                                       : DialogSwitchState::off;
    }
    // A version of GIMP may be new since the switch was turned on.
    const bool isWhole = std::ranges::all_of(
        modulesToLink(), [this](const Module& module) { return isLinked(module); });
    return isWhole && _loaders.isCurrent() ? DialogSwitchState::on
                                           : DialogSwitchState::onForOtherVersion;
}

Status GimpSwitch::turnOn()
{
    const std::vector<Module> possible = modulesToLink();
    if (possible.empty()) {
        return Message{phrase("GIMP has no folder for your modules"),
                       phrase("start GIMP once to create it")};
    }
    if (Status copied = _loaders.install(); !copied) return copied;
    for (const Module& module : possible) {
        if (Status made = _folders.create(module.modules()); !made) return made;
        if (writeLink(module.link(), _loaders.copyOf(module.loader)) != 0) {
            return writeFailure(module.link());
        }
    }
    return {};
}

Status GimpSwitch::turnOff()
{
    for (const Module& module : _modules) {
        if (isLinked(module) && !removeFile(module.link())) return writeFailure(module.link());
    }
    if (Status removed = _folders.removeEmpty(); !removed) return removed;
    return _loaders.remove(false);
}

}  // namespace vantorel
