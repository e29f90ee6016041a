#include "settings/SnippetStore.h"

#include "settings/KnownSnippets.h"
#include "settings/SettingsFile.h"
#include "snippets/SnippetFile.h"

#include <utility>

namespace vantorel {
namespace {

/// The number of steps that can be undone.
constexpr std::size_t mostSteps = 100;

Message cannotBeWritten(const std::string& path)
{
    return {phrase("\"%1\" could not be written", path),
            phrase("check that you can write to its folder and that the disk has room")};
}

}  // namespace

SnippetStore::SnippetStore(HostFiles& files) : _files(files), _path(KnownSnippets::ownFile(files))
{
    refresh();
}

bool SnippetStore::refresh()
{
    const auto versionOf = [this](const std::optional<std::string>& path) {
        return path ? _files.versionAtPath(*path) : 0;
    };
    const std::array versions{versionOf(hexColorPickerDefaultsFileName(_files)), versionOf(_path),
                              versionOf(KnownSnippets::shippedFile(_files))};
    if (_versions == versions) return false;
    _versions = versions;
    read();
    return true;
}

void SnippetStore::read()
{
    QTXHexSettings settings;
    settings.setCodeSnippets(QTXCodeSnippet::buildDefaultCodeSnippets());
    readDefaults(_files, settings);
    _takenNames.clear();
    for (const QTXCodeSnippet& snippet : settings.codeSnippets())
        _takenNames.push_back(snippet.nameSnippet().value_or(u""));

    _shipped.clear();
    if (const auto path = KnownSnippets::shippedFile(_files)) {
        if (const auto bytes = _files.contentsAtPath(*path))
            _shipped = readSnippetFile(*bytes, *path).snippets;
    }

    SnippetFileContents file;
    _problems.clear();
    _isUnreadable = false;
    if (_path) {
        if (const auto bytes = _files.contentsAtPath(*_path)) {
            SnippetFileReading reading = readSnippetFile(*bytes, *_path);
            file = {std::move(reading.snippets), std::move(reading.removed)};
            _problems = std::move(reading.problems);
        } else if (_files.kindAtPath(*_path) != HostFileKind::none) {
            _isUnreadable = true;
            _problems.push_back({phrase("\"%1\" cannot be read", *_path),
                                 phrase("check that it is a file that you can read")});
        }
    }
    _snippets = snippetsOfFile(file, _shipped);
}

Status SnippetStore::write(const SnippetList& base, const SnippetList& edited)
{
    if (!_path) {
        return Message{phrase("there is no folder for your data"),
                       phrase("set HOME or XDG_DATA_HOME to a folder that you can write to")};
    }
    const std::string folder = _path->substr(0, _path->rfind('/'));
    if (_files.kindAtPath(folder) == HostFileKind::none) _files.createDirectory(folder);
    const auto lock = _files.lockFolder(folder);
    if (!lock) {
        return Message{phrase("another program is still changing files in \"%1\"", folder),
                       phrase("try again when it has finished")};
    }
    _versions.reset();
    refresh();
    if (_isUnreadable) return _problems.front();
    if (!_problems.empty()) {
        const auto bytes = _files.contentsAtPath(*_path);
        if (!bytes || !_files.writeAtomically(*_path + "~", *bytes))
            return cannotBeWritten(*_path + "~");
    }
    const SnippetFileContents file =
        snippetFileFor(mergedSnippets(base, edited, _snippets), _shipped);
    const bool isWritten = _files.writeAtomically(*_path, snippetFileText(file.own, file.removed));
    _versions.reset();
    refresh();
    if (!isWritten) return cannotBeWritten(*_path);
    return {};
}

Status SnippetStore::change(const SnippetList& edited)
{
    const SnippetList before = _snippets;
    Status status = write(before, edited);
    if (!status) return status;
    _steps.resize(_done);
    _steps.push_back({before, edited});
    if (_steps.size() > mostSteps) _steps.erase(_steps.begin());
    _done = _steps.size();
    return status;
}

Status SnippetStore::undo()
{
    if (!canUndo()) return {};
    const Step& step = _steps[_done - 1];
    Status status = write(step.after, step.before);
    if (status) --_done;
    return status;
}

Status SnippetStore::redo()
{
    if (!canRedo()) return {};
    const Step& step = _steps[_done];
    Status status = write(step.before, step.after);
    if (status) ++_done;
    return status;
}

}  // namespace vantorel
