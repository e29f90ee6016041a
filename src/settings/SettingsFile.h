#pragma once

#include "host/HostFiles.h"
#include "settings/QTXHexSettings.h"
#include "settings/SettingsMerge.h"

#include <optional>
#include <string>

/// The settings file: `Vantorel/Settings.plist` in the user's data folder, a text property list in
/// UTF-8. Errors are not reported: without a file, the picker works with its current settings.
namespace vantorel {

/// Returns the path of the file, or `std::nullopt` if there is no folder for the user's data.
[[nodiscard]] std::optional<std::string> hexColorPickerDefaultsFileName(const HostFiles& files);

/// Returns the bytes of the file for these settings.
[[nodiscard]] std::string settingsData(const QTXHexSettings& settings);

/// Loads the file into the settings. A file that cannot be read or is not a dictionary counts as an
/// empty dictionary. Returns false if such a file exists, which means that its contents are not in
/// the settings.
bool readDefaults(const HostFiles& files, QTXHexSettings& settings);
/// The same for a process that writes the file, too; it passes the same `merge` to `writeDefaults`.
bool readDefaults(const HostFiles& files, QTXHexSettings& settings, SettingsMerge& merge);

/// Writes the whole file atomically. If another process has changed it since this one read or wrote
/// it, only the keys that this process has changed get new values. The folder is locked meanwhile.
void writeDefaults(HostFiles& files, const QTXHexSettings& settings, SettingsMerge& merge);

/// Takes in what other processes have written since this one read or wrote the file: the keys that
/// this process has not changed meanwhile get the values of the file. Returns false, without any
/// effect, if the file has not changed or cannot be read.
bool takeInDefaults(const HostFiles& files, QTXHexSettings& settings, SettingsMerge& merge);

/// Copies the file to one with "~" appended to its name. Used for a file that could not be parsed,
/// so that a slip in editing it by hand does not cost the user's settings. Returns true if the copy
/// was made or no file exists (any more). Returns false if the file cannot be read or copied, and
/// so must not be overwritten.
[[nodiscard]] bool keepDefaultsFile(HostFiles& files);

/// Creates the folder and the file if they are missing. An existing file is loaded; a new one is
/// not read back. Returns false if a file exists, or may exist, whose contents are not in the
/// settings.
bool initializeDefaults(HostFiles& files, QTXHexSettings& settings, SettingsMerge& merge);

}  // namespace vantorel
