#include "settings/SettingsMerge.h"

#include "plist/PropertyListReader.h"
#include "text/Unicode.h"

#include <algorithm>

namespace vantorel {
namespace {

bool contains(const PropertyList::Array& array, const PropertyList& value)
{
    return std::find(array.begin(), array.end(), value) != array.end();
}

bool haveSameValue(const PropertyList& left, const PropertyList& right, std::u16string_view key)
{
    const PropertyList* leftValue = left.valueForKey(key);
    const PropertyList* rightValue = right.valueForKey(key);
    if (leftValue == nullptr || rightValue == nullptr) return leftValue == rightValue;
    return *leftValue == *rightValue;
}

/// Applies to `theirs` what has been added to and removed from `before`. The result is empty only
/// if `after` is: the page never leaves the user without a list.
PropertyList::Array withChangesApplied(const PropertyList::Array& theirs,
                                       const PropertyList::Array& before,
                                       const PropertyList::Array& after)
{
    PropertyList::Array result;
    for (const PropertyList& value : theirs) {
        if (!contains(before, value) || contains(after, value)) result.push_back(value);
    }
    for (const PropertyList& value : after) {
        if (!contains(before, value) && !contains(result, value)) result.push_back(value);
    }
    return result.empty() ? after : result;
}

const PropertyList::Array* arrayForKey(const PropertyList& dictionary, std::u16string_view key)
{
    const PropertyList* value = dictionary.valueForKey(key);
    return value != nullptr ? value->array() : nullptr;
}

}  // namespace

std::optional<PropertyList> settingsDictionary(const std::string& bytes)
{
    if (bytes.size() > largestSettingsFile || !isWellFormedUtf8(bytes)) return std::nullopt;
    auto parsed = parsePropertyList(utf16FromUtf8(bytes));
    if (!parsed || parsed->dictionary() == nullptr) return std::nullopt;
    return parsed;
}

void SettingsMerge::noteRead(PropertyList settings, const std::optional<std::string>& bytes)
{
    _settings = std::move(settings);
    _bytes = bytes;
    _file = bytes ? settingsDictionary(*bytes).value_or(PropertyList()) : PropertyList();
    _foreign = PropertyList::Dictionary{};
}

void SettingsMerge::noteWritten(PropertyList settings, PropertyList written, std::string bytes)
{
    _settings = std::move(settings);
    _file = std::move(written);
    _bytes = std::move(bytes);
}

void SettingsMerge::noteForeignChanges(const PropertyList& settings, const std::string& bytes)
{
    const auto now = settingsDictionary(bytes);
    if (!now) return;
    for (const auto& [key, value] : *now->dictionary()) {
        // Only keys that this version knows: an unknown one never survives a write.
        if (settings.valueForKey(key) == nullptr || haveSameValue(_file, *now, key)) continue;
        _foreign.setValue(value, key);
    }
}

PropertyList SettingsMerge::merge(const PropertyList& settings,
                                  const std::optional<std::string>& bytes)
{
    if (bytes && bytes != _bytes) noteForeignChanges(settings, *bytes);
    PropertyList merged = settings;
    PropertyList foreign(PropertyList::Dictionary{});
    for (const auto& [key, theirs] : *_foreign.dictionary()) {
        PropertyList value = theirs;
        if (!haveSameValue(_settings, settings, key)) {
            const auto* before = arrayForKey(_settings, key);
            const auto* after = arrayForKey(settings, key);
            // The choice made last wins, but lists that were added or removed do not exclude each
            // other.
            if (before == nullptr || after == nullptr || theirs.array() == nullptr) continue;
            value = withChangesApplied(*theirs.array(), *before, *after);
        }
        merged.setValue(value, key);
        foreign.setValue(std::move(value), key);
    }
    _foreign = std::move(foreign);
    return merged;
}

}  // namespace vantorel
