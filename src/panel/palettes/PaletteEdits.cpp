#include "panel/palettes/PaletteEdits.h"

#include "hosts/qt/QtColors.h"
#include "paletteedit/FreeNames.h"
#include "paletteedit/ProposedName.h"
#include "result/HarmlessLine.h"

#include <algorithm>

namespace vantorel {

PaletteEdits::PaletteEdits(QWidget& page, PaletteSession& session, PaletteFilter& filter,
                           PaletteEntriesView& view, MessageLabel& message)
    : QObject(&page), _session(session), _filter(filter), _view(view), _message(message)
{
}

void PaletteEdits::add(std::size_t before, const PaletteEntries& entries)
{
    if (_session.list() == nullptr) {
        _session.addList(u16From(tr("My colours")), {});
        if (_session.list() == nullptr) return;
    }
    _filter.clear();
    _session.edit(withInserted(_session.entries(), before, entries));
}

void PaletteEdits::addPanelColor()
{
    if (!_color.calibratedRGB()) {
        _message.showMessage({phrase("a pattern cannot be added to a list")},
                             MessageLabel::Kind::failure);
        return;
    }
    const std::size_t before = placeForMore();
    const bool canUndo = _session.canUndo();
    const std::size_t count = _session.entries().size();
    add(before, {PaletteEntry(proposedName(_color, _session.entries()), _color)});
    const auto added = _view.selectedPlaces();
    if ((!canUndo && !_session.canUndo()) || _session.entries().size() <= count ||
        added.size() != 1)
        return;
    if (_color.alphaComponent() < 1 && _message.text().isEmpty()) {
        _message.showMessage({phrase("lists store no opacity, so the colour was added without it")},
                             MessageLabel::Kind::news);
    }
    _view.setFocus();
    _view.renameAt(added.front());
}

std::size_t PaletteEdits::placeForMore()
{
    const auto selected = _view.selectedPlaces();
    return selected.empty() ? _session.entries().size() : selected.back() + 1;
}

void PaletteEdits::addColors(const std::vector<HostColor>& colors)
{
    PaletteEntries entries;
    entries.reserve(colors.size());
    for (const HostColor& color : colors)
        entries.emplace_back(hexCodeOf(color), color);
    add(placeForMore(), entries);
}

void PaletteEdits::recolorSelected()
{
    _session.edit(withRecolored(_session.entries(), _view.selectedPlaces(), _color));
}

void PaletteEdits::stepSelected(int direction)
{
    _session.edit(withStepped(_session.entries(), _view.selectedPlaces(), direction));
}

void PaletteEdits::moveSelected(std::size_t before)
{
    _session.edit(withMoved(_session.entries(), _view.selectedPlaces(), before));
}

void PaletteEdits::removeSelected()
{
    const auto places = _view.selectedPlaces();
    if (places.empty()) return;
    const std::size_t first = places.front();
    _session.edit(withRemoved(_session.entries(), places));
    // Selects the next one, so that Delete can be repeated.
    if (!_session.entries().empty())
        _view.selectPlaces({std::min(first, _session.entries().size() - 1)});
}

void PaletteEdits::beginRename()
{
    const auto places = _view.selectedPlaces();
    if (!places.empty()) _view.renameAt(places.front());
}

void PaletteEdits::rename(std::size_t place, const QString& name)
{
    EntryEdit edit = withRenamed(_session.entries(), place, u16From(name));
    if (edit.places.empty()) return;
    const std::u16string given = edit.entries[place].name();
    const bool isOther = !tidyName(u16From(name)).empty() && given != tidyName(u16From(name));
    _session.edit(std::move(edit));
    if (isOther && _message.text().isEmpty()) {
        _message.showMessage({phrase("the name was taken, so the colour is called \"%1\"",
                                     excerpt(qStringFrom(given).toStdString()))},
                             MessageLabel::Kind::news);
    }
}

void PaletteEdits::takeDrop(const ColorOffer& offer, std::size_t before)
{
    if (offer.color) {
        add(before, {PaletteEntry(proposedName(*offer.color, _session.entries()), *offer.color)});
    }
    if (!offer.message.isEmpty())
        _message.showMessage(offer.message,
                             offer.color ? MessageLabel::Kind::news : MessageLabel::Kind::failure);
}

}  // namespace vantorel
