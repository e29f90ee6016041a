#include "panel/palettes/PaletteEntriesView.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"
#include "panel/palettes/PaletteControls.h"
#include "panel/palettes/PaletteEntryDelegates.h"

#include <QApplication>
#include <QDragMoveEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace vantorel {
namespace {

/// Whether a key searches for a name.
bool isLetter(const QKeyEvent& event)
{
    constexpr auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return (event.modifiers() & commands) == 0 && !event.text().isEmpty() &&
           event.text().front().isPrint();
}

}  // namespace

PaletteEntriesView::PaletteEntriesView(QWidget* parent)
    : QListView(parent),
      _model(*new PaletteEntriesModel(this)),
      _rows(new PaletteRowDelegate(this)),
      _cells(new PaletteCellDelegate(this)),
      _note(new PlainLabel(viewport()))
{
    setObjectName(QStringLiteral("paletteEntries"));
    setModel(&_model);
    setMouseTracking(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setDragEnabled(true);
    setAcceptDrops(true);
    // The base class draws its line only for moves that it does itself.
    setDropIndicatorShown(false);
    setFont(fontOfSize(12));
    setAccessibleName(tr("Colours of the list"));

    _note->setObjectName(QStringLiteral("paletteEmptyNote"));
    _note->setFont(fontOfSize(11));
    _note->setWordWrap(true);
    _note->setAlignment(Qt::AlignCenter);
    _note->setForegroundRole(QPalette::PlaceholderText);
    _note->setAttribute(Qt::WA_TransparentForMouseEvents);
    arrange();
    verticalScrollBar()->parentWidget()->installEventFilter(this);
    connect(this, &QAbstractItemView::entered, this, [this](const QModelIndex& under) {
        _hovered = under;
        showNamed();
    });
    connect(this, &QAbstractItemView::viewportEntered, this, [this] {
        _hovered = QModelIndex();
        showNamed();
    });
    connect(&_model, &QAbstractItemModel::dataChanged, this, &PaletteEntriesView::showNamed);
    connect(&_model, &QAbstractItemModel::modelReset, this, &PaletteEntriesView::showNamed);
}

void PaletteEntriesView::setArrangement(Arrangement arrangement)
{
    if (arrangement == _arrangement) return;
    _arrangement = arrangement;
    arrange();
    if (currentIndex().isValid()) scrollTo(currentIndex());
    showNamed();
}

void PaletteEntriesView::arrange()
{
    const bool isGrid = _arrangement == Arrangement::grid;
    // An open field belongs to the delegate that is replaced.
    if (state() == EditingState) setFocus();
    setItemDelegate(isGrid ? static_cast<QAbstractItemDelegate*>(_cells) : _rows);
    setUniformItemSizes(!isGrid);
    setFlow(isGrid ? LeftToRight : TopToBottom);
    setWrapping(isGrid);
    setResizeMode(isGrid ? Adjust : Fixed);
    setFrameShape(isGrid ? NoFrame : StyledPanel);
    viewport()->setBackgroundRole(isGrid ? QPalette::Window : QPalette::Base);
    // The scroll bar of a grid is always there, in the margin of the page: where it came and went,
    // rows would get higher by what it leaves, and need it again.
    setVerticalScrollBarPolicy(isGrid ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAsNeeded);
    // It has room to spare at its sides, which the swatches may cover.
    constexpr int mostOverlap = 6;
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, verticalScrollBar());
    const int beside = std::max(scaled(palettecontrols::pageMargin) - bar, -mostOverlap);
    // Qt breaks a row that fills the width exactly.
    setViewportMargins(0, 0, isGrid ? beside - 1 : 0, 0);
    if (isGrid) viewport()->raise();
    scheduleDelayedItemsLayout();
    setDropRow(-1);
}

PaletteGrid PaletteEntriesView::grid() const
{
    return PaletteGrid(viewport()->width() - 1);
}

void PaletteEntriesView::updateGeometries()
{
    QListView::updateGeometries();
    verticalScrollBar()->setSingleStep(_arrangement == Arrangement::grid
                                           ? grid().rowHeight()
                                           : scaled(PaletteRowDelegate::rowHeight));
}

bool PaletteEntriesView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ZOrderChange && _arrangement == Arrangement::grid)
        viewport()->raise();
    return QListView::eventFilter(watched, event);
}

void PaletteEntriesView::showNamed()
{
    const QModelIndex named = _hovered.isValid() ? QModelIndex(_hovered) : currentIndex();
    emit namedEntryChanged(named.isValid() && _arrangement == Arrangement::grid
                               ? named.data(Qt::AccessibleTextRole).toString()
                               : QString());
}

