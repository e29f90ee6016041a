#include "panel/widgets/LastColors.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtToolButton.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/CodeWithOpacity.h"
#include "panel/widgets/LastColorsAccessibility.h"
#include "panel/widgets/LastColorsPainting.h"
#include "panel/widgets/PanelIcons.h"
#include "panel/widgets/PixelGrid.h"
#include "panel/widgets/Swatch.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <optional>
#include <utility>

namespace vantorel {
namespace {

constexpr int rowPoints = 28;
constexpr int moreIconPoints = 16;

}  // namespace

LastColors::LastColors(QWidget* parent)
    : QWidget(parent), _button(new QtToolButton(this)), _drags(new LastColorsDrags(*this))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    installLastColorsInterface();
    setAccessibleName(tr("Last colours"));
    _button->setIcon(moreIcon());
    _button->setIconSize(QSize(1, 1) * scaled(moreIconPoints));
    _button->setToolTip(tr("Commands for the last colours"));
    _button->setAccessibleName(tr("Commands for the last colours"));
    connect(_button, &QToolButton::clicked, this,
            [this] { showMenu(_button->mapToGlobal(QPoint(0, _button->height()))); });
    setColors({}, {});
}

void LastColors::setColors(std::vector<HostColor> pinned, std::vector<HostColor> recent)
{
    std::optional<HostColor> followed;
    if (hasFocus() && _current < shownCount()) followed = _order.colorAt(_current);
    _order = LastColorsOrder(std::move(pinned), std::move(recent));
    placeParts();
    // Who moves a colour by keyboard stays with it.
    for (int i = 0; followed && i < shownCount(); ++i) {
        if (_order.colorAt(i) != *followed) continue;
        _current = i;
        break;
    }
    makeCurrent(_current);
    setFocusPolicy(_order.isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
    setAccessibleDescription(_order.isEmpty() ? _emptyHint : QString());
}

void LastColors::setEmptyHint(const QString& sentence)
{
    _emptyHint = sentence;
    if (_order.isEmpty()) setAccessibleDescription(sentence);
    update();
}

QSize LastColors::sizeHint() const
{
    return {scaled(276), scaled(rowPoints)};
}

QSize LastColors::minimumSizeHint() const
{
    return {scaled(2 * rowPoints), scaled(rowPoints)};
}

QRect LastColors::rectOf(int index) const
{
    return _places.swatches[static_cast<std::size_t>(index)].toAlignedRect();
}

void LastColors::placeParts()
{
    _places = placesOfLastColors(size(), _order.pinned().size(), _order.others().size(),
                                 layoutDirection());
    _button->setGeometry(_places.button);
    _button->setVisible(!_order.isEmpty());
    update();
}

void LastColors::makeCurrent(int index)
{
    _current = std::clamp(index, 0, std::max(shownCount() - 1, 0));
    update();
    if (!hasFocus() || _current >= shownCount()) return;
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(_current);
    QAccessible::updateAccessibility(&event);
}

void LastColors::choose(int index)
{
    if (index < 0 || index >= shownCount()) return;
    // A copy, because the receiver of the signal sets new colours.
    const HostColor color = _order.colorAt(index);
    emit chosen(color);
}

void LastColors::togglePin(int index)
{
    if (index < 0 || index >= shownCount()) return;
    const HostColor color = _order.colorAt(index);
    emit pinRequested(color, !_order.isPinned(index));
}

void LastColors::movePin(int step)
{
    const std::vector<HostColor> moved = _order.pinnedAfterMoving(_current, step);
    if (moved != _order.pinned()) emit pinnedReordered(moved);
}

void LastColors::openMenu(int index)
{
    makeCurrent(index);
    if (_current >= shownCount()) return;
    const QRect place = rectOf(_current);
    showMenu(mapToGlobal(QPoint(place.left(), place.bottom() + 1)));
}

void LastColors::showMenu(QPoint screenAt)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (_current < shownCount()) {
        const HostColor color = _order.colorAt(_current);
        const bool pinned = _order.isPinned(_current);
        const QString title = (pinned ? tr("Unpin %1") : tr("Pin %1")).arg(codeWithOpacity(color));
        QAction* pin = menu->addAction(plainTitle(title));
        pin->setShortcut(Qt::Key_P);
        connect(pin, &QAction::triggered, this,
                [this, color, pinned] { emit pinRequested(color, !pinned); });
        menu->addSeparator();
    }
    connect(menu->addAction(tr("Keep all as a list")), &QAction::triggered, this,
            &LastColors::keepAsListRequested);
    QAction* clear = menu->addAction(tr("Clear"));
    clear->setEnabled(!_order.others().empty());
    connect(clear, &QAction::triggered, this, &LastColors::clearRequested);
    menu->popup(screenAt);
}

