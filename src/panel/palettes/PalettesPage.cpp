#include "panel/palettes/PalettesPage.h"

#include "panel/widgets/PanelIcons.h"

#include <algorithm>

namespace vantorel {

PalettesPage::PalettesPage(HostFiles& files, PaletteFileStore& store) : _files(files), _store(store)
{
}

QString PalettesPage::name() const
{
    return tr("Palettes");
}

QString PalettesPage::toolTip() const
{
    return tr("Palettes: edit the lists of named colours");
}

QIcon PalettesPage::icon() const
{
    return palettesPageIcon();
}

QSize PalettesPage::minimumSize() const
{
    return {212, 220};
}

QWidget* PalettesPage::makeWidget()
{
    _widget = new PalettesWidget(_files, _store);
    connect(_widget, &PalettesWidget::colorChosen, this, [this](const HostColor& chosen) {
        // The entries of a list have no opacity, so the panel's stays.
        emit colorChosen(chosen.colorWithAlphaComponent(_color.alphaComponent()));
    });
    _widget->setArrangement(_arrangement);
    connect(_widget, &PalettesWidget::arrangementChosen, this, &PalettesPage::setArrangement);
    connect(_widget, &PalettesWidget::picksRequested, this, &PalettesPage::picksRequested);
    return _widget;
}

void PalettesPage::addColors(const std::vector<HostColor>& colors)
{
    if (_widget) _widget->addColors(colors);
}

void PalettesPage::showPicture(const QImage& picture)
{
    if (_widget) _widget->showPicture(picture, {});
}

void PalettesPage::takeDropped(const QMimeData& dropped)
{
    if (_widget) _widget->takeDropped(dropped);
}

void PalettesPage::setArrangement(PaletteEntriesView::Arrangement arrangement)
{
    if (arrangement == _arrangement) return;
    _arrangement = arrangement;
    if (_widget) _widget->setArrangement(arrangement);
    emit arrangementChanged();
}

void PalettesPage::show(HostView& holder)
{
    WidgetPage::show(holder);
    _widget->setWatching(true);
}

void PalettesPage::hide()
{
    if (_widget) _widget->setWatching(false);
    WidgetPage::hide();
}

QString PalettesPage::listName() const
{
    return _widget ? _widget->listName() : QString();
}

void PalettesPage::setColor(const HostColor& color)
{
    _color = color;
    if (_widget) _widget->setColor(color);
}

void PalettesPage::finishEditing()
{
    if (_widget) _widget->finishEditing();
}

bool PalettesPage::performKey(const QKeyEvent& event)
{
    return _widget && _widget->performKey(event);
}

void PalettesPage::keepAsList(const QString& name, const std::vector<HostColor>& colors)
{
    if (!_widget) return;
    PaletteEntries entries;
    for (const HostColor& color : colors) {
        const PaletteEntry entry(hexCodeOf(color), color);
        // Colours that differ in their opacity are one in a list.
        if (std::find(entries.begin(), entries.end(), entry) == entries.end())
            entries.push_back(entry);
    }
    _widget->startList(name, entries);
}

std::vector<ShortcutRow> PalettesPage::shortcuts() const
{
    // The page itself may not have been made yet.
    QWidget standIn;
    const PaletteCommands commands(standIn);
    return commands.shortcuts();
}

}  // namespace vantorel