void PaletteEntriesView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QListView::currentChanged(current, previous);
    showNamed();
}

bool PaletteEntriesView::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::Leave) {
        _hovered = QModelIndex();
        showNamed();
    }
    return QListView::viewportEvent(event);
}

QModelIndex PaletteEntriesView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const int count = _model.rowCount();
    if (_arrangement == Arrangement::list || count == 0 || !currentIndex().isValid())
        return QListView::moveCursor(action, modifiers);
    const PaletteGrid places = grid();
    const int screen = std::max(1, viewport()->height() / places.rowHeight());
    const int row = currentIndex().row();
    const auto beside = [&](int step) {
        return _model.index(std::clamp(row + step, 0, count - 1));
    };
    const auto below = [&](int rows) { return _model.index(places.entryBelow(row, rows, count)); };
    switch (action) {
        case MoveLeft:
            return beside(isRightToLeft() ? 1 : -1);
        case MoveRight:
            return beside(isRightToLeft() ? -1 : 1);
        case MovePrevious:
            return beside(-1);
        case MoveNext:
            return beside(1);
        case MoveUp:
            return below(-1);
        case MoveDown:
            return below(1);
        case MovePageUp:
            return below(-screen);
        case MovePageDown:
            return below(screen);
        case MoveHome:
            return _model.index(0);
        case MoveEnd:
            return _model.index(count - 1);
    }
    return currentIndex();
}

void PaletteEntriesView::setNote(const QString& note)
{
    _note->setText(note);
    _note->setVisible(!note.isEmpty());
    placeNote();
}

void PaletteEntriesView::placeNote()
{
    _note->setGeometry(viewport()->rect().adjusted(scaled(8), 0, -scaled(8), 0));
}

void PaletteEntriesView::resizeEvent(QResizeEvent* event)
{
    QListView::resizeEvent(event);
    placeNote();
}

std::vector<std::size_t> PaletteEntriesView::selectedPlaces() const
{
    std::vector<std::size_t> places;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            places.push_back(_model.placeOfRow(row));
    }
    std::sort(places.begin(), places.end());
    return places;
}

