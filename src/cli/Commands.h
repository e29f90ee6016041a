#pragma once

#include "cli/CommandLine.h"
#include "cli/Output.h"
#include "cli/ReadOnlyFiles.h"
#include "cli/UserLists.h"
#include "hosts/posix/PosixFiles.h"
#include "settings/QTXHexSettings.h"

#include <memory>
#include <optional>

namespace vantorel {

/// What the commands work with. Settings and lists are read when they are asked for first.
class Session {
public:
    /// What cannot be written is told with the system's reason.
    Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    [[nodiscard]] Output& output() { return _output; }
    /// The user's files, which may be written to.
    [[nodiscard]] PosixFiles& files() { return _files; }
    /// The user's settings, or the usual ones where there are none.
    [[nodiscard]] const QTXHexSettings& settings();
    [[nodiscard]] UserLists& lists() { return _lists; }
    /// The list of `--list`, which must be there, else that of the settings, or null.
    [[nodiscard]] std::shared_ptr<HostColorList> namingList(const CommandLine& commandLine);

private:
    PosixFiles _files;
    ReadOnlyFiles _readOnlyFiles{_files};
    UserLists _lists{_readOnlyFiles};
    std::optional<QTXHexSettings> _settings;
    Output _output;
};

// Each carries out a command and returns the exit status. What ends a command early is a `Failure`.

int showColors(Session& session, const CommandLine& commandLine);
int nameColors(Session& session, const CommandLine& commandLine);
int tellSnippets(Session& session, const CommandLine& commandLine);
int tellContrast(Session& session, const CommandLine& commandLine);

int tellLists(Session& session, const CommandLine& commandLine);
int tellList(Session& session, const CommandLine& commandLine);
int importLists(Session& session, const CommandLine& commandLine);
int exportList(Session& session, const CommandLine& commandLine);
int publishList(Session& session, const CommandLine& commandLine);

int drawWheel(Session& session, const CommandLine& commandLine);
int drawPalette(Session& session, const CommandLine& commandLine);

// These become the panel; they return only by a `Failure`.
[[noreturn]] int pickColor(Session& session, const CommandLine& commandLine);
[[noreturn]] int chooseColor(Session& session, const CommandLine& commandLine);
[[noreturn]] int startPanel(Session& session, const CommandLine& commandLine);

}  // namespace vantorel
