#include "panel/widgets/PanelSnippets.h"

#include "colortext/ColorInCode.h"
#include "settings/SettingsFile.h"

#include <utility>

namespace vantorel {
namespace {

PanelSnippets* inUse = nullptr;

}  // namespace

PanelSnippets::PanelSnippets(const HostFiles& files) : _files(files)
{
    inUse = this;
}

PanelSnippets::~PanelSnippets()
{
    if (inUse == this) inUse = nullptr;
}

const SnippetReaders& PanelSnippets::readersInUse()
{
    return inUse != nullptr ? inUse->readers() : builtInSnippetReaders();
}

void PanelSnippets::refresh()
{
    const auto versionOf = [this](const std::optional<std::string>& path) {
        return path ? _files.versionAtPath(*path) : 0;
    };
    const std::array versions{versionOf(hexColorPickerDefaultsFileName(_files)),
                              versionOf(KnownSnippets::ownFile(_files)),
                              versionOf(KnownSnippets::shippedFile(_files))};
    if (_versions == versions) return;
    _versions = versions;
    QTXHexSettings settings;
    settings.setCodeSnippets(QTXCodeSnippet::buildDefaultCodeSnippets());
    readDefaults(_files, settings);
    _countOfSettings = settings.codeSnippets().size();
    KnownSnippets known(_files, settings.codeSnippets());
    _readers.emplace(known.all());
    _problems = known.problems();
}

std::span<const QTXCodeSnippet> PanelSnippets::others()
{
    return std::span(readers().snippets()).subspan(_countOfSettings);
}

const SnippetReaders& PanelSnippets::readers()
{
    refresh();
    return *_readers;
}

std::vector<Message> PanelSnippets::takeProblems()
{
    refresh();
    return std::exchange(_problems, {});
}

}  // namespace vantorel
