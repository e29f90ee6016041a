#include "cli/Commands.h"
#include "cli/Failure.h"

#include "result/Message.h"
#include "settings/SettingsFile.h"

namespace vantorel {

Session::Session()
{
    _files.setFailureHandler([this](auto access, const Message& message) {
        // What is missing of an answer is reported by the command that wanted it.
        if (access == PosixFiles::Access::reading) return;
        _output.flush();
        complain(message);
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
