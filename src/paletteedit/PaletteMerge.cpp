#include "paletteedit/PaletteMerge.h"

#include "paletteedit/FreeNames.h"

#include <string_view>
#include <unordered_map>

namespace vantorel {
namespace {

/// Finds the entries of one side by name.
class Side {
public:
    explicit Side(const PaletteEntries& entries) : _entries(entries)
    {
        _places.reserve(entries.size());
        for (std::size_t i = 0; i < entries.size(); ++i)
            _places.try_emplace(entries[i].name(), i);
    }
    [[nodiscard]] const PaletteEntries& entries() const { return _entries; }
    /// Returns null if there is no such entry.
    [[nodiscard]] const PaletteEntry* find(std::u16string_view name) const
    {
        const auto found = _places.find(name);
        return found != _places.end() ? &_entries[found->second] : nullptr;
    }

private:
    const PaletteEntries& _entries;
    std::unordered_map<std::u16string_view, std::size_t> _places;
};

/// Returns whether the entries that exist on both sides are in a different order.
bool hasMoved(const Side& base, const Side& side)
{
    std::size_t next = 0;
    for (const PaletteEntry& entry : base.entries()) {
        if (side.find(entry.name()) == nullptr) continue;
        while (next < side.entries().size() && base.find(side.entries()[next].name()) == nullptr)
            ++next;
        if (next == side.entries().size() || side.entries()[next].name() != entry.name())
            return true;
        ++next;
    }
    return false;
}

bool areEqual(const PaletteEntry* left, const PaletteEntry* right)
{
    if (left == nullptr || right == nullptr) return left == right;
    return *left == *right;
}

class Merger {
public:
    Merger(const PaletteEntries& base, const PaletteEntries& mine, const PaletteEntries& theirs)
        : _base(base), _mine(mine), _theirs(theirs)
    {
    }

    PaletteMerge merge()
    {
        const bool mineLeads = hasMoved(_base, _mine);
        const Side& leading = mineLeads ? _mine : _theirs;
        const Side& other = mineLeads ? _theirs : _mine;
        // Entries that exist only on the other side are placed after the entry that they follow
        // there.
        std::unordered_map<std::u16string_view, PaletteEntries> followers;
        std::u16string_view last;
        PaletteEntries first;
        bool isFirst = true;
        for (const PaletteEntry& entry : other.entries()) {
            if (leading.find(entry.name()) != nullptr) {
                last = entry.name();
                isFirst = false;
            } else if (const PaletteEntry* kept = survivor(entry.name())) {
                (isFirst ? first : followers[last]).push_back(*kept);
            }
        }
        for (const PaletteEntry& entry : first)
            add(entry);
        for (const PaletteEntry& entry : leading.entries()) {
            if (const PaletteEntry* kept = survivor(entry.name())) add(*kept);
            const auto found = followers.find(entry.name());
            if (found == followers.end()) continue;
            for (const PaletteEntry& follower : found->second)
                add(follower);
        }
        renameSecondAdditions();
        return std::move(_result);
    }

private:
    /// Returns the merged entry of a name, or null if it has been removed.
    [[nodiscard]] const PaletteEntry* survivor(std::u16string_view name) const
    {
        const PaletteEntry* base = _base.find(name);
        const PaletteEntry* mine = _mine.find(name);
        const PaletteEntry* theirs = _theirs.find(name);
        if (areEqual(mine, base)) return theirs;
        if (areEqual(theirs, base)) return mine;
        return theirs != nullptr ? theirs : mine;
    }

    void add(const PaletteEntry& entry)
    {
        _result.entries.push_back(entry);
        const PaletteEntry* base = _base.find(entry.name());
        const PaletteEntry* mine = _mine.find(entry.name());
        const PaletteEntry* theirs = _theirs.find(entry.name());
        if (mine == nullptr || theirs == nullptr || *mine == *theirs) return;
        if (areEqual(mine, base) || areEqual(theirs, base)) return;
        if (base != nullptr) {
            _result.contradictions.push_back(entry.name());
        } else {
            _secondAdditions.push_back(_result.entries.size());
            _result.entries.push_back(*mine);
        }
    }

    /// Called last, when all other names are known, so that none of them is taken.
    void renameSecondAdditions()
    {
        if (_secondAdditions.empty()) return;
        FreeNames names(_result.entries);
        for (const std::size_t place : _secondAdditions) {
            PaletteEntry& entry = _result.entries[place];
            entry = PaletteEntry(names.take(entry.name()), entry.color());
        }
    }

    Side _base;
    Side _mine;
    Side _theirs;
    PaletteMerge _result;
    std::vector<std::size_t> _secondAdditions;
};

}  // namespace

PaletteMerge mergePalettes(const PaletteEntries& base, const PaletteEntries& mine,
                           const PaletteEntries& theirs)
{
    if (mine == base) return {theirs, {}};
    if (theirs == base || theirs == mine) return {mine, {}};
    return Merger(base, mine, theirs).merge();
}

}  // namespace vantorel
