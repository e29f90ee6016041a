#pragma once

#include "hosts/posix/PosixFiles.h"
#include "result/Result.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

/// The programs that have a switch of their own.
enum class DialogPrograms { qt, gtk, gimp };
inline constexpr std::array allDialogPrograms{DialogPrograms::qt, DialogPrograms::gtk,
                                              DialogPrograms::gimp};

/// The word for these programs on the command line.
[[nodiscard]] std::string_view keyOf(DialogPrograms programs);
/// Their name for users. It is not translated.
[[nodiscard]] std::string_view nameOf(DialogPrograms programs);

enum class DialogSwitchState {
    /// The plug-ins for these programs are not installed, and nothing of them is left.
    notInstalled,
    off,
    /// Off, and the program must be started once before it can be on.
    waitsForFirstStart,
    /// The page is in programs that are started from now on.
    on,
    /// The page is in programs that are started after the user's next login.
    onAfterLogin,
    /// As `onAfterLogin`, because the desktop sets by itself what the setting of GTK would set.
    onAfterLoginForDesktop,
    /// It was switched on by another version, whose page may not appear.
    onForOtherVersion,
    /// It was switched off in this session, whose programs still ask for a plug-in. It is empty,
    /// and is removed when the switch is turned off once more after the next login.
    offWithRest,
};

/// The user's folders and files that switches change.
struct DialogSwitchPlaces {
    /// The folder lib/vantorel.
    std::string installed;
    /// The user's folder for the data of all programs.
    std::string data;
    std::string config;
    /// A script that the user's X sessions run, if they run one.
    std::optional<std::string> sessionScript = std::nullopt;

    /// The folder for what belongs to the switches.
    [[nodiscard]] std::string records() const { return data + "/Vantorel/Dialogs"; }
    /// The file that lists the folders made elsewhere.
    [[nodiscard]] std::string createdFolders() const { return records() + "/folders"; }
};

/// Returns the places of the user who runs the program; an error if the user has no home folder.
[[nodiscard]] Result<DialogSwitchPlaces> userDialogSwitchPlaces(const HostFiles& files);

/// Puts the page into the colour dialogs of the user's programs, and takes it out again. Each
/// change can be repeated. Entries of others in the same files stay, and turning off leaves no
/// trace.
class DialogSwitch {
public:
    /// `files` must outlive this object.
    [[nodiscard]] static std::unique_ptr<DialogSwitch> create(DialogPrograms programs,
                                                              PosixFiles& files,
                                                              const DialogSwitchPlaces& places);
    DialogSwitch() = default;
    DialogSwitch(const DialogSwitch&) = delete;
    DialogSwitch& operator=(const DialogSwitch&) = delete;
    virtual ~DialogSwitch() = default;

    [[nodiscard]] virtual DialogSwitchState state() const = 0;
    [[nodiscard]] virtual Status turnOn() = 0;
    [[nodiscard]] virtual Status turnOff() = 0;
};

[[nodiscard]] bool isOn(DialogSwitchState state);
/// Whether the programs can be turned on.
[[nodiscard]] constexpr bool canTurnOn(DialogSwitchState state)
{
    return state != DialogSwitchState::notInstalled &&
           state != DialogSwitchState::waitsForFirstStart;
}

/// Returns a sentence without its full stop, such as "Qt: on".
[[nodiscard]] Phrase sentenceOf(DialogPrograms programs, DialogSwitchState state);

/// Turns several switches, and keeps other programs of ours from doing so at the same time. Returns
/// the first error; the switch that failed is then off again, unless it was on before.
[[nodiscard]] Status turnDialogs(PosixFiles& files, const DialogSwitchPlaces& places,
                                 const std::vector<DialogPrograms>& programs, bool on);

}  // namespace vantorel
