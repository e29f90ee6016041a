#include "panel/palettes/PalettesPage.h"

#include "hosts/qt/QtView.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/PanelIcons.h"

namespace vantorel {

PalettesPage::PalettesPage(HostFiles& files, PaletteFileStore& store) : _files(files), _store(store)
{
}

PalettesPage::~PalettesPage()
{
    delete _widget.data();
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

void PalettesPage::show(HostView& holder)
{
    if (!_widget) {
        _widget = new PalettesWidget(_files, _store);
        connect(_widget, &PalettesWidget::colorChosen, this, [this](const HostColor& chosen) {
            // The entries of a list have no opacity, so the panel's stays.
            emit colorChosen(chosen.colorWithAlphaComponent(_color.alphaComponent()));
        });
    }
    _widget->setParent(widgetOf(&holder));
    _widget->show();
    resize(holder.frame().size());
    _widget->setWatching(true);
}

void PalettesPage::hide()
{
    if (!_widget) return;
    _widget->setWatching(false);
    _widget->hide();
    _widget->setParent(nullptr);
}

void PalettesPage::resize(HostSize size)
{
    if (!_widget) return;
    _widget->setGeometry(0, 0, scaled(size.width), scaled(size.height));
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

}  // namespace vantorel
