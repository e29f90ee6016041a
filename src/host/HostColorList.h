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

    /// The colour of a key; empty when the list has no such key, or no colour for it.
    [[nodiscard]] std::optional<HostColor> colorWithKey(const std::u16string& key) const
    {
        const auto index = indexOf(key, hashOf(key));
        return index && hasColorAtIndex(*index) ? std::optional(_colors[*index]) : std::nullopt;
    }

    /// The colour at a place of `allKeys()`; the index must be below its size. A pattern stands for
    /// none: neither has an RGB form.
    [[nodiscard]] const HostColor& colorAtIndex(std::size_t index) const { return _colors[index]; }

    /// Whether the key at that place has a colour at all: a list of another program may lack some.
    [[nodiscard]] bool hasColorAtIndex(std::size_t index) const
    {
        return _colorless.empty() || !_colorless.contains(index);
    }

    /// Replaces the colour of a key in its place, or appends a new entry.
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

    /// Appends a new entry; false, with nothing changed, when the list has its key already.
    bool addColor(const HostColor& color, const std::u16string& key)
    {
        const std::size_t hash = hashOf(key);
        if (indexOf(key, hash)) return false;
        append(color, key, hash);
        return true;
    }

    /// Appends a key without a colour; false, with nothing changed, when the list has it already.
    bool addKey(const std::u16string& key)
    {
        if (!addColor(HostColor::patternColor(), key)) return false;
        _colorless.insert(_keys.size() - 1);
        return true;
    }

    /// Grows with every change, so that what was derived from the list can be kept until then.
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
    // By the hash of the key, so that no key is kept twice.
    std::unordered_multimap<std::size_t, std::size_t> _indexes;
    std::uint64_t _revision = 0;
};

/// The colour lists that a user shares between programs.
class HostColorListStore {
public:
    virtual ~HostColorListStore() = default;

    /// The installed list of exactly that name, or null. A list stays valid while somebody holds
    /// it, also after the store has found a newer one of that name.
    [[nodiscard]] virtual std::shared_ptr<HostColorList> colorListNamed(
        const std::u16string& name) = 0;

    /// The names of all installed lists, in the store's order, each once.
    [[nodiscard]] virtual std::vector<std::u16string> availableColorLists() = 0;

    /// Saves a list among the user's own under its own name, replacing one of that name; from then
    /// on it is installed. False when it could not be saved.
    virtual bool writeColorList(const std::shared_ptr<HostColorList>& list) = 0;
};

}  // namespace vantorel
