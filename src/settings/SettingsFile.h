#pragma once

#include "host/HostFiles.h"
#include "settings/QTXHexSettings.h"

#include <optional>
#include <string>

/// The settings file: `Vantorel/Settings.plist` in the folder of the user's data, a text property
/// list in UTF-8. Nothing here reports a failure: without a file the picker works with what it has.
namespace vantorel {

/// Settings larger than this are no settings of ours, and are not read.
inline constexpr std::size_t largestSettingsFile = 16 << 20;

/// The path of the file; nothing where there is no folder for the user's data.
[[nodiscard]] std::optional<std::string> hexColorPickerDefaultsFileName(const HostFiles& files);

/// The bytes of the file for these settings.
[[nodiscard]] std::string settingsData(const QTXHexSettings& settings);

/// Loads the file into the settings. One that cannot be read, or holds no dictionary, counts as an
/// empty dictionary. False where there is such a file: what it says is not in the settings.
bool readDefaults(const HostFiles& files, QTXHexSettings& settings);

/// Writes the whole file at once.
void writeDefaults(HostFiles& files, const QTXHexSettings& settings);

/// Copies the file to one with a "~" behind its name, for a file that was not understood: a slip of
/// somebody who edited it must not cost the settings. True where there is nothing (any more) to
/// copy; false where it cannot be read or copied, and so should not be written over.
[[nodiscard]] bool keepDefaultsFile(HostFiles& files);

/// Makes folder and file where they are missing. A file that was there is loaded; one that is made
/// is not read back. False where a file is there, or may be, whose contents are not in the
/// settings.
bool initializeDefaults(HostFiles& files, QTXHexSettings& settings);

}  // namespace vantorel
