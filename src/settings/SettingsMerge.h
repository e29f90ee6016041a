#pragma once

#include "plist/PropertyList.h"

#include <optional>
#include <string>

namespace vantorel {

/// Merges the settings of this process into a settings file that other processes write, too. Only
/// the keys that this process has changed since it last read or wrote the file are changed there.
///
/// What others have written is kept in the file, but becomes a setting of this process only when
/// the page is shown again (`takeInDefaults`): no control changes under the user's hand.
class SettingsMerge {
public:
    /// Records that the file held `bytes` and that `settings` were loaded from it.
    void noteRead(PropertyList settings, const std::optional<std::string>& bytes);
    /// Records that `written` has been written to the file as `bytes`.
    void noteWritten(PropertyList settings, PropertyList written, std::string bytes);

    /// Whether the file held `bytes` when this process last read or wrote it.
    [[nodiscard]] bool isCurrent(const std::string& bytes) const { return bytes == _bytes; }

    /// Returns the dictionary to write. It is `settings` itself unless others have changed the
    /// file. `bytes` are the file's contents now, `std::nullopt` if there are none.
    [[nodiscard]] PropertyList merge(const PropertyList& settings,
                                     const std::optional<std::string>& bytes);

private:
    void noteForeignChanges(const PropertyList& settings, const std::string& bytes);

    /// The settings of this process when it last read or wrote the file.
    PropertyList _settings;
    /// The file at that time.
    PropertyList _file;
    std::optional<std::string> _bytes;
    /// What others have written and this process has not replaced since.
    PropertyList _foreign = PropertyList::Dictionary{};
};

/// The largest settings file, in bytes. Larger files are rejected; we never write files that big.
inline constexpr std::size_t largestSettingsFile = 16 << 20;

/// Returns the dictionary in the bytes of a settings file, or `std::nullopt` if they are not valid.
[[nodiscard]] std::optional<PropertyList> settingsDictionary(const std::string& bytes);

}  // namespace vantorel
