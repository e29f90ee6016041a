#pragma once

#include "host/HostColor.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace vantorel {

/// A named, ordered set of named colours. The order of insertion is the order of the keys.
class HostColorList {
public:
    explicit HostColorList(std::u16string name) : _name(std::move(name)) {}

    [[nodiscard]] const std::u16string& name() const { return _name; }
    [[nodiscard]] const std::vector<std::u16string>& allKeys() const { return _keys; }

    /// Returns the colour of a key, or `std::nullopt` if the list lacks the key or has no colour
    /// for it.
    [[nodiscard]] std::optional<HostColor> colorWithKey(const std::u16string& key) const
    {
        const auto index = indexOf(key, hashOf(key));
        return index && hasColorAtIndex(*index) ? std::optional(_colors[*index]) : std::nullopt;
    }

    /// Returns the colour at an index of `allKeys()`; the index must be in range. A key without a
    /// colour returns a pattern, since neither can be converted to RGB.
    [[nodiscard]] const HostColor& colorAtIndex(std::size_t index) const { return _colors[index]; }

    /// Returns whether the key at that index has a colour: lists of other programs may contain keys
    /// without one.
    [[nodiscard]] bool hasColorAtIndex(std::size_t index) const
    {
        return _colorless.empty() || !_colorless.contains(index);
    }

    /// Replaces the colour of a key, keeping its position, or appends a new entry.
    void setColor(const HostColor& color, const std::u16string& key)
    {
        const std::size_t hash = hashOf(key);
        if (const auto index = indexOf(key, hash)) {
            _colors[*index] = color;
            _colorless.erase(*index);
            ++_revision;
        } else {
            append(color, key, hash);
        }
    }

    /// Appends a new entry. Returns false, leaving the list unchanged, if the key already exists.
    bool addColor(const HostColor& color, const std::u16string& key)
    {
        const std::size_t hash = hashOf(key);
        if (indexOf(key, hash)) return false;
        append(color, key, hash);
        return true;
    }

    /// Appends a key without a colour. Returns false, leaving the list unchanged, if the key
    /// already exists.
    bool addKey(const std::u16string& key)
    {
        if (!addColor(HostColor::patternColor(), key)) return false;
        _colorless.insert(_keys.size() - 1);
        return true;
    }

    /// Increases with every change, so that callers can cache what they derive from the list.
    [[nodiscard]] std::uint64_t revision() const { return _revision; }

private:
    static std::size_t hashOf(const std::u16string& key)
    {
        return std::hash<std::u16string>{}(key);
    }

    [[nodiscard]] std::optional<std::size_t> indexOf(const std::u16string& key,
                                                     std::size_t hash) const
    {
        const auto [first, last] = _indexes.equal_range(hash);
        const auto found = std::find_if(
            first, last, [&](const auto& entry) { return _keys[entry.second] == key; });
        return found != last ? std::optional(found->second) : std::nullopt;
    }

    void append(const HostColor& color, const std::u16string& key, std::size_t hash)
    {
        _indexes.emplace(hash, _keys.size());
        _keys.push_back(key);
        _colors.push_back(color);
        ++_revision;
    }

    std::u16string _name;
    std::vector<std::u16string> _keys;
    std::vector<HostColor> _colors;
    std::unordered_set<std::size_t> _colorless;
    // Maps the hash of each key to its index, so that each key is stored once.
    std::unordered_multimap<std::size_t, std::size_t> _indexes;
    std::uint64_t _revision = 0;
};

/// The user's colour lists, which several programs share.
class HostColorListStore {
public:
    virtual ~HostColorListStore() = default;

    /// Returns the installed list of exactly that name, or null. A list stays valid as long as
    /// somebody holds the pointer, even after the store has loaded a newer list of that name.
    [[nodiscard]] virtual std::shared_ptr<HostColorList> colorListNamed(
        const std::u16string& name) = 0;

    /// Returns the names of all installed lists, in the store's order, without duplicates.
    [[nodiscard]] virtual std::vector<std::u16string> availableColorLists() = 0;

    /// Saves a list among the user's own lists, replacing an existing list of that name. The list
    /// is installed from then on. Returns false if it could not be saved.
    virtual bool writeColorList(const std::shared_ptr<HostColorList>& list) = 0;
};

}  // namespace vantorel
