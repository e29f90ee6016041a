#include "panel/palettes/PaletteFilter.h"

#include "hosts/qt/QtColors.h"

#include <QKeyEvent>

namespace vantorel {

PaletteFilter::PaletteFilter(QWidget* parent, PaletteEntriesView& view)
    : ClipboardLineEdit(parent), _view(view)
{
    setObjectName(QStringLiteral("paletteFilter"));
    setPlaceholderText(tr("Find a name or hex code"));
    setAccessibleName(tr("Find a name or hex code"));
    setToolTip(tr("Shows only colours with this in their name or hex code (Ctrl+F)"));
    setClearButtonEnabled(true);
    setFont(fontOfSize(11));
    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
        const auto selected = _view.selectedPlaces();
        _view.entriesModel().setFilter(text.trimmed());
        _view.selectPlaces(selected);
        if (text.isEmpty() && !hasFocus()) hide();
        emit filtered();
    });
    hide();
}

void PaletteFilter::open()
{
    show();
    setFocus();
    selectAll();
}

void PaletteFilter::focusOutEvent(QFocusEvent* event)
{
    ClipboardLineEdit::focusOutEvent(event);
    // The window, or a menu of the field, will give the focus back.
    const bool isForAWhile =
        event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
    if (text().isEmpty() && !isForAWhile) hide();
}

bool PaletteFilter::performKey(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Escape) {
        if (text().isEmpty()) {
            _view.setFocus();
        } else {
            clear();
        }
        return true;
    }
    if (event.key() == Qt::Key_Down && _view.entriesModel().rowCount() > 0) {
        _view.setFocus();
        if (!_view.currentIndex().isValid()) _view.setCurrentIndex(_view.entriesModel().index(0));
        return true;
    }
    return false;
}

}  // namespace vantorel
