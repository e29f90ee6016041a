#include "cli/Commands.h"
#include "cli/Failure.h"

#include "result/Message.h"
#include "settings/SettingsFile.h"

namespace vantorel {

Session::Session()
{
    _files.setFailureHandler([this](auto access, const Message& message) {
        if (access == PosixFiles::Access::reading) {
            if (!_reportsUnreadable) return;
            _hasReportedUnreadable = true;
        }
        _output.flush();
        reportError(message);
    });
}

const QTXHexSettings& Session::settings()
{
    if (!_settings) {
        _settings.emplace();
        if (hexColorPickerDefaultsFileName(_readOnlyFiles)) {
            readDefaults(_readOnlyFiles, *_settings);
        } else {
            // Like an empty file, so that there are snippets even without a home directory.
            _settings->loadPropertyListRepresentation(PropertyList(PropertyList::Dictionary{}));
        }
    }
    return *_settings;
}

KnownSnippets& Session::snippets()
{
    if (!_snippets) {
        _snippets.emplace(_readOnlyFiles, settings().codeSnippets());
        if (!_snippets->problems().empty()) _output.flush();
        for (const Message& problem : _snippets->problems())
            reportError(problem);
    }
    return *_snippets;
}

const SnippetReaders& Session::snippetReaders()
{
    if (!_snippetReaders) _snippetReaders.emplace(snippets().all());
    return *_snippetReaders;
}

std::shared_ptr<HostColorList> Session::namingList(const CommandLine& commandLine)
{
    if (commandLine.listName) return _lists.requiredList(*commandLine.listName);
    const auto& name = settings().hexColorList();
    return name ? _lists.listNamed(*name) : nullptr;
}

std::shared_ptr<HostColorList> Session::requiredNamingList(const CommandLine& commandLine)
{
    auto list = namingList(commandLine);
    if (!list) {
        throw Failure{
            {phrase("there is no colour list with names"),
             phrase("choose one with \"--list NAME\"; run \"vantorel lists\" to list them")}};
    }
    return list;
}

ColorTextReader colorTextReader(Session& session, const CommandLine& commandLine)
{
    auto theme = CSSTheme::unknown;
    if (commandLine.theme) theme = commandLine.theme == "dark" ? CSSTheme::dark : CSSTheme::light;
    return ColorTextReader([&] { return session.namingList(commandLine); }, theme,
                           [&] { return &session.snippetReaders(); });
}

}  // namespace vantorel
