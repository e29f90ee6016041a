#pragma once

#include "cli/CommandLine.h"
#include "cli/Output.h"
#include "cli/ReadOnlyFiles.h"
#include "cli/UserLists.h"
#include "colortext/ColorTextReader.h"
#include "hosts/posix/PosixFiles.h"
#include "settings/KnownSnippets.h"
#include "settings/QTXHexSettings.h"

#include <memory>
#include <optional>

namespace vantorel {

/// The user's files, settings and lists, and the output of a command. Settings and lists are read
/// when they are first needed.
class Session {
public:
    /// A file that cannot be written is reported on standard error with the system's reason.
    Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    [[nodiscard]] Output& output() { return _output; }
    /// From now on, files that cannot be read are reported, too. The other commands report a file
    /// when they need it.
    void reportUnreadableFiles() { _reportsUnreadable = true; }
    [[nodiscard]] bool hasReportedUnreadable() const { return _hasReportedUnreadable; }
    /// The user's files, with write access.
    [[nodiscard]] PosixFiles& files() { return _files; }
    /// Returns the user's settings, or the default ones if there are none.
    [[nodiscard]] const QTXHexSettings& settings();
    /// Returns all snippets. What is wrong in the user's file is reported when they are first read.
    [[nodiscard]] KnownSnippets& snippets();
    [[nodiscard]] const SnippetReaders& snippetReaders();
    [[nodiscard]] UserLists& lists() { return _lists; }
    /// Returns the list that `--list` names, which must exist. Without that option, returns the
    /// list in the settings, or null if there is none.
    [[nodiscard]] std::shared_ptr<HostColorList> namingList(const CommandLine& commandLine);
    /// The same, but throws a `Failure` if there is none.
    [[nodiscard]] std::shared_ptr<HostColorList> requiredNamingList(const CommandLine& commandLine);

private:
    PosixFiles _files;
    ReadOnlyFiles _readOnlyFiles{_files};
    UserLists _lists{_readOnlyFiles};
    std::optional<QTXHexSettings> _settings;
    std::optional<KnownSnippets> _snippets;
    std::optional<SnippetReaders> _snippetReaders;
    Output _output;
    bool _reportsUnreadable = false;
    bool _hasReportedUnreadable = false;
};

/// Returns a reader of colours, which may be names of the naming list and lines of snippets. It may
/// use both arguments later.
[[nodiscard]] ColorTextReader colorTextReader(Session& session, const CommandLine& commandLine);

// Each carries out a command and returns the exit status, or throws a `Failure`.

int showColors(Session& session, const CommandLine& commandLine);
int convertColors(Session& session, const CommandLine& commandLine);
int mixColors(Session& session, const CommandLine& commandLine);
int printGradient(Session& session, const CommandLine& commandLine);
int lightenColors(Session& session, const CommandLine& commandLine);
int darkenColors(Session& session, const CommandLine& commandLine);
int saturateColors(Session& session, const CommandLine& commandLine);
int desaturateColors(Session& session, const CommandLine& commandLine);
int rotateColors(Session& session, const CommandLine& commandLine);
int complementColors(Session& session, const CommandLine& commandLine);
int printGray(Session& session, const CommandLine& commandLine);
int printScales(Session& session, const CommandLine& commandLine);
int printDistinctColors(Session& session, const CommandLine& commandLine);
int sortColors(Session& session, const CommandLine& commandLine);
int printNearest(Session& session, const CommandLine& commandLine);
int simulateVision(Session& session, const CommandLine& commandLine);
int nameColors(Session& session, const CommandLine& commandLine);
int printSnippets(Session& session, const CommandLine& commandLine);
int printContrast(Session& session, const CommandLine& commandLine);
int checkStyleSheets(Session& session, const CommandLine& commandLine);

int printLists(Session& session, const CommandLine& commandLine);
int printList(Session& session, const CommandLine& commandLine);
int importLists(Session& session, const CommandLine& commandLine);
int exportList(Session& session, const CommandLine& commandLine);
int publishList(Session& session, const CommandLine& commandLine);

int serveEditor(Session& session, const CommandLine& commandLine);

int switchDialogs(Session& session, const CommandLine& commandLine);

int drawWheel(Session& session, const CommandLine& commandLine);
int drawPalette(Session& session, const CommandLine& commandLine);

// These operate the running panel, or replace the process by the panel's program; they throw a
// `Failure` if that fails.
int pickColor(Session& session, const CommandLine& commandLine);
[[noreturn]] int chooseColor(Session& session, const CommandLine& commandLine);
int startPanel(Session& session, const CommandLine& commandLine);

}  // namespace vantorel
