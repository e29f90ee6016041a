#include "settings/KnownSnippets.h"

#include "snippets/SnippetFile.h"

namespace vantorel {
namespace {

SnippetFileReading readFile(const HostFiles& files, const std::optional<std::string>& path)
{
    const auto bytes = path ? files.contentsAtPath(*path) : std::nullopt;
    return bytes ? readSnippetFile(*bytes, *path) : SnippetFileReading{};
}

}  // namespace

std::optional<std::string> KnownSnippets::ownFile(const HostFiles& files)
{
    auto path = files.applicationSupportDirectory();
    if (path) *path += "/Vantorel/Snippets.plist";
    return path;
}

std::optional<std::string> KnownSnippets::shippedFile(const HostFiles& files)
{
    auto path = files.baseDirectories().programData;
    if (path) *path += "/vantorel/Snippets.plist";
    return path;
}

KnownSnippets::KnownSnippets(const HostFiles& files, std::vector<QTXCodeSnippet> ofSettings)
    : _files(files), _snippets(std::move(ofSettings)), _countOfSettings(_snippets.size())
{
    for (const QTXCodeSnippet& snippet : _snippets)
        _names.insert(snippet.nameSnippet().value_or(u""));
    const auto path = ownFile(files);
    SnippetFileReading own = readFile(files, path);
    _problems = std::move(own.problems);
    _removed.insert(own.removed.begin(), own.removed.end());
    for (QTXCodeSnippet& snippet : own.snippets) {
        if (_names.insert(*snippet.nameSnippet()).second) {
            _snippets.push_back(std::move(snippet));
        } else {
            _problems.push_back({phrase("\"%1\": there is already a snippet \"%2\" in the settings",
                                        *path, *snippet.nameSnippet()),
                                 phrase("give it another name")});
        }
    }
    _countOfOwn = _snippets.size() - _countOfSettings;
}

const std::vector<QTXCodeSnippet>& KnownSnippets::all()
{
    if (_hasShipped) return _snippets;
    _hasShipped = true;
    for (QTXCodeSnippet& snippet : readFile(_files, shippedFile(_files)).snippets) {
        if (_removed.contains(*snippet.nameSnippet())) continue;
        if (_names.insert(*snippet.nameSnippet()).second) _snippets.push_back(std::move(snippet));
    }
    return _snippets;
}

KnownSnippets::Source KnownSnippets::sourceOf(std::size_t snippet) const
{
    if (snippet < _countOfSettings) return Source::settings;
    return snippet < _countOfSettings + _countOfOwn ? Source::own : Source::shipped;
}

}  // namespace vantorel
