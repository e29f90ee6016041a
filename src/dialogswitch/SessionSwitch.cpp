#include "dialogswitch/SessionSwitch.h"

#include "dialogswitch/SharedTexts.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr std::string_view scriptTitle = "vantorel dialogs";
constexpr std::string_view filePrefix = "60-vantorel-";

std::string nothing(std::string_view)
{
    return {};
}

std::string withoutOurLines(std::string_view script)
{
    return withoutMarkedLines(script, scriptTitle);
}

}  // namespace

SessionSwitch::SessionSwitch(PosixFiles& files, const DialogSwitchPlaces& places,
                             DialogPrograms programs, std::vector<std::string> loaders)
    : _files(files),
      _records(places.records()),
      _folders(files, places.createdFolders()),
      _loaders(files, _records + '/' + std::string(keyOf(programs)), places.installed,
               std::move(loaders)),
      _environmentFolder(places.config + "/environment.d"),
      _environmentFile(_environmentFolder + '/' + std::string(filePrefix) +
                       std::string(keyOf(programs)) + ".conf"),
      _sessionScript(places.sessionScript)
{
}

SharedFile SessionSwitch::sharedFile(const std::string& path, const std::string& name)
{
    return {_files, _folders, path, _loaders.root() + '/' + name};
}

SharedFile SessionSwitch::sessionScript()
{
    // Its lines are for all switches of this kind.
    return {_files, _folders, *_sessionScript, _records + "/session-script"};
}

bool SessionSwitch::hasEnvironmentFiles() const
{
    return std::ranges::any_of(
        _files.contentsOfDirectory(_environmentFolder),
        [](const std::string& name) { return name.starts_with(filePrefix); });
}

DialogSwitchState SessionSwitch::state() const
{
    if (!_loaders.isLinked()) {
        if (_loaders.hasCopies()) return DialogSwitchState::offWithRest;
        return _loaders.installedLoaders().empty() ? DialogSwitchState::notInstalled
                                                   : DialogSwitchState::off;
    }
    if (!_loaders.isCurrent()) return DialogSwitchState::onForOtherVersion;
    const bool reachesSession = std::ranges::all_of(_variables, &ListVariable::isSet);
    return reachesSession ? DialogSwitchState::on : DialogSwitchState::onAfterLogin;
}

Status SessionSwitch::turnOn()
{
    for (const std::string& path : {_loaders.root(), _environmentFolder}) {
        if (Status fit = checkForEnvironment(path); !fit) return fit;
    }
    if (Status installed = _loaders.install(); !installed) return installed;
    const auto ourFile = [this](std::string_view) { return environmentFile(_variables); };
    if (Status written = environment().change(ourFile, nothing); !written) return written;
    if (!_sessionScript) return {};
    const auto withOurLines = [this](std::string_view script) {
        return withMarkedLines(
            script, scriptTitle,
            linesThatRead(_environmentFolder, std::string(filePrefix) + "*.conf"));
    };
    return sessionScript().change(withOurLines, withoutOurLines);
}

Status SessionSwitch::turnOff()
{
    if (Status removed = environment().revert(nothing); !removed) return removed;
    if (_sessionScript && !hasEnvironmentFiles()) {
        if (Status removed = sessionScript().revert(withoutOurLines); !removed) return removed;
    }
    return _loaders.remove(std::ranges::any_of(_variables, &ListVariable::isSet));
}

}  // namespace vantorel
