#include "colorlists/PaletteFile.h"
#include "paletteedit/EditMessages.h"
#include "paletteedit/PaletteEditor.h"
#include "paletteedit/PaletteMerge.h"

/// Applies steps to the files on disk.
namespace vantorel {
namespace {

/// Returns the original bytes of the file if they are known and still valid, else the list in the
/// strict form.
std::string textOfState(const PaletteState& state, const HostColorList& list)
{
    const bool isRight = state.bytes != nullptr && paletteName(*state.bytes, {}) == state.name;
    return isRight ? *state.bytes : paletteText(list);
}

}  // namespace

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
