#include "hosts/qt/QtItemList.h"

#include "hosts/qt/DisplayNames.h"
#include "hosts/qt/QtCanvas.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtVersions.h"
#include "hosts/qt/TextScale.h"

#include <QAbstractListModel>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QStyleHints>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

namespace vantorel {
namespace {

constexpr int rowPadding = 3;
constexpr int besideText = 16;
constexpr int besideImage = 6;

PixelRect pixelRect(const QRect& rect)
{
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

}  // namespace

/// The items, read when the view asks for them.
class QtItemList::Model final : public QAbstractListModel {
public:
    Model(HostMenu items, int selected, const QWidget& shownIn)
        : _items(std::move(items)), _selected(selected), _shownIn(shownIn)
    {
    }

    [[nodiscard]] const HostMenu& items() const { return _items; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(_items.size());
    }

    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        if (!index.isValid() || item(index).separator) return Qt::NoItemFlags;
        return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    }

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override
    {
        if (!index.isValid()) return {};
        const HostMenuItem& shown = item(index);
        switch (role) {
            case Qt::DisplayRole:
                return shownTitle(shown);
            case Qt::AccessibleDescriptionRole:
                return shown.separator ? QStringLiteral("separator") : QString();
            case pictureRole:
                if (!shown.image) return {};
                return pixmapOfImage(*shown.image, _shownIn.devicePixelRatioF());
            case Qt::FontRole: {
                if (index.row() != _selected) return {};
                QFont font = _shownIn.font();
                font.setBold(true);
                return font;
            }
            default:
                return {};
        }
    }

private:
    [[nodiscard]] const HostMenuItem& item(const QModelIndex& index) const
    {
        return _items[static_cast<std::size_t>(index.row())];
    }

    HostMenu _items;
    int _selected;
    const QWidget& _shownIn;
};

/// Paints rows as in a menu; a separator is a horizontal line. Pictures are painted directly: of
/// icons Qt would keep the name until the program exits.
class QtItemList::RowPainter final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        if (index.flags() != Qt::NoItemFlags) {
            QStyledItemDelegate::paint(painter, option, index);
            paintPicture(*painter, option, index);
            return;
        }
        painter->setPen(option.palette.color(QPalette::Mid));
        const int y = option.rect.center().y();
        painter->drawLine(option.rect.left() + rowPadding, y, option.rect.right() - rowPadding, y);
    }

    /// All rows are equal, so the view measures only one.
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex&) const override
    {
        return {0, popUpRowHeight(option.fontMetrics.height(), textScale())};
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const HostMenu& items = static_cast<const Model*>(index.model())->items();
        if (items[static_cast<std::size_t>(index.row())].image) {
            option->features |= QStyleOptionViewItem::HasDecoration;
        }
    }

private:
    void paintPicture(QPainter& painter, const QStyleOptionViewItem& option,
                      const QModelIndex& index) const
    {
        const auto picture = index.data(pictureRole).value<QPixmap>();
        if (picture.isNull()) return;
        QStyleOptionViewItem shown(option);
        initStyleOption(&shown, index);
        const QRect room = shown.widget->style()->subElementRect(QStyle::SE_ItemViewItemDecoration,
                                                                 &shown, shown.widget);
        drawInMiddle(painter, picture, room);
    }
};

QtItemList::QtItemList(const HostMenu& items, int selected, QWidget& parent)
    : QFrame(&parent, Qt::Popup),
      _model(new Model(items, selected, *this)),
      _view(new QListView(this)),
      _release(QGuiApplication::styleHints()->startDragDistance())
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_X11NetWmWindowTypeCombo);
    setFont(parent.font());
    setFrameShape(QFrame::StyledPanel);
    setFrameShadow(QFrame::Plain);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(_view);

    _model->setParent(this);
    _view->setFont(font());
    _view->setFrameShape(QFrame::NoFrame);
    _view->setUniformItemSizes(true);
    _view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    _view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    _view->setMouseTracking(true);
    _view->setAccessibleName(parent.accessibleName());
    _view->setTextElideMode(Qt::ElideRight);
    const auto image = std::find_if(items.begin(), items.end(), [](const HostMenuItem& item) {
        return item.image.has_value();
    });
    if (image != items.end()) {
        _view->setIconSize(pictureSize(*image->image).toSize());
    }
    _view->setItemDelegate(new RowPainter(_view));
    _view->setModel(_model);
    _view->installEventFilter(this);
    _view->viewport()->installEventFilter(this);
    setFocusProxy(_view);
    const QModelIndex current = _model->index(std::max(selected, 0));
    _view->setCurrentIndex(current);
}