void PaletteEntriesView::selectPlaces(const std::vector<std::size_t>& places)
{
    QItemSelection selection;
    int first = -1;
    int start = -1;
    int last = -1;
    // Selects runs of rows: a separate range for each of thousands of rows would slow down every
    // step.
    const auto addRun = [&] {
        if (start >= 0) selection.select(_model.index(start), _model.index(last));
    };
    for (const std::size_t place : places) {
        const int row = _model.rowOfPlace(place);
        if (row < 0) continue;
        if (first < 0) first = row;
        if (start < 0 || row != last + 1) {
            addRun();
            start = row;
        }
        last = row;
    }
    addRun();
    if (first >= 0) {
        selectionModel()->setCurrentIndex(_model.index(first), QItemSelectionModel::NoUpdate);
        scrollTo(_model.index(first));
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

std::size_t PaletteEntriesView::currentPlace() const
{
    const QModelIndex current = currentIndex();
    return current.isValid() ? _model.placeOfRow(current.row()) : _model.entries().size();
}

void PaletteEntriesView::renameAt(std::size_t place)
{
    const int row = _model.rowOfPlace(place);
    if (row < 0) return;
    // Not `setCurrentIndex`, which depends on the currently pressed modifier keys.
    selectionModel()->setCurrentIndex(_model.index(row), QItemSelectionModel::ClearAndSelect);
    edit(_model.index(row));
}

void PaletteEntriesView::mousePressEvent(QMouseEvent* event)
{
    _pressed =
        event->button() == Qt::LeftButton ? indexAt(event->position().toPoint()) : QModelIndex();
    QListView::mousePressEvent(event);
}

void PaletteEntriesView::mouseReleaseEvent(QMouseEvent* event)
{
    const bool isPlain = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier;
    const QModelIndex released = indexAt(event->position().toPoint());
    const bool wasDragged = state() == DraggingState || state() == DragSelectingState;
    QListView::mouseReleaseEvent(event);
    const bool isClick = isPlain && released.isValid() && _pressed == released && !wasDragged;
    _pressed = QModelIndex();
    if (isClick) emit colorChosen(_model.placeOfRow(released.row()));
}

bool PaletteEntriesView::continuesSearch(const QKeyEvent& event) const
{
    return isLetter(event) && state() != EditingState && _lastLetter.isValid() &&
           _lastLetter.elapsed() < QApplication::keyboardInputInterval();
}

bool PaletteEntriesView::event(QEvent* event)
{
    // A single letter may be a shortcut of the panel, but not within a word that is typed.
    if (event->type() == QEvent::ShortcutOverride &&
        continuesSearch(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QListView::event(event);
}

void PaletteEntriesView::keyPressEvent(QKeyEvent* event)
{
    const bool takes = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                       event->key() == Qt::Key_Space;
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool goesOn = continuesSearch(*event);
    if (goesOn || (isLetter(*event) && !takes)) _lastLetter.start();
    if (goesOn && event->key() == Qt::Key_Space) {
        keyboardSearch(event->text());
        return;
    }
    if (takes && isPlain && currentIndex().isValid() && state() != EditingState) {
        emit colorChosen(currentPlace());
        return;
    }
    QListView::keyPressEvent(event);
}

int PaletteEntriesView::dropRowAt(QPoint point) const
{
    if (_arrangement == Arrangement::grid) {
        const int x = isRightToLeft() ? viewport()->width() - 1 - point.x() : point.x();
        return std::min(grid().entryBefore({x, point.y() + verticalOffset()}), _model.rowCount());
    }
    const QModelIndex under = indexAt(point);
    if (!under.isValid()) return _model.rowCount();
    const QRect row = visualRect(under);
    return under.row() + (point.y() > row.center().y() ? 1 : 0);
}

std::size_t PaletteEntriesView::placeBeforeRow(int row) const
{
    if (row < _model.rowCount()) return _model.placeOfRow(row);
    // After the last shown entry, which need not be the last of the list if there is a filter.
    return _model.rowCount() > 0 ? _model.placeOfRow(_model.rowCount() - 1) + 1
                                 : _model.entries().size();
}

void PaletteEntriesView::setDropRow(int row)
{
    if (row == _dropRow) return;
    _dropRow = row;
    viewport()->update();
}

void PaletteEntriesView::takeDrag(QDragMoveEvent& event)
{
    const bool isOwn = event.source() == this;
    if (!isOwn && event.mimeData()->hasUrls()) {
        // The page as a whole accepts files.
        event.ignore();
        return;
    }
    if (!isOwn && !mayHoldColor(*event.mimeData())) {
        event.ignore();
        return;
    }
    event.setDropAction(Qt::CopyAction);
    event.accept();
    setDropRow(dropRowAt(event.position().toPoint()));
}

void PaletteEntriesView::dragEnterEvent(QDragEnterEvent* event)
{
    takeDrag(*event);
    // In this state the base class scrolls at the edges.
    if (event->isAccepted()) setState(DraggingState);
}

void PaletteEntriesView::dragMoveEvent(QDragMoveEvent* event)
{
    QListView::dragMoveEvent(event);
    takeDrag(*event);
}

void PaletteEntriesView::dragLeaveEvent(QDragLeaveEvent* event)
{
    setDropRow(-1);
    QListView::dragLeaveEvent(event);
}

void PaletteEntriesView::dropEvent(QDropEvent* event)
{
    const std::size_t before = placeBeforeRow(dropRowAt(event->position().toPoint()));
    setDropRow(-1);
    stopAutoScroll();
    setState(NoState);
    event->setDropAction(Qt::CopyAction);
    if (event->source() == this) {
        event->accept();
        emit selectionMoved(before);
    } else {
        const ColorOffer offer = colorFromMimeData(*event->mimeData());
        event->setAccepted(offer.color.has_value());
        emit colorDropped(offer, before);
    }
}

void PaletteEntriesView::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    if (_dropRow < 0) return;
    QPainter painter(viewport());
    painter.fillRect(dropLine(), palette().color(QPalette::Highlight));
}

QRect PaletteEntriesView::dropLine() const
{
    constexpr int thickness = 2;
    const int count = _model.rowCount();
    const bool isAtEnd = _dropRow >= count;
    if (count == 0) return {0, 0, viewport()->width(), thickness};
    const QRect beside = visualRect(_model.index(isAtEnd ? count - 1 : _dropRow));
    if (_arrangement == Arrangement::list) {
        const int y = isAtEnd ? beside.bottom() : beside.top();
        return {0, std::max(y - 1, 0), viewport()->width(), thickness};
    }
    const PaletteGrid places = grid();
    const QSize size = places.swatchSize(isAtEnd ? count - 1 : _dropRow);
    const QRect swatch =
        QStyle::visualRect(layoutDirection(), beside, QRect(beside.topLeft(), size));
    // In the middle of a gap; at the edges of the view, within it.
    const int outside = (places.gap() + thickness) / 2;
    const bool isLeft = isAtEnd == isRightToLeft();
    const int x = isLeft ? swatch.left() - outside : swatch.right() + 1 + outside - thickness;
    return {std::clamp(x, 0, viewport()->width() - 1 - thickness), swatch.top(), thickness,
            swatch.height()};
}

}  // namespace vantorel
