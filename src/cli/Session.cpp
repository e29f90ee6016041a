#include "cli/Commands.h"
#include "cli/Failure.h"

#include "result/HarmlessLine.h"
#include "settings/SettingsFile.h"

namespace vantorel {

Session::Session()
{
    _files.setComplaint([this](const auto& path, auto trouble, const auto& reason) {
        // What is missing of an answer is told by the command that wanted it.
        if (trouble == PosixFiles::Trouble::reading) return;
        _output.flush();
        complain(quotedText(path) + " cannot be written", reason);
    });
}

const QTXHexSettings& Session::settings()
{
    if (!_settings) {
        _settings.emplace();
        if (hexColorPickerDefaultsFileName(_readOnlyFiles)) {
            readDefaults(_readOnlyFiles, *_settings);
        } else {
            // As from an empty file: without a home there are snippets, too.
            _settings->loadPropertyListRepresentation(PropertyList(PropertyList::Dictionary{}));
        }
    }
    return *_settings;
}

std::shared_ptr<HostColorList> Session::namingList(const CommandLine& commandLine)
{
    if (commandLine.listName) return _lists.requiredList(*commandLine.listName);
    const auto& name = settings().hexColorList();
    return name ? _lists.listNamed(*name) : nullptr;
}

}  // namespace vantorel
