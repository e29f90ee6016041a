#include "panel/palettes/PaletteEntriesView.h"

#include "hosts/qt/ClipboardLineEdit.h"
#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"

#include <QApplication>
#include <QDragMoveEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>

namespace vantorel {
namespace {

// In points.
constexpr int rowHeight = 22;
constexpr int swatchWidth = 26;
constexpr int swatchInset = 3;
constexpr int gap = 6;
/// Narrower rows have no room for the hex code.
constexpr int leastWidthWithHex = 150;
/// The maximum length of a typed name. Files may have longer ones.
constexpr int longestTypedName = 200;

class EntryDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override
    {
        return {scaled(60), scaled(rowHeight)};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& given,
               const QModelIndex& index) const override
    {
        QStyleOptionViewItem option = given;
        initStyleOption(&option, index);
        const QWidget* view = option.widget;
        view->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, view);

        const bool isSelected = option.state.testFlag(QStyle::State_Selected);
        const bool isActive = option.state.testFlag(QStyle::State_Active);
        const auto group = isActive ? QPalette::Active : QPalette::Inactive;
        const QColor text =
            option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
        const QColor faint =
            isSelected ? text : option.palette.color(group, QPalette::PlaceholderText);

        const QRect swatch = mirrored(option, swatchRect(option.rect));
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        QColor edge = option.palette.color(QPalette::Text);
        edge.setAlpha(90);
        painter->setPen(QPen(isSelected ? text : edge, 1));
        painter->setBrush(index.data(PaletteEntriesModel::colorRole).value<QColor>());
        painter->drawRoundedRect(QRectF(swatch).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);

        QRect name = nameRect(option.rect);
        const auto level = static_cast<int>(Qt::AlignVCenter);
        if (option.rect.width() >= scaled(leastWidthWithHex)) {
            painter->setFont(fontOfSize(10));
            painter->setPen(faint);
            const QString hex = index.data(PaletteEntriesModel::hexRole).toString();
            const int width = painter->fontMetrics().horizontalAdvance(QStringLiteral("#DDDDDD"));
            const QRect place(name.right() - width, name.top(), width, name.height());
            painter->drawText(mirrored(option, place), level | Qt::AlignTrailing, hex);
            name.setRight(place.left() - scaled(gap));
        }
        painter->setFont(option.font);
        painter->setPen(text);
        painter->drawText(
            mirrored(option, name), level | Qt::AlignLeading | Qt::TextSingleLine,
            painter->fontMetrics().elidedText(option.text, Qt::ElideRight, name.width()));
        painter->restore();
        if (option.state.testFlag(QStyle::State_HasFocus)) {
            QStyleOptionFocusRect focus;
            focus.QStyleOption::operator=(option);
            focus.backgroundColor =
                option.palette.color(isSelected ? QPalette::Highlight : QPalette::Base);
            view->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, view);
        }
    }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex&) const override
    {
        auto* field = new ClipboardLineEdit(parent);
        field->setObjectName(QStringLiteral("paletteEntryName"));
        field->setMaxLength(longestTypedName);
        field->setAccessibleName(PaletteEntriesView::tr("Colour name"));
        return field;
    }

    void setEditorData(QWidget* editor, const QModelIndex& index) const override
    {
        auto* field = static_cast<QLineEdit*>(editor);
        const QString name = index.data(Qt::EditRole).toString();
        // A name from a file may be longer than the maximum and must not be truncated.
        if (name.size() > field->maxLength()) field->setMaxLength(static_cast<int>(name.size()));
        field->setText(name);
        field->selectAll();
    }

    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex&) const override
    {
        editor->setGeometry(mirrored(option, nameRect(option.rect)));
    }

private:
    [[nodiscard]] static QRect swatchRect(const QRect& row)
    {
        return {row.left() + scaled(gap), row.top() + scaled(swatchInset), scaled(swatchWidth),
                row.height() - 2 * scaled(swatchInset)};
    }
    [[nodiscard]] static QRect nameRect(const QRect& row)
    {
        const int left = swatchRect(row).right() + scaled(gap);
        return {left, row.top(), row.right() - scaled(gap) - left, row.height()};
    }
    [[nodiscard]] static QRect mirrored(const QStyleOptionViewItem& option, const QRect& rect)
    {
        return QStyle::visualRect(option.direction, option.rect, rect);
    }
};

}  // namespace

PaletteEntriesView::PaletteEntriesView(QWidget* parent)
    : QListView(parent), _model(*new PaletteEntriesModel(this)), _note(new PlainLabel(viewport()))
{
    setObjectName(QStringLiteral("paletteEntries"));
    setModel(&_model);
    setItemDelegate(new EntryDelegate(this));
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->setSingleStep(scaled(rowHeight));
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

void PaletteEntriesView::keyPressEvent(QKeyEvent* event)
{
    const bool takes = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                       event->key() == Qt::Key_Space;
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (takes && isPlain && currentIndex().isValid() && state() != EditingState) {
        emit colorChosen(currentPlace());
        return;
    }
    QListView::keyPressEvent(event);
}

int PaletteEntriesView::dropRowAt(QPoint point) const
{
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
    const int count = _model.rowCount();
    const int y = count == 0         ? 0
                  : _dropRow < count ? visualRect(_model.index(_dropRow)).top()
                                     : visualRect(_model.index(count - 1)).bottom();
    painter.fillRect(QRect(0, std::max(y - 1, 0), viewport()->width(), 2),
                     palette().color(QPalette::Highlight));
}

}  // namespace vantorel
