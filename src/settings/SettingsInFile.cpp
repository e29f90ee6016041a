#include "settings/SettingsInFile.h"

#include "settings/SettingsFile.h"

namespace vantorel {

const QTXHexSettings& SettingsInFile::current()
{
    if (!_path) _path = hexColorPickerDefaultsFileName(_files);
    const std::uint64_t version = _path ? _files.versionAtPath(*_path) : 0;
    if (version == _version) return _settings;
    _version = version;
    // Settings that are missing in the file have their defaults, not their earlier values.
    _settings = {};
    readDefaults(_files, _settings);
    return _settings;
}

}  // namespace vantorel
