#pragma once

#include "host/HostFiles.h"
#include "settings/QTXHexSettings.h"

#include <cstdint>
#include <optional>
#include <string>

namespace vantorel {

/// The settings of the settings file, for those who only follow what the user chooses on the page.
/// The file is read again when it has changed. As long as it has not, the settings cost a look at
/// its version.
class SettingsInFile {
public:
    /// `files` must outlive the object. Nothing is read or written before the first call of
    /// `current`.
    explicit SettingsInFile(const HostFiles& files) : _files(files) {}

    /// Returns the settings, or the defaults if there is no file that can be read. The reference is
    /// valid until the next call.
    [[nodiscard]] const QTXHexSettings& current();

private:
    const HostFiles& _files;
    std::optional<std::string> _path;
    std::optional<std::uint64_t> _version;
    QTXHexSettings _settings;
};

}  // namespace vantorel
