#include "paletteedit/KnownPalettes.h"

#include "paletteedit/FreeNames.h"

#include <utility>

namespace vantorel {

void KnownPalettes::beginRefresh()
{
    _palettesBefore = _palettes;
    _store.beginListing();
}

std::vector<EditablePalette> KnownPalettes::endRefresh()
{
    showRefreshed();
    std::vector<EditablePalette> changed;
    for (const EditablePalette& old : std::exchange(_palettesBefore, {})) {
        PaletteRecord* record = recordOf(old.id);
        if (record == nullptr) continue;
        const EditablePalette* now = palette(old.id);
        const bool wasRead = record->state.has_value();
        const auto entries = wasRead ? record->state->entries : nullptr;
        if (wasRead) record->readIfChanged(_files);
        const bool hasOtherEntries =
            wasRead && (!record->state || *record->state->entries != *entries);
        if (now == nullptr || now->name != old.name || hasOtherEntries) changed.push_back(old);
    }
    return changed;
}

void KnownPalettes::setPalettes(std::vector<ListedPalette> listed)
{
    _palettes.clear();
    _placesOfPalettes.clear();
    for (ListedPalette& found : listed) {
        const PaletteId id = idOfPath(found.path);
        PaletteRecord& record = _records[id];
        record.path = found.path;
        record.program = found.program;
        _placesOfPalettes[id] = _palettes.size();
        _palettes.push_back({id, std::move(found.name), found.program, found.path});
    }
}

PaletteId KnownPalettes::idOfPath(const std::string& path)
{
    const auto [found, isNew] = _idsOfPaths.try_emplace(path, _lastId + 1);
    if (isNew) ++_lastId;
    return found->second;
}

const EditablePalette* KnownPalettes::palette(PaletteId id) const
{
    const auto found = _placesOfPalettes.find(id);
    return found != _placesOfPalettes.end() ? &_palettes[found->second] : nullptr;
}

std::u16string KnownPalettes::freeName(const std::u16string& wanted, PaletteId except,
                                       Among among) const
{
    FreeNames names;
    for (const EditablePalette& listed : _palettes) {
        if (listed.id == except || (among == Among::ownLists && !listed.isOwn())) continue;
        names.use(listed.name);
    }
    return names.take(wanted);
}

const PaletteEntries& KnownPalettes::entriesOf(PaletteId id)
{
    static const PaletteEntries none;
    PaletteRecord* record = recordOf(id);
    if (record == nullptr) return none;
    if (!record->state) record->readIfChanged(_files);
    return record->state ? *record->state->entries : none;
}

bool KnownPalettes::continueReading(PaletteId id, std::size_t lines)
{
    PaletteRecord* record = recordOf(id);
    if (record == nullptr || record->state) {
        if (_reading && _reading->list == id) _reading.reset();
        return true;
    }
    const std::uint64_t version = _files.versionAtPath(record->path);
    if (!_reading || _reading->list != id || _reading->version != version) {
        _reading.reset();
        auto bytes = _files.contentsAtPath(record->path);
        if (!bytes) return true;
        _reading = std::make_unique<StepwiseReading>(id, version, *std::move(bytes), record->path);
    }
    if (!_reading->reader.readLines(lines)) return false;
    record->version = version;
    record->state = _reading->reader.takeState();
    _reading.reset();
    return true;
}

PaletteRecord* KnownPalettes::recordOf(PaletteId id)
{
    const auto found = _records.find(id);
    return found != _records.end() ? &found->second : nullptr;
}

void KnownPalettes::noteWritten(PaletteId id, const std::string& path, const PaletteState& state,
                                const std::string& text)
{
    PaletteRecord& record = _records[id];
    if (record.path != path) _idsOfPaths.erase(record.path);
    _idsOfPaths[path] = id;
    record.path = path;
    record.program.clear();
    record.setWritten(state, text, _files);
}

void KnownPalettes::noteRemoved(PaletteId id)
{
    const auto found = _records.find(id);
    _idsOfPaths.erase(found->second.path);
    _records.erase(found);
}

}  // namespace vantorel