void LastColors::showToolTip(QPoint at, QPoint screenAt)
{
    const int index = _places.swatchAt(at);
    if (index < 0) {
        QToolTip::hideText();
        return;
    }
    QToolTip::showText(screenAt, plainToolTip(codeWithOpacity(_order.colorAt(index))), this,
                       rectOf(index));
}

bool LastColors::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        showToolTip(help->pos(), help->globalPos());
        return true;
    }
    // Claims the keys ahead of the panel's commands.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool isPin = key->key() == Qt::Key_P && key->modifiers() == Qt::NoModifier;
        const bool isMove = key->modifiers() == Qt::ControlModifier &&
                            (key->key() == Qt::Key_Left || key->key() == Qt::Key_Right);
        if (isPin || isMove) {
            event->accept();
            return true;
        }
    }
    const bool isDone = QWidget::event(event);
    if (event->type() == QEvent::LayoutDirectionChange) placeParts();
    return isDone;
}

void LastColors::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    placeParts();
    makeCurrent(_current);
}

void LastColors::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (_order.isEmpty()) {
        paintLastColorsHint(painter, *this, _emptyHint);
        return;
    }
    const ThemeColors theme = themeColors(palette());
    const PixelGrid grid(painter);
    for (int i = 0; i < shownCount(); ++i) {
        const QRectF swatch = grid.nearest(_places.swatches[static_cast<std::size_t>(i)]);
        paintSwatch(painter, swatch, _order.colorAt(i), theme);
        if (i == _current && _focus.isShown()) paintLastColorsFocus(painter, swatch, theme);
    }
    paintLastColorsRule(painter, _places, theme);
    if (const auto place = _drags->dropPlace())
        paintLastColorsDropMark(painter, *this, _places, *place, theme);
}

void LastColors::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard) {
        openMenu(_current);
        return;
    }
    const int index = _places.swatchAt(event->pos());
    if (index < 0) {
        event->ignore();
        return;
    }
    makeCurrent(index);
    showMenu(event->globalPos());
}

void LastColors::keyPressEvent(QKeyEvent* event)
{
    _focus.keyPressed();
    update();
    const int forward = isRightToLeft() ? -1 : 1;
    const bool withControl = event->modifiers() == Qt::ControlModifier;
    const bool isGrid = _places.columns < shownCount();
    switch (event->key()) {
        case Qt::Key_Right:
        case Qt::Key_Left: {
            const int step = event->key() == Qt::Key_Right ? forward : -forward;
            if (withControl) {
                movePin(step);
            } else {
                makeCurrent(_current + step);
            }
            return;
        }
        case Qt::Key_Down:
            if (!isGrid) break;
            if (_current + _places.columns < shownCount()) makeCurrent(_current + _places.columns);
            return;
        case Qt::Key_Up:
            if (!isGrid) break;
            if (_current >= _places.columns) makeCurrent(_current - _places.columns);
            return;
        case Qt::Key_Home:
            makeCurrent(0);
            return;
        case Qt::Key_End:
            makeCurrent(shownCount() - 1);
            return;
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            choose(_current);
            return;
        case Qt::Key_P:
            if (event->modifiers() != Qt::NoModifier) break;
            togglePin(_current);
            return;
        default:
            break;
    }
    QWidget::keyPressEvent(event);
}

void LastColors::focusInEvent(QFocusEvent* event)
{
    _focus.focusIn(event->reason());
    QWidget::focusInEvent(event);
    makeCurrent(_current);
}

void LastColors::focusOutEvent(QFocusEvent* event)
{
    _focus.focusOut();
    QWidget::focusOutEvent(event);
}

}  // namespace vantorel
