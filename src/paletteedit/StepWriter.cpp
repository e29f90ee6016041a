#include "paletteedit/StepWriter.h"

#include "colorlists/PaletteFile.h"
#include "paletteedit/EditMessages.h"
#include "paletteedit/PaletteMerge.h"

#include <utility>

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

StepWriter::StepWriter(HostFiles& files, PaletteFileStore& store, KnownPalettes& palettes,
                       RemoveFile removeFile)
    : _files(files), _store(store), _palettes(palettes), _removeFile(std::move(removeFile))
{
}

std::optional<EditStep> StepWriter::write(const EditStep& step, Occasion occasion,
                                          EditOutcome& outcome)
{
    if (!step.after) return remove(step, occasion, outcome);
    if (step.before) return change(step, occasion, outcome);
    if (occasion == Occasion::again) return writeAgain(step, outcome);
    return writeNew(step.list, *step.after, outcome);
}

std::optional<EditStep> StepWriter::writeNew(PaletteId id, PaletteState state, EditOutcome& outcome)
{
    const auto list = listOfEntries(state.name, *state.entries);
    const std::string text = textOfState(state, *list);
    if (state.bytes != nullptr && *state.bytes != text) state.bytes = nullptr;
    const auto path = _store.writeNewFile(list, text);
    if (!path) {
        outcome.messages.push_back(notSaved(state.name));
        return std::nullopt;
    }
    _palettes.noteWritten(id, *path, state, text);
    return EditStep{id, std::nullopt, std::move(state)};
}

std::optional<EditStep> StepWriter::writeAgain(const EditStep& step, EditOutcome& outcome)
{
    const PaletteRecord* record = _palettes.recordOf(step.list);
    // The list was not removed when the step was undone.
    if (record != nullptr && _files.versionAtPath(record->path) != 0) return step;
    PaletteState state = *step.after;
    state.name = _palettes.freeName(state.name, 0, Among::ownLists);
    if (state.name != step.after->name)
        outcome.messages.push_back(editmessages::otherName(state.name));
    return writeNew(step.list, std::move(state), outcome);
}

std::optional<EditStep> StepWriter::remove(const EditStep& step, Occasion occasion,
                                           EditOutcome& outcome)
{
    PaletteRecord* record = _palettes.recordOf(step.list);
    if (record != nullptr) record->readIfChanged(_files);
    if (record != nullptr && record->isUnreadable(_files)) {
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
        if (occasion == Occasion::again) return EditStep{step.list, step.before, step.before};
        return std::nullopt;
    }
    const PaletteState before = *record->state;
    if (!_removeFile(record->path)) {
        outcome.messages.push_back(notRemoved(before.name));
        return std::nullopt;
    }
    _palettes.noteRemoved(step.list);
    return EditStep{step.list, before, std::nullopt};
}

std::optional<EditStep> StepWriter::change(const EditStep& step, Occasion occasion,
                                           EditOutcome& outcome)
{
    PaletteRecord* record = _palettes.recordOf(step.list);
    if (record != nullptr) record->readIfChanged(_files);
    if (record != nullptr && record->isUnreadable(_files)) {
        outcome.messages.push_back(notSaved(step.after->name));
        return std::nullopt;
    }
    const bool isGone = record == nullptr || record->version == 0;
    if (isGone || !record->state) {
        // The file is missing or no longer a palette. What is there now may be someone's work, so
        // the list gets a new file.
        PaletteState state = *step.after;
        state.name = _palettes.freeName(state.name, step.list, Among::ownLists);
        outcome.messages.push_back(isGone ? editmessages::restored(state.name)
                                          : editmessages::keptBoth(state.name));
        auto made = writeNew(step.list, std::move(state), outcome);
        if (made) made->before = step.before;
        return made;
    }
    const PaletteState now = *record->state;
    PaletteState wanted = *step.after;
    if (*now.entries != *step.before->entries) {
        PaletteMerge merge = mergePalettes(*step.before->entries, *wanted.entries, *now.entries);
        if (!merge.contradictions.empty() && occasion == Occasion::first) {
            wanted.name = _palettes.freeName(wanted.name, 0, Among::allLists);
            outcome.messages.push_back(editmessages::keptBoth(wanted.name));
            return writeNew(_palettes.newId(), std::move(wanted), outcome);
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
        wanted.name = _palettes.freeName(wanted.name, step.list, Among::ownLists);
    if (!save(step.list, *record, wanted, outcome)) return std::nullopt;
    return EditStep{step.list, now, wanted};
}

bool StepWriter::save(PaletteId id, const PaletteRecord& record, const PaletteState& state,
                      EditOutcome& outcome)
{
    const auto list = listOfEntries(state.name, *state.entries);
    const std::string text = textOfState(state, *list);
    std::optional<std::string> path;
    if (keepOriginal(record, outcome)) {
        if (state.name != record.state->name) {
            // Write the new file before removing the old one, so that the list exists at every
            // moment.
            path = _store.writeNewFile(list, text);
            if (path && !_removeFile(record.path))
                outcome.messages.push_back(editmessages::oldFileStayed(record.state->name));
        } else if (_store.replaceFile(record.path, list, text)) {
            path = record.path;
        }
    }
    if (!path) {
        outcome.messages.push_back(notSaved(record.state->name));
        return false;
    }
    _palettes.noteWritten(id, *path, state, text);
    return true;
}

bool StepWriter::keepOriginal(const PaletteRecord& record, EditOutcome& outcome)
{
    const auto& bytes = record.state->bytes;
    if (bytes == nullptr) return true;
    const std::string path = record.path + "~";
    if (_files.contentsAtPath(path) == *bytes) return true;
    if (!_files.writeAtomically(path, *bytes)) return false;
    outcome.messages.push_back(editmessages::keptOriginal(record.state->name));
    return true;
}

Message StepWriter::notSaved(std::u16string_view name) const
{
    return editmessages::notSaved(name, _store.folders().front());
}

Message StepWriter::notRemoved(std::u16string_view name) const
{
    return editmessages::notRemoved(name, _store.folders().front());
}

}  // namespace vantorel
