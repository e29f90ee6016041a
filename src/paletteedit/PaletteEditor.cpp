#include "paletteedit/PaletteEditor.h"

#include "colorlists/PaletteFile.h"
#include "paletteedit/EditMessages.h"
#include "paletteedit/FreeNames.h"
#include "paletteedit/PaletteMerge.h"
#include "text/Unicode.h"

#include <algorithm>
#include <utility>

namespace vantorel {
namespace {

PaletteState stateOf(std::u16string name, PaletteEntries entries)
{
    return {std::move(name), std::make_shared<const PaletteEntries>(std::move(entries)), nullptr};
}

/// Returns the original bytes of the file if they are known and still valid, else the list in the
/// strict form.
std::string textOfState(const PaletteState& state, const HostColorList& list)
{
    const bool isRight = state.bytes != nullptr && paletteName(*state.bytes, {}) == state.name;
    return isRight ? *state.bytes : paletteText(list);
}

}  // namespace

PaletteEditor::PaletteEditor(HostFiles& files, PaletteFileStore& store, RemoveFile removeFile,
                             FirstLook firstLook)
    : _files(files), _store(store), _removeFile(std::move(removeFile))
{
    if (firstLook == FirstLook::now) lookAgain();
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
    lookAgain();
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
    EditStep step{++_lastId, std::nullopt, stateOf(name, std::move(entries))};
    EditOutcome outcome;
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
    EditStep wanted = step;
    const bool getsNewName =
        wanted.after && (!wanted.before || wanted.before->name != wanted.after->name);
    if (getsNewName) {
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

std::optional<EditStep> PaletteEditor::commit(const EditStep& step, Occasion occasion,
                                              EditOutcome& outcome)
{
    if (!step.after) return commitRemoval(step, occasion, outcome);
    if (step.before) return commitChange(step, occasion, outcome);
    PaletteState state = *step.after;
    if (occasion == Occasion::again) {
        const Record* record = recordOf(step.list);
        // The list was not removed when the step was undone.
        if (record != nullptr && _files.versionAtPath(record->path) != 0) return step;
        state.name = freeListName(state.name, 0, Among::ownLists);
        if (state.name != step.after->name)
            outcome.messages.push_back(editmessages::otherName(state.name));
    }
    return commitNew(step.list, std::move(state), outcome);
}

std::optional<EditStep> PaletteEditor::commitNew(PaletteId id, PaletteState state,
                                                 EditOutcome& outcome)
{
    const auto list = listOfEntries(state.name, *state.entries);
    const std::string text = textOfState(state, *list);
    if (state.bytes != nullptr && *state.bytes != text) state.bytes = nullptr;
    const auto path = _store.writeNewFile(list, text);
    if (!path) {
        outcome.messages.push_back(notSaved(state.name));
        return std::nullopt;
    }
    Record record;
    record.path = *path;
    record.version = _files.versionAtPath(*path);
    record.hasOtherLines = state.bytes != nullptr;
    record.state = state;
    // If the file has already been changed again, it is read at the next request.
    if (_files.contentsAtPath(*path) != text) record.version = 0;
    _records[id] = std::move(record);
    _idsOfPaths[*path] = id;
    return EditStep{id, std::nullopt, std::move(state)};
}

std::optional<EditStep> PaletteEditor::commitRemoval(const EditStep& step, Occasion occasion,
                                                     EditOutcome& outcome)
{
    Record* record = recordOf(step.list);
    if (record != nullptr) readIfChanged(*record);
    const bool again = occasion == Occasion::again;
    if (record != nullptr && isUnreadable(*record)) {
        outcome.messages.push_back(notRemoved(step.before->name));
        return std::nullopt;
    }
    if (record == nullptr || record->version == 0) {
        // The list has already been removed, so there is nothing left to do.
        return EditStep{step.list, step.before, std::nullopt};
    }
    if (!record->state || *record->state->entries != *step.before->entries) {
        outcome.messages.push_back(editmessages::changedMeanwhile(step.before->name));
        // Count the step as undone anyway; otherwise the steps before it could never be undone.
        if (again) return EditStep{step.list, step.before, step.before};
        return std::nullopt;
    }
    const PaletteState before = *record->state;
    if (!_removeFile(record->path)) {
        outcome.messages.push_back(notRemoved(before.name));
        return std::nullopt;
    }
    _idsOfPaths.erase(record->path);
    _records.erase(step.list);
    return EditStep{step.list, before, std::nullopt};
}

std::optional<EditStep> PaletteEditor::commitChange(const EditStep& step, Occasion occasion,
                                                    EditOutcome& outcome)
{
    Record* record = recordOf(step.list);
    if (record != nullptr) readIfChanged(*record);
    if (record != nullptr && isUnreadable(*record)) {
        outcome.messages.push_back(notSaved(step.after->name));
        return std::nullopt;
    }
    const bool isGone = record == nullptr || record->version == 0;
    if (isGone || !record->state) {
        // The file is missing or no longer a palette. What is there now may be someone's work, so
        // the list gets a new file.
        PaletteState state = *step.after;
        state.name = freeListName(state.name, step.list, Among::ownLists);
        outcome.messages.push_back(isGone ? editmessages::restored(state.name)
                                          : editmessages::keptBoth(state.name));
        if (record != nullptr) _idsOfPaths.erase(record->path);
        auto made = commitNew(step.list, std::move(state), outcome);
        if (made) made->before = step.before;
        return made;
    }
    const PaletteState now = *record->state;
    PaletteState wanted = *step.after;
    if (*now.entries != *step.before->entries) {
        PaletteMerge merge = mergePalettes(*step.before->entries, *wanted.entries, *now.entries);
        if (!merge.contradictions.empty() && occasion == Occasion::first) {
            wanted.name = freeListName(wanted.name, 0, Among::allLists);
            outcome.messages.push_back(editmessages::keptBoth(wanted.name));
            return commitNew(++_lastId, std::move(wanted), outcome);
        }
        if (!merge.contradictions.empty()) {
            outcome.messages.push_back(editmessages::partlyUndone(now.name));
        } else if (occasion == Occasion::first) {
            outcome.messages.push_back(editmessages::merged(now.name));
        }
        wanted.entries = std::make_shared<const PaletteEntries>(std::move(merge.entries));
        wanted.bytes = nullptr;
    }
    if (step.before->name == step.after->name) wanted.name = now.name;
    if (occasion == Occasion::again && wanted.name != now.name)
        wanted.name = freeListName(wanted.name, step.list, Among::ownLists);
    if (!save(step.list, *record, wanted, outcome)) return std::nullopt;
    return EditStep{step.list, now, wanted};
}

Message PaletteEditor::notSaved(std::u16string_view name) const
{
    return editmessages::notSaved(name, _store.folders().front());
}

Message PaletteEditor::notRemoved(std::u16string_view name) const
{
    return editmessages::notRemoved(name, _store.folders().front());
}

bool PaletteEditor::keepOriginal(const Record& record, EditOutcome& outcome)
{
    const std::string path = record.path + "~";
    if (!record.hasOtherLines || !record.state || record.state->bytes == nullptr) return true;
    if (_files.contentsAtPath(path) == *record.state->bytes) return true;
    if (!_files.writeAtomically(path, *record.state->bytes)) return false;
    outcome.messages.push_back(editmessages::keptOriginal(record.state->name));
    return true;
}

bool PaletteEditor::save(PaletteId id, Record& record, const PaletteState& state,
                         EditOutcome& outcome)
{
    const auto list = listOfEntries(state.name, *state.entries);
    const std::string text = textOfState(state, *list);
    bool saved = keepOriginal(record, outcome);
    std::string path = record.path;
    if (saved && state.name == record.state->name) {
        saved = _store.replaceFile(path, list, text);
    } else if (saved) {
        // Write the new file before removing the old one, so that the list exists at every moment.
        const auto newPath = _store.writeNewFile(list, text);
        saved = newPath.has_value();
        if (saved) {
            _idsOfPaths.erase(path);
            if (!_removeFile(path))
                outcome.messages.push_back(editmessages::oldFileStayed(record.state->name));
            path = *newPath;
        }
    }
    if (!saved) {
        outcome.messages.push_back(notSaved(record.state->name));
        return false;
    }
    record.path = path;
    _idsOfPaths[path] = id;
    record.version = _files.versionAtPath(path);
    record.state = state;
    if (record.state->bytes != nullptr && *record.state->bytes != text)
        record.state->bytes = nullptr;
    record.hasOtherLines = record.state->bytes != nullptr;
    if (_files.contentsAtPath(path) != text) record.version = 0;
    return true;
}

}  // namespace vantorel
