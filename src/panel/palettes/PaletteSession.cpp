#include "panel/palettes/PaletteSession.h"

#include "hosts/qt/QtColors.h"

#include <QFile>

namespace vantorel {

PaletteSession::PaletteSession(HostFiles& files, PaletteFileStore& store)
    : _editor(
          files, store,
          [](const std::string& path) { return QFile::remove(QFile::decodeName(path.c_str())); },
          PaletteEditor::FirstLook::later)
{
}

QString PaletteSession::listName() const
{
    const EditablePalette* shown = list();
    return shown != nullptr ? qStringFrom(shown->name) : QString();
}

const PaletteEntries& PaletteSession::entriesSoFar()
{
    const EntriesReader* reader = _editor.readerOf(_list);
    return reader != nullptr ? reader->entries() : entries();
}

int PaletteSession::percentRead() const
{
    const EntriesReader* reader = _editor.readerOf(_list);
    if (reader == nullptr || reader->allBytes() == 0) return 100;
    return static_cast<int>(100 * reader->bytesRead() / reader->allBytes());
}

EditOutcome PaletteSession::addList(const std::u16string& name, const PaletteEntries& entries)
{
    return take(_editor.add(name, entries));
}

EditOutcome PaletteSession::renameList(const std::u16string& name)
{
    return take(_editor.rename(_list, name));
}

EditOutcome PaletteSession::removeList()
{
    return take(_editor.remove(_list));
}

void PaletteSession::edit(EntryEdit edit)
{
    const std::vector<std::size_t> places = edit.places;
    std::vector<std::u16string> names;
    names.reserve(places.size());
    for (const std::size_t place : places)
        names.push_back(edit.entries[place].name());
    const EditOutcome outcome = _editor.setEntries(_list, std::move(edit.entries));
    // Merged changes of other programs may have moved the entries.
    std::vector<std::size_t> now;
    const PaletteEntries& after = _editor.entriesOf(outcome.list);
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (places[i] < after.size() && after[places[i]].name() == names[i]) {
            now.push_back(places[i]);
        }
    }
    take(outcome, now);
}

void PaletteSession::undo()
{
    take(_editor.undo());
}

void PaletteSession::redo()
{
    take(_editor.redo());
}

EditOutcome PaletteSession::take(const EditOutcome& outcome, const std::vector<std::size_t>& places)
{
    if (outcome.done || _editor.palette(outcome.list) != nullptr) _list = outcome.list;
    emit stepTaken(outcome, places);
    return outcome;
}

}  // namespace vantorel
