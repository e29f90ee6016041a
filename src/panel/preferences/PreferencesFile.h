#pragma once

#include "plist/PropertyList.h"

#include <QString>

#include <functional>
#include <optional>

namespace vantorel {

/// Sets the folder that takes the place of the user's configuration for the preferences.
void setPreferencesFolder(const QString& path);

/// Returns the preferences; an empty list if the file is missing or damaged.
[[nodiscard]] PropertyList readPreferencesFile();

/// Reads the preferences, changes them, and replaces the file at once, while no other panel can do
/// so. Returns what was written. If that fails, a line on standard error says why, and the previous
/// file is still there.
std::optional<PropertyList> changePreferencesFile(
    const std::function<void(PropertyList& list)>& change);

}  // namespace vantorel
