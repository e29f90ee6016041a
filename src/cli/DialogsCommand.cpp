#include "cli/Commands.h"
#include "cli/Failure.h"
#include "commandline/Translations.h"
#include "dialogswitch/DialogSwitch.h"

#include <algorithm>

namespace vantorel {
namespace {

using Programs = std::vector<DialogPrograms>;

/// The programs that are named, or all.
Programs programsOf(const CommandLine& commandLine)
{
    Programs programs;
    for (const DialogPrograms which : allDialogPrograms) {
        if (commandLine.operands.empty() ||
            std::ranges::count(commandLine.operands, keyOf(which)) > 0) {
            programs.push_back(which);
        }
    }
    return programs;
}

}  // namespace

int switchDialogs(Session& session, const CommandLine& commandLine)
{
    const Result<DialogSwitchPlaces> places = userDialogSwitchPlaces(session.files());
    if (!places) throw Failure{places.error()};
    const auto state = [&](DialogPrograms which) {
        return DialogSwitch::create(which, session.files(), *places)->state();
    };
    const Programs programs = programsOf(commandLine);
    Programs turned = programs;
    if (commandLine.on && commandLine.operands.empty()) {
        std::erase_if(turned, [&](DialogPrograms which) { return !canTurnOn(state(which)); });
        if (turned.empty()) {
            throw Failure{{phrase("no page for the dialogs of other programs is installed"),
                           phrase("install the package for the programs")}};
        }
    }
    Status done;
    if (commandLine.on || commandLine.off) {
        done = turnDialogs(session.files(), *places, turned, commandLine.on);
    }
    for (const DialogPrograms which : programs)
        session.output().write(inUsersWords(sentenceOf(which, state(which))) + '\n');
    if (!done) throw Failure{done.error()};
    return 0;
}

}  // namespace vantorel
