#include "paletteedit/EntryEdits.h"

#include "paletteedit/FreeNames.h"

#include <algorithm>

namespace vantorel {
namespace {

std::vector<bool> marksOf(const std::vector<std::size_t>& places, std::size_t size)
{
    std::vector<bool> marks(size);
    for (const std::size_t place : places) {
        if (place < size) marks[place] = true;
    }
    return marks;
}

std::vector<std::size_t> placesOf(const std::vector<bool>& marks)
{
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < marks.size(); ++i) {
        if (marks[i]) places.push_back(i);
    }
    return places;
}

}  // namespace

EntryEdit withInserted(const PaletteEntries& entries, std::size_t before,
                       const PaletteEntries& inserted)
{
    const auto at = static_cast<std::ptrdiff_t>(std::min(before, entries.size()));
    FreeNames names(entries);
    EntryEdit edit;
    edit.entries.reserve(entries.size() + inserted.size());
    edit.entries.assign(entries.begin(), entries.begin() + at);
    for (const PaletteEntry& entry : inserted) {
        std::u16string wanted = tidyName(entry.name());
        if (wanted.empty()) wanted = hexCodeOf(entry.color());
        edit.places.push_back(edit.entries.size());
        edit.entries.emplace_back(names.take(wanted), entry.color());
    }
    edit.entries.insert(edit.entries.end(), entries.begin() + at, entries.end());
    return edit;
}

EntryEdit withRemoved(const PaletteEntries& entries, const std::vector<std::size_t>& places)
{
    const std::vector<bool> marks = marksOf(places, entries.size());
    EntryEdit edit;
    edit.entries.reserve(entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (!marks[i]) edit.entries.push_back(entries[i]);
    }
    return edit;
}

EntryEdit withMoved(const PaletteEntries& entries, const std::vector<std::size_t>& places,
                    std::size_t before)
{
    const std::vector<bool> marks = marksOf(places, entries.size());
    EntryEdit edit;
    edit.entries.reserve(entries.size());
    const auto add = [&](std::size_t from, std::size_t to, bool marked) {
        for (std::size_t i = from; i < to; ++i) {
            if (marks[i] != marked) continue;
            if (marked) edit.places.push_back(edit.entries.size());
            edit.entries.push_back(entries[i]);
        }
    };
    const std::size_t at = std::min(before, entries.size());
    add(0, at, false);
    add(0, entries.size(), true);
    add(at, entries.size(), false);
    return edit;
}

EntryEdit withStepped(const PaletteEntries& entries, const std::vector<std::size_t>& places,
                      int step)
{
    std::vector<bool> marks = marksOf(places, entries.size());
    EntryEdit edit{entries, {}};
    const auto swapIfFree = [&](std::size_t from, std::size_t to) {
        if (!marks[from] || marks[to]) return;
        std::swap(edit.entries[from], edit.entries[to]);
        marks[from] = false;
        marks[to] = true;
    };
    if (step < 0) {
        for (std::size_t i = 1; i < entries.size(); ++i)
            swapIfFree(i, i - 1);
    } else {
        for (std::size_t i = entries.size(); i-- > 1;)
            swapIfFree(i - 1, i);
    }
    edit.places = placesOf(marks);
    return edit;
}

EntryEdit withRenamed(const PaletteEntries& entries, std::size_t place, std::u16string_view name)
{
    EntryEdit edit{entries, {}};
    if (place >= entries.size()) return edit;
    edit.places.push_back(place);
    const std::u16string wanted = tidyName(name);
    if (wanted.empty() || wanted == entries[place].name()) return edit;
    FreeNames names(entries);
    edit.entries[place] = PaletteEntry(names.take(wanted), entries[place].color());
    return edit;
}

EntryEdit withRecolored(const PaletteEntries& entries, const std::vector<std::size_t>& places,
                        const HostColor& color)
{
    const std::vector<bool> marks = marksOf(places, entries.size());
    EntryEdit edit{entries, placesOf(marks)};
    for (const std::size_t place : edit.places)
        edit.entries[place] = PaletteEntry(entries[place].name(), color);
    return edit;
}

}  // namespace vantorel
