// Changes lists and settings on the real disk, as a panel does, for tests that make calls fail.
//
//     list-changes FOLDER make NAME SHADE | change NAME SHADE | rename NAME NEW | remove NAME
//     list-changes FOLDER settings RINGS
//     list-changes FOLDER keep-on SHADE    (all of these in turn, until it is killed)
//
// FOLDER is the user's data folder. A list has `entryCount` colours of one shade: a file with
// anything else has been mixed from two or truncated. Exits with 1 if a step failed.

#include "hosts/posix/FileRemoval.h"
#include "hosts/posix/PosixFiles.h"
#include "paletteedit/EditMessages.h"
#include "paletteedit/PaletteEditor.h"
#include "result/Message.h"
#include "settings/SettingsFile.h"
#include "text/Unicode.h"

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <vector>

namespace vantorel {
namespace {

/// Enough for several pages of the disk.
constexpr int entryCount = 1000;

class Changes {
public:
    explicit Changes(const std::string& folder) : _files(folder)
    {
        _files.setFailureHandler(
            [](auto, const Message& message) { std::cerr << english(message) << '\n'; });
        _editor.emplace(_files, _store, removeFile);
    }

    bool make(const std::string& name, int shade)
    {
        return report(_editor->add(utf16FromUtf8(name), entriesOf(shade)));
    }
    bool change(const std::string& name, int shade)
    {
        if (idOf(name) != 0 && _editor->entriesOf(idOf(name)) == entriesOf(shade)) return true;
        return report(_editor->setEntries(idOf(name), entriesOf(shade)));
    }
    bool rename(const std::string& name, const std::string& newName)
    {
        return report(_editor->rename(idOf(name), utf16FromUtf8(newName)));
    }
    bool remove(const std::string& name) { return report(_editor->remove(idOf(name))); }
    void writeSettings(int rings)
    {
        QTXHexSettings settings;
        SettingsMerge merge;
        // As the picker does it.
        const bool isTakenIn = initializeDefaults(_files, settings, merge);
        if (settings.codeSnippets().empty()) {
            settings.setCodeSnippets(QTXCodeSnippet::buildDefaultCodeSnippets());
            settings.setCodeSnippetName(settings.codeSnippets().front().nameSnippet());
        }
        settings.setNColorCubeRings(rings);
        if (isTakenIn || keepDefaultsFile(_files)) writeDefaults(_files, settings, merge);
    }
    void refresh() { static_cast<void>(_editor->refresh()); }

private:
    static PaletteEntries entriesOf(int shade)
    {
        PaletteEntries entries;
        const double channel = shade / 255.0;
        for (int i = 0; i < entryCount; ++i) {
            entries.emplace_back(utf16FromUtf8("colour " + std::to_string(i)),
                                 HostColor::colorWithCalibratedRed(channel, channel, channel, 1));
        }
        return entries;
    }
    PaletteId idOf(const std::string& name) const
    {
        for (const EditablePalette& palette : _editor->palettes()) {
            if (palette.name == utf16FromUtf8(name)) return palette.id;
        }
        return 0;
    }
    static bool report(const EditOutcome& outcome)
    {
        // A file that was kept is good news. Everything else goes to standard error, where the
        // tests look for failures.
        const std::string_view goodNews = editmessages::keptOriginal({}).what.text();
        for (const Message& message : outcome.messages)
            (message.what.text() == goodNews ? std::cout : std::cerr) << english(message) << '\n';
        if (!outcome.done) std::cerr << "not done\n";
        return outcome.done;
    }

    PosixFiles _files;
    PaletteFileStore _store{_files};
    std::optional<PaletteEditor> _editor;
};

[[noreturn]] void keepOn(Changes& changes, int shade)
{
    changes.make("Kept", shade);
    while (true) {
        changes.change("Kept", shade);
        changes.writeSettings(shade % 100 + 4);
        changes.make("Brief", shade);
        changes.rename("Brief", "Renamed");
        changes.remove("Renamed");
        changes.refresh();
        shade = (shade + 7) % 256;
    }
}

int run(const std::vector<std::string>& arguments)
{
    if (arguments.size() < 3) return 2;
    Changes changes(arguments[0]);
    const std::string& command = arguments[1];
    const std::string& name = arguments[2];
    const int number = std::atoi(arguments.back().c_str());
    if (command == "settings") return changes.writeSettings(number), 0;
    if (command == "keep-on") keepOn(changes, number);
    const bool done = command == "make"     ? changes.make(name, number)
                      : command == "change" ? changes.change(name, number)
                      : command == "rename" ? changes.rename(name, arguments.back())
                                            : changes.remove(name);
    return done ? 0 : 1;
}

}  // namespace
}  // namespace vantorel

int main(int argc, char** argv)
{
    return vantorel::run(std::vector<std::string>(argv + 1, argv + argc));
}