int QtItemList::wantedWidth() const
{
    int width = 0;
    for (const HostMenuItem* item : itemsToMeasure(_model->items())) {
        const QString start = shownTitle(*item).left(widestPopUpList);
        width = std::max(width, fontMetrics().horizontalAdvance(start));
        if (width >= widestPopUpList) break;
    }
    const int imageWidth =
        _view->iconSize().isValid() ? _view->iconSize().width() + besideImage : 0;
    const int scrollBar = _view->verticalScrollBar()->sizeHint().width();
    return std::min(width + imageWidth + besideText + scrollBar, widestPopUpList);
}

void QtItemList::openBeside(const QRect& button)
{
    const QScreen* screen = QGuiApplication::screenAt(button.center());
    if (screen == nullptr) screen = QGuiApplication::primaryScreen();
    constexpr int frames = 4;
    const PixelRect place = placeOfPopUpList({.button = pixelRect(button),
                                              .room = pixelRect(screen->availableGeometry()),
                                              .rows = _model->rowCount(),
                                              .rowHeight = _view->sizeHintForRow(0),
                                              .width = wantedWidth(),
                                              .frames = frames});
    setGeometry(place.x, place.y, place.width, place.height);
    // Qt from 6.8 lets a Wayland compositor keep the list off this rectangle of the parent's
    // window.
    create();
    const QPoint corner = parentWidget()->window()->mapFromGlobal(button.topLeft());
    windowHandle()->setProperty("_q_waylandPopupAnchorRect", QRect(corner, button.size()));
    show();
    _view->setFocus(Qt::PopupFocusReason);
    _view->scrollTo(_view->currentIndex(), QAbstractItemView::PositionAtCenter);
}

void QtItemList::choose(const QModelIndex& row)
{
    if (!row.isValid() || row.flags() == Qt::NoItemFlags) return;
    const HostMenuItem item = _model->items()[static_cast<std::size_t>(row.row())];
    const int index = row.row();
    close();
    emit chosen(item, index);
}

bool QtItemList::handleKey(int key)
{
    switch (key) {
        case Qt::Key_Escape:
            close();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Select:
            choose(_view->currentIndex());
            return true;
        default:
            return false;
    }
}

bool QtItemList::handleMouse(QEvent* event)
{
    const auto* mouse = static_cast<QMouseEvent*>(event);
    const QModelIndex row = _view->indexAt(positionOf(*mouse).toPoint());
    switch (event->type()) {
        case QEvent::MouseMove:
            if (const QPoint at = positionOf(*mouse).toPoint();
                _view->viewport()->rect().contains(at)) {
                _release.pointerMovedInside({double(at.x()), double(at.y())});
                if (row.isValid() && row.flags() != Qt::NoItemFlags) _view->setCurrentIndex(row);
            }
            return true;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            _release.buttonWasPressed();
            return true;
        default:
            if (_release.releaseChooses() && mouse->button() == Qt::LeftButton) choose(row);
            return true;
    }
}

bool QtItemList::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
        case QEvent::KeyPress:
            if (handleKey(static_cast<QKeyEvent*>(event)->key())) return true;
            break;
        case QEvent::MouseMove:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
            if (watched == _view->viewport()) return handleMouse(event);
            break;
        default:
            break;
    }
    return QFrame::eventFilter(watched, event);
}

}  // namespace vantorel
