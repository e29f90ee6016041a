#include "panel/preferences/SnippetRows.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/PanelIcons.h"
#include "panel/widgets/ThemeColors.h"

#include <QDrag>
#include <QDragMoveEvent>
#include <QFontDatabase>
#include <QMimeData>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace vantorel {
namespace {

constexpr int lineRole = Qt::AccessibleDescriptionRole;
// In points.
constexpr int snippetRowHeight = 40;
constexpr int snippetLineSize = 11;
constexpr int gripSize = 16;
constexpr int aroundGrip = 6;

class SnippetRowDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override
    {
        return {scaled(gripSize + 2 * aroundGrip), scaled(snippetRowHeight)};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& given,
               const QModelIndex& index) const override
    {
        QStyleOptionViewItem option = given;
        initStyleOption(&option, index);
        const QWidget* view = option.widget;
        view->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, view);
        const ThemeColors colors = themeColors(option.palette);
        const auto placed = [&option](const QRect& rect) {
            return QStyle::visualRect(option.direction, option.rect, rect);
        };
        const QRect row = option.rect;
        const int grip = scaled(gripSize);
        const int inset = scaled(aroundGrip);
        gripIcon().paint(painter,
                         placed({row.left() + inset, row.center().y() - grip / 2, grip, grip}));
        const int left = row.left() + grip + 2 * inset;
        const QRect texts(left, row.top() + scaled(3), row.right() - left - inset,
                          row.height() - 2 * scaled(3));
        const auto drawLine = [&](const QRect& place, const QString& text) {
            painter->drawText(
                placed(place), Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine,
                painter->fontMetrics().elidedText(text, Qt::ElideRight, place.width()));
        };
        painter->save();
        painter->setFont(option.font);
        painter->setPen(colors.text);
        drawLine(texts.adjusted(0, 0, 0, -texts.height() / 2), option.text);
        QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
        fixed.setPixelSize(scaled(snippetLineSize));
        painter->setFont(fixed);
        painter->setPen(colors.text2);
        drawLine(texts.adjusted(0, texts.height() / 2, 0, 0), index.data(lineRole).toString());
        painter->restore();
        if (!option.state.testFlag(QStyle::State_HasFocus)) return;
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        view->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, view);
    }
};

}  // namespace

SnippetRows::SnippetRows(QWidget* parent) : QListWidget(parent)
{
    setObjectName(QStringLiteral("snippets"));
    setAccessibleName(tr("Snippets"));
    setItemDelegate(new SnippetRowDelegate(this));
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setDragEnabled(true);
    setAcceptDrops(true);
    // A click below the rows would leave none of them chosen.
    connect(this, &QListWidget::itemSelectionChanged, this, [this] {
        if (selectedItems().isEmpty() && currentItem() != nullptr) currentItem()->setSelected(true);
    });
}

void SnippetRows::setSnippets(const SnippetList& snippets, const QStringList& lines)
{
    const QString current = currentItem() != nullptr ? currentItem()->text() : QString();
    const int place = currentRow();
    const QSignalBlocker blocker(this);
    while (count() > static_cast<int>(snippets.size()))
        delete takeItem(count() - 1);
    while (count() < static_cast<int>(snippets.size()))
        addItem(new QListWidgetItem);
    int found = std::min(place, count() - 1);
    for (int i = 0; i < count(); ++i) {
        const QString name =
            qStringFrom(snippets[static_cast<std::size_t>(i)].nameSnippet().value_or(u""));
        item(i)->setText(name);
        item(i)->setData(lineRole, lines.value(i));
        if (name == current) found = i;
    }
    setCurrentRow(found < 0 && count() > 0 ? 0 : found);
}

void SnippetRows::startDrag(Qt::DropActions)
{
    if (currentItem() == nullptr) return;
    _dragged = currentRow();
    auto* drag = new QDrag(this);
    auto* dragged = new QMimeData;
    dragged->setText(currentItem()->data(lineRole).toString());
    drag->setMimeData(dragged);
    drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
    _dragged = -1;
    setGap(-1);
}

int SnippetRows::gapAt(QPoint place) const
{
    const QModelIndex index = indexAt(place);
    if (!index.isValid()) return count();
    return place.y() < visualRect(index).center().y() ? index.row() : index.row() + 1;
}

void SnippetRows::setGap(int gap)
{
    if (gap == _gap) return;
    _gap = gap;
    viewport()->update();
}

void SnippetRows::dragEnterEvent(QDragEnterEvent* event)
{
    event->setAccepted(event->source() == this && _dragged >= 0);
}

void SnippetRows::dragMoveEvent(QDragMoveEvent* event)
{
    // Scrolls near the edges.
    QListWidget::dragMoveEvent(event);
    const bool isOwn = event->source() == this && _dragged >= 0;
    setGap(isOwn ? gapAt(event->position().toPoint()) : -1);
    if (!isOwn) return;
    event->setDropAction(Qt::MoveAction);
    event->accept();
}

void SnippetRows::dragLeaveEvent(QDragLeaveEvent* event)
{
    setGap(-1);
    QListWidget::dragLeaveEvent(event);
}

void SnippetRows::dropEvent(QDropEvent* event)
{
    const int row = _dragged;
    const int before = gapAt(event->position().toPoint());
    setGap(-1);
    setState(NoState);
    if (row < 0 || event->source() != this) return;
    event->setDropAction(Qt::MoveAction);
    event->accept();
    emit moveRequested(row, before);
}

void SnippetRows::paintEvent(QPaintEvent* event)
{
    QListWidget::paintEvent(event);
    if (_gap < 0 || count() == 0) return;
    const bool isEnd = _gap >= count();
    const QRect row = visualItemRect(item(isEnd ? count() - 1 : _gap));
    const int thickness = scaled(2);
    const int y = isEnd ? row.bottom() - thickness + 1 : row.top();
    QPainter painter(viewport());
    painter.fillRect(row.left(), y, row.width(), thickness, themeColors(palette()).text);
}

}  // namespace vantorel
