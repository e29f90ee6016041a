#include "cli/Commands.h"
#include "cli/PanelProgram.h"
#include "commandline/Programs.h"
#include "lsp/ServerLoop.h"
#include "settings/SettingsFile.h"

#include <algorithm>

namespace vantorel {
namespace {

/// The user of the command line as the server sees him: settings are read again each time, because
/// the server runs as long as the editor.
class EditorUser final : public ServerUser {
public:
    explicit EditorUser(HostFiles& files) : _files(files), _lists(files) {}

    [[nodiscard]] const QTXHexSettings& settings() override
    {
        _settings = {};
        if (hexColorPickerDefaultsFileName(_files)) {
            readDefaults(_files, _settings);
        } else {
            // Like an empty file, so that there are snippets even without a home directory.
            _settings.loadPropertyListRepresentation(PropertyList(PropertyList::Dictionary{}));
        }
        return _settings;
    }

    [[nodiscard]] std::vector<QTXCodeSnippet> knownSnippets() override
    {
        return KnownSnippets(_files, settings().codeSnippets()).all();
    }

    [[nodiscard]] std::vector<QTXCodeSnippet> ownSnippets() override
    {
        const KnownSnippets known(_files, settings().codeSnippets());
        return {known.users().begin(), known.users().end()};
    }

    [[nodiscard]] std::vector<std::shared_ptr<HostColorList>> lists() override
    {
        const QTXHexSettings& current = settings();
        std::vector<std::u16string> names;
        if (current.hexColorList()) names.push_back(*current.hexColorList());
        for (const std::u16string& name : current.activeColorLists()) {
            if (std::ranges::find(names, name) == names.end()) names.push_back(name);
        }
        std::vector<std::shared_ptr<HostColorList>> lists;
        for (const std::u16string& name : names) {
            if (auto list = _lists.listNamed(name)) lists.push_back(std::move(list));
        }
        if (lists.empty()) lists.push_back(_lists.listNamed(std::u16string(cssColor4ListName)));
        return lists;
    }

    [[nodiscard]] std::optional<Panel> startPanel(const std::string& hexColor) override
    {
        const auto panel = startPanelProgram({"--choose", "--color", hexColor});
        if (!panel) return std::nullopt;
        return Panel{panel->process, panel->output};
    }

private:
    HostFiles& _files;
    UserLists _lists;
    QTXHexSettings _settings;
};

}  // namespace

int serveEditor(Session& session, const CommandLine&)
{
    ReadOnlyFiles files(session.files());
    EditorUser user(files);
    return serveOnStandardStreams(user, std::string(vantorelProgram.version));
}

}  // namespace vantorel
