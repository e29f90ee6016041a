#include "paletteedit/PaletteEditor.h"

#include "paletteedit/EditMessages.h"
#include "paletteedit/FreeNames.h"
#include "text/Unicode.h"

#include <algorithm>
#include <utility>

namespace vantorel {
namespace {

PaletteState stateOf(std::u16string name, PaletteEntries entries)
{
    return {std::move(name), std::make_shared<const PaletteEntries>(std::move(entries)), nullptr};
}

}  // namespace

PaletteEditor::PaletteEditor(HostFiles& files, PaletteFileStore& store, RemoveFile removeFile,
                             FirstLook firstLook)
    : _files(files), _store(store), _removeFile(std::move(removeFile))
{
    if (firstLook == FirstLook::now) lookAgain();
}

std::shared_ptr<HostFolderLock> PaletteEditor::beginStep(PaletteId id, const std::u16string& name,
                                                         EditOutcome& outcome)
{
    auto lock = _store.lockOwnFolder();
    if (lock) return lock;
    outcome.list = palette(id) != nullptr ? id : 0;
    outcome.messages.push_back(editmessages::locked(name));
    return nullptr;
}

PaletteEditor::Record* PaletteEditor::recordOf(PaletteId id)
{
    const auto found = _records.find(id);
    return found != _records.end() ? &found->second : nullptr;
}

PaletteId PaletteEditor::idOfPath(const std::string& path)
{
    const auto [found, isNew] = _idsOfPaths.try_emplace(path, _lastId + 1);
    if (isNew) ++_lastId;
    return found->second;
}

void PaletteEditor::readIfChanged(Record& record)
{
    // Read the version first, so that a later change is noticed the next time.
    const std::uint64_t version = _files.versionAtPath(record.path);
    if (version != 0 && version == record.version) return;
    record.version = version;
    auto bytes = version != 0 ? _files.contentsAtPath(record.path) : std::nullopt;
    EntriesReader reader(std::move(bytes).value_or(std::string()), record.path);
    reader.readLines(reader.allBytes());
    setContents(record, reader.takeFile());
}

void PaletteEditor::setContents(Record& record, std::optional<EntriesReader::File> file)
{
    record.state.reset();
    record.hasOtherLines = file && file->hasOtherLines;
    if (file) record.state = std::move(file->state);
}

bool PaletteEditor::continueReading(PaletteId id, std::size_t lines)
{
    Record* record = recordOf(id);
    if (record == nullptr || record->state) {
        if (_reading && _reading->list == id) _reading.reset();
        return true;
    }
    const std::uint64_t version = _files.versionAtPath(record->path);
    if (!_reading || _reading->list != id || _reading->version != version) {
        _reading.reset();
        auto bytes = version != 0 ? _files.contentsAtPath(record->path) : std::nullopt;
        if (!bytes) return true;
        _reading = std::make_unique<StepwiseReading>(id, version, *std::move(bytes), record->path);
    }
    if (!_reading->reader.readLines(lines)) return false;
    record->version = version;
    setContents(*record, _reading->reader.takeFile());
    _reading.reset();
    return true;
}

bool PaletteEditor::isUnreadable(const Record& record) const
{
    return record.version == 0 && _files.kindAtPath(record.path) != HostFileKind::none;
}

void PaletteEditor::setPalettes(std::vector<ListedPalette> listed)
{
    _palettes.clear();
    _placesOfPalettes.clear();
    for (ListedPalette& found : listed) {
        const PaletteId id = idOfPath(found.path);
        Record& record = _records[id];
        record.path = found.path;
        record.program = found.program;
        _placesOfPalettes[id] = _palettes.size();
        _palettes.push_back({id, std::move(found.name), found.program, found.path});
    }
}

std::vector<EditablePalette> PaletteEditor::refresh()
{
    beginRefresh();
    continueRefresh(_store.listingProgress().allFiles);
    return endRefresh();
}

void PaletteEditor::beginRefresh()
{
    _palettesBefore = _palettes;
    _store.beginListing();
}

std::vector<EditablePalette> PaletteEditor::endRefresh()
{
    showRefreshed();
    std::vector<EditablePalette> changed;
    for (const EditablePalette& old : std::exchange(_palettesBefore, {})) {
        Record* record = recordOf(old.id);
        if (record == nullptr) continue;
        const EditablePalette* now = palette(old.id);
        const bool wasRead = record->state.has_value();
        const auto entries = wasRead ? record->state->entries : nullptr;
        if (wasRead) readIfChanged(*record);
        const bool hasOtherEntries =
            wasRead && (!record->state || *record->state->entries != *entries);
        if (now == nullptr || now->name != old.name || hasOtherEntries) changed.push_back(old);
    }
    return changed;
}

const EditablePalette* PaletteEditor::palette(PaletteId id) const
{
    const auto found = _placesOfPalettes.find(id);
    return found != _placesOfPalettes.end() ? &_palettes[found->second] : nullptr;
}

const PaletteEntries& PaletteEditor::entriesOf(PaletteId id)
{
    static const PaletteEntries none;
    Record* record = recordOf(id);
    if (record == nullptr) return none;
    if (!record->state) readIfChanged(*record);
    return record->state ? *record->state->entries : none;
}

std::u16string PaletteEditor::freeListName(const std::u16string& wanted, PaletteId except,
                                           Among among) const
{
    FreeNames names;
    for (const EditablePalette& listed : _palettes) {
        if (listed.id == except || (among == Among::ownLists && !listed.isOwn())) continue;
        names.use(listed.name);
    }
    return names.take(wanted);
}

EditOutcome PaletteEditor::add(const std::u16string& name, const PaletteEntries& entries)
{
    const std::u16string wanted = tidyName(name);
    if (wanted.empty()) return {};
    return doFirst({++_lastId, std::nullopt, stateOf(wanted, entries)});
}

EditOutcome PaletteEditor::rename(PaletteId id, const std::u16string& name)
{
    Record* record = recordOf(id);
    const std::u16string wanted = tidyName(name);
    if (record == nullptr || wanted.empty()) return {};
    static_cast<void>(entriesOf(id));
    if (!record->state || record->state->name == wanted) return {};
    PaletteState after = *record->state;
    after.name = wanted;
    after.bytes = nullptr;
    if (record->program.empty()) return doFirst({id, record->state, after});
    EditOutcome outcome = doFirst({++_lastId, std::nullopt, after});
    if (outcome.done) {
        outcome.messages.push_back(editmessages::copiedFirst(recordOf(outcome.list)->state->name));
    }
    return outcome;
}

EditOutcome PaletteEditor::remove(PaletteId id)
{
    Record* record = recordOf(id);
    if (record == nullptr || !record->program.empty()) return {};
    static_cast<void>(entriesOf(id));
    if (!record->state) return {};
    return doFirst({id, record->state, std::nullopt});
}

EditOutcome PaletteEditor::setEntries(PaletteId id, PaletteEntries entries)
{
    Record* record = recordOf(id);
    if (record == nullptr) return {};
    const PaletteEntries& old = entriesOf(id);
    if (!record->state || old == entries) return {false, id, {}};
    if (record->program.empty()) {
        return doFirst({id, record->state, stateOf(record->state->name, std::move(entries))});
    }
    // Use the plain name: as soon as the two lists differ, the other program's list is listed under
    // another name.
    std::u16string name = tidyName(record->state->name);
    const bool ownHasIt =
        name.empty() || std::any_of(_palettes.begin(), _palettes.end(), [&](const auto& listed) {
            return listed.isOwn() && listed.name == name;
        });
    if (ownHasIt)
        name = freeListName(name.empty() ? EntriesReader::fallbackName(record->path) : name, 0,
                            Among::allLists);
    EditOutcome outcome;
    const auto lock = beginStep(id, record->state->name, outcome);
    if (!lock) return outcome;
    EditStep step{++_lastId, std::nullopt, stateOf(name, std::move(entries))};
    auto done = commitNew(step.list, *step.after, outcome);
    lookAgain();
    if (!done) return outcome;
    outcome.done = true;
    outcome.list = step.list;
    outcome.messages.push_back(editmessages::copiedFirst(name));
    _history.record(std::move(*done));
    return outcome;
}

EditOutcome PaletteEditor::doFirst(const EditStep& step)
{
    EditOutcome outcome;
    const auto lock = beginStep(step.list, step.name(), outcome);
    if (!lock) return outcome;
    EditStep wanted = step;
    const bool getsNewName =
        wanted.after && (!wanted.before || wanted.before->name != wanted.after->name);
    if (getsNewName) {
        lookAgain();
        const std::u16string free = freeListName(wanted.after->name, step.list, Among::allLists);
        if (free != wanted.after->name) outcome.messages.push_back(editmessages::otherName(free));
        wanted.after->name = free;
    }
    auto done = commit(wanted, Occasion::first, outcome);
    lookAgain();
    if (!done) {
        outcome.list = palette(step.list) != nullptr ? step.list : 0;
        return outcome;
    }
    outcome.done = true;
    outcome.list = done->after ? done->list : 0;
    _history.record(std::move(*done));
    return outcome;
}

EditOutcome PaletteEditor::doAgain(const EditStep& step, void (EditHistory::*move)())
{
    EditOutcome outcome;
    const auto lock = beginStep(step.list, step.name(), outcome);
    if (!lock) return outcome;
    const auto done = commit(step, Occasion::again, outcome);
    lookAgain();
    outcome.done = done.has_value();
    outcome.list = palette(step.list) != nullptr ? step.list : 0;
    if (!done) return outcome;
    (_history.*move)();
    return outcome;
}

EditOutcome PaletteEditor::undo()
{
    if (!canUndo()) return {};
    const EditStep& step = _history.lastDone();
    return doAgain({step.list, step.after, step.before}, &EditHistory::moveToUndone);
}

EditOutcome PaletteEditor::redo()
{
    if (!canRedo()) return {};
    const EditStep step = _history.lastUndone();
    return doAgain(step, &EditHistory::moveToDone);
}

}  // namespace vantorel
