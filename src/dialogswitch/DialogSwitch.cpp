#include "dialogswitch/DialogSwitch.h"

#include "dialogswitch/GimpSwitch.h"
#include "dialogswitch/GtkSwitch.h"
#include "dialogswitch/QtSwitch.h"
#include "hosts/posix/FileRemoval.h"

#include <algorithm>
#include <cstdlib>

namespace vantorel {
namespace {

constexpr std::string_view keys[] = {"qt", "gtk", "gimp"};
constexpr std::string_view names[] = {"Qt", "GTK", "GIMP"};

/// The script of Debian and its relatives that starts X sessions, and the one in the user's home
/// that it runs.
constexpr const char* sessionStart = "/etc/X11/Xsession";
constexpr const char* scriptInHome = "/.xsessionrc";

/// Removes what belongs to no switch when the last one is off.
void removeLeftovers(const HostFiles& files, const DialogSwitchPlaces& places)
{
    // Other programs use the folders that are listed now.
    const std::string list = places.createdFolders();
    const std::string listName = list.substr(places.records().size() + 1);
    if (files.contentsOfDirectory(places.records()) == std::vector{listName} && !removeFile(list)) {
        return;
    }
    for (std::string folder = places.records(); folder.size() > places.data.size();
         folder = folderOfPath(folder)) {
        if (!removeEmptyFolder(folder)) return;
    }
}

}  // namespace

std::string_view keyOf(DialogPrograms programs)
{
    return keys[static_cast<std::size_t>(programs)];
}

std::string_view nameOf(DialogPrograms programs)
{
    return names[static_cast<std::size_t>(programs)];
}

Result<DialogSwitchPlaces> userDialogSwitchPlaces(const HostFiles& files)
{
    const HostBaseDirectories folders = files.baseDirectories();
    if (!folders.dataHome || !folders.configHome) {
        return Message{phrase("you have no folder for your settings"), phrase("set HOME")};
    }
    if (!folders.programData) {
        return Message{phrase("the libraries of Vantorel are not beside this program"),
                       phrase("use the installed program")};
    }
    DialogSwitchPlaces places{.installed = folderOfPath(*folders.programData) + "/lib/vantorel",
                              .data = *folders.dataHome,
                              .config = *folders.configHome};
    const char* home = std::getenv("HOME");
    if (home != nullptr && *home == '/' && files.kindAtPath(sessionStart) == HostFileKind::file) {
        places.sessionScript = std::string(home) + scriptInHome;
    }
    return places;
}

std::unique_ptr<DialogSwitch> DialogSwitch::create(DialogPrograms programs, PosixFiles& files,
                                                   const DialogSwitchPlaces& places)
{
    switch (programs) {
        case DialogPrograms::qt:
            return std::make_unique<QtSwitch>(files, places);
        case DialogPrograms::gtk:
            return std::make_unique<GtkSwitch>(files, places);
        case DialogPrograms::gimp:
            break;
    }
    return std::make_unique<GimpSwitch>(files, places);
}

bool isOn(DialogSwitchState state)
{
    switch (state) {
        case DialogSwitchState::on:
        case DialogSwitchState::onAfterLogin:
        case DialogSwitchState::onAfterLoginForDesktop:
        case DialogSwitchState::onForOtherVersion:
            return true;
        case DialogSwitchState::notInstalled:
        case DialogSwitchState::off:
        case DialogSwitchState::waitsForFirstStart:
        case DialogSwitchState::offWithRest:
            break;
    }
    return false;
}

Phrase sentenceOf(DialogPrograms programs, DialogSwitchState state)
{
    const std::string_view name = nameOf(programs);
    switch (state) {
        case DialogSwitchState::notInstalled:
            return phrase("%1: not installed", name);
        case DialogSwitchState::off:
            return phrase("%1: off", name);
        case DialogSwitchState::waitsForFirstStart:
            return phrase("%1: off; start it once, then turn it on", name);
        case DialogSwitchState::on:
            return phrase("%1: on", name);
        case DialogSwitchState::onAfterLogin:
            return phrase("%1: on after your next login", name);
        case DialogSwitchState::onAfterLoginForDesktop:
            return phrase(
                "%1: on after your next login, because this desktop sets its modules "
                "itself",
                name);
        case DialogSwitchState::onForOtherVersion:
            return phrase("%1: on, but for another version; turn it on again", name);
        case DialogSwitchState::offWithRest:
            break;
    }
    return phrase("%1: off; to remove the rest, turn it off again after your next login", name);
}

Status turnDialogs(PosixFiles& files, const DialogSwitchPlaces& places,
                   const std::vector<DialogPrograms>& programs, bool on)
{
    const auto lock = files.lockFolder(places.data);
    if (!lock) {
        return Message{phrase("another program is changing the colour dialogs"),
                       phrase("try again")};
    }
    for (const DialogPrograms which : programs) {
        const auto dialogSwitch = DialogSwitch::create(which, files, places);
        const DialogSwitchState before = dialogSwitch->state();
        if (on && before == DialogSwitchState::notInstalled) {
            return Message{phrase("the page for %1 is not installed", nameOf(which)),
                           phrase("install the package for it")};
        }
        Status turned = on ? dialogSwitch->turnOn() : dialogSwitch->turnOff();
        if (!turned) {
            if (on && !isOn(before) && dialogSwitch->turnOff()) removeLeftovers(files, places);
            return turned;
        }
    }
    removeLeftovers(files, places);
    return {};
}

}  // namespace vantorel
