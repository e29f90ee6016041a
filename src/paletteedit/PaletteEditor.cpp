#include "paletteedit/PaletteEditor.h"

#include "paletteedit/EditMessages.h"
#include "paletteedit/FreeNames.h"

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
    : _store(store), _known(files, store), _writer(files, store, _known, std::move(removeFile))
{
    if (firstLook == FirstLook::now) _known.lookAgain();
}

std::vector<EditablePalette> PaletteEditor::refresh()
{
    beginRefresh();
    continueRefresh(refreshProgress().allFiles);
    return endRefresh();
}

EditOutcome PaletteEditor::add(const std::u16string& name, const PaletteEntries& entries)
{
    const std::u16string wanted = tidyName(name);
    if (wanted.empty()) return {};
    return doFirst({_known.newId(), std::nullopt, stateOf(wanted, entries)});
}

EditOutcome PaletteEditor::rename(PaletteId id, const std::u16string& name)
{
    const PaletteRecord* record = _known.recordOf(id);
    const std::u16string wanted = tidyName(name);
    if (record == nullptr || wanted.empty()) return {};
    static_cast<void>(entriesOf(id));
    if (!record->state || record->state->name == wanted) return {};
    PaletteState after = *record->state;
    after.name = wanted;
    after.bytes = nullptr;
    if (record->isOwn()) return doFirst({id, record->state, after});
    EditOutcome outcome = doFirst({_known.newId(), std::nullopt, after});
    if (outcome.done) {
        outcome.messages.push_back(
            editmessages::copiedFirst(_known.recordOf(outcome.list)->state->name));
    }
    return outcome;
}

EditOutcome PaletteEditor::remove(PaletteId id)
{
    const PaletteRecord* record = _known.recordOf(id);
    if (record == nullptr || !record->isOwn()) return {};
    static_cast<void>(entriesOf(id));
    if (!record->state) return {};
    return doFirst({id, record->state, std::nullopt});
}

EditOutcome PaletteEditor::setEntries(PaletteId id, PaletteEntries entries)
{
    const PaletteRecord* record = _known.recordOf(id);
    if (record == nullptr) return {};
    const PaletteEntries& old = entriesOf(id);
    if (!record->state || old == entries) return {false, id, {}};
    if (record->isOwn()) {
        return doFirst({id, record->state, stateOf(record->state->name, std::move(entries))});
    }
    return copyWith(id, *record, std::move(entries));
}

EditOutcome PaletteEditor::copyWith(PaletteId id, const PaletteRecord& record,
                                    PaletteEntries entries)
{
    // Use the plain name: as soon as the two lists differ, the other program's list is listed under
    // another name.
    std::u16string name = tidyName(record.state->name);
    const auto isOwnOfName = [&name](const EditablePalette& listed) {
        return listed.isOwn() && listed.name == name;
    };
    if (name.empty() || std::any_of(palettes().begin(), palettes().end(), isOwnOfName)) {
        name = _known.freeName(name.empty() ? EntriesReader::fallbackName(record.path) : name, 0,
                               KnownPalettes::Among::allLists);
    }
    EditOutcome outcome;
    const auto lock = beginStep(id, record.state->name, outcome);
    if (!lock) return outcome;
    auto done = _writer.write({_known.newId(), std::nullopt, stateOf(name, std::move(entries))},
                              StepWriter::Occasion::first, outcome);
    _known.lookAgain();
    if (!done) return outcome;
    outcome.done = true;
    outcome.list = done->list;
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
        _known.lookAgain();
        const std::u16string free =
            _known.freeName(wanted.after->name, step.list, KnownPalettes::Among::allLists);
        if (free != wanted.after->name) outcome.messages.push_back(editmessages::otherName(free));
        wanted.after->name = free;
    }
    auto done = _writer.write(wanted, StepWriter::Occasion::first, outcome);
    _known.lookAgain();
    if (!done) {
        outcome.list = ifListed(step.list);
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
    const auto done = _writer.write(step, StepWriter::Occasion::again, outcome);
    _known.lookAgain();
    outcome.done = done.has_value();
    outcome.list = ifListed(step.list);
    if (!done) return outcome;
    (_history.*move)();
    return outcome;
}

std::shared_ptr<HostFolderLock> PaletteEditor::beginStep(PaletteId id, const std::u16string& name,
                                                         EditOutcome& outcome)
{
    auto lock = _store.lockOwnFolder();
    if (lock) return lock;
    outcome.list = ifListed(id);
    outcome.messages.push_back(editmessages::locked(name));
    return nullptr;
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
