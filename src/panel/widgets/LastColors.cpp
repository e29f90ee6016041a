#include "panel/widgets/LastColors.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtToolButton.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/CodeWithOpacity.h"
#include "panel/widgets/LastColorsAccessibility.h"
#include "panel/widgets/PanelIcons.h"
#include "panel/widgets/PixelGrid.h"
#include "panel/widgets/Swatch.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace vantorel {
namespace {

constexpr int rowPoints = 28;
constexpr int moreIconPoints = 16;
constexpr int hintTextPoints = 11;
constexpr int hintPaddingPoints = 8;
constexpr int hintRadiusPoints = 6;
constexpr int lastColorMarkPoints = 2;

bool contains(const std::vector<HostColor>& colors, const HostColor& color)
{
    return std::find(colors.begin(), colors.end(), color) != colors.end();
}

}  // namespace

LastColors::LastColors(QWidget* parent) : QWidget(parent), _button(new QtToolButton(this))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setAcceptDrops(true);
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
    if (hasFocus() && _current < shownCount()) followed = colorAt(_current);
    _pinned = std::move(pinned);
    _others = std::move(recent);
    std::erase_if(_others, [this](const HostColor& color) { return contains(_pinned, color); });
    placeParts();
    // Who moves a colour by keyboard stays with it.
    for (int i = 0; followed && i < shownCount(); ++i) {
        if (colorAt(i) != *followed) continue;
        _current = i;
        break;
    }
    makeCurrent(_current);
    setFocusPolicy(isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
    setAccessibleDescription(isEmpty() ? _emptyHint : QString());
}

void LastColors::setEmptyHint(const QString& sentence)
{
    _emptyHint = sentence;
    if (isEmpty()) setAccessibleDescription(sentence);
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

const HostColor& LastColors::colorAt(int index) const
{
    const auto at = static_cast<std::size_t>(index);
    return at < _pinned.size() ? _pinned[at] : _others[at - _pinned.size()];
}

bool LastColors::isPinned(int index) const
{
    return index >= 0 && static_cast<std::size_t>(index) < _pinned.size();
}

QRect LastColors::rectOf(int index) const
{
    return _places.swatches[static_cast<std::size_t>(index)].toAlignedRect();
}

void LastColors::placeParts()
{
    _places = placesOfLastColors(size(), _pinned.size(), _others.size(), layoutDirection());
    _button->setGeometry(_places.button);
    _button->setVisible(!isEmpty());
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
    const HostColor color = colorAt(index);
    emit chosen(color);
}

void LastColors::togglePin(int index)
{
    if (index < 0 || index >= shownCount()) return;
    const HostColor color = colorAt(index);
    emit pinRequested(color, !isPinned(index));
}

void LastColors::movePin(int step)
{
    const int target = _current + step;
    if (!isPinned(_current) || !isPinned(target)) return;
    std::vector<HostColor> pinned = _pinned;
    std::swap(pinned[static_cast<std::size_t>(_current)], pinned[static_cast<std::size_t>(target)]);
    emit pinnedReordered(pinned);
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
        const HostColor color = colorAt(_current);
        const bool pinned = isPinned(_current);
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
    clear->setEnabled(!_others.empty());
    connect(clear, &QAction::triggered, this, &LastColors::clearRequested);
    menu->popup(screenAt);
}

void LastColors::showToolTip(QPoint at, QPoint screenAt)
{
    const int index = indexAt(at);
    if (index < 0) {
        QToolTip::hideText();
        return;
    }
    QToolTip::showText(screenAt, plainToolTip(codeWithOpacity(colorAt(index))), this,
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
    return QWidget::event(event);
}

void LastColors::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange) placeParts();
}

void LastColors::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    placeParts();
    makeCurrent(_current);
}

void LastColors::paintHint(QPainter& painter) const
{
    const ThemeColors theme = themeColors(palette());
    const PixelGrid grid(painter);
    QRectF place(0, 0, width(), std::min(height(), scaled(rowPoints)));
    place.moveBottom(height());
    place = grid.nearest(place);
    const qreal width = grid.lineWidth(1);
    const qreal radius = scaled(hintRadiusPoints);
    QPen dashes(theme.edge, width, Qt::CustomDashLine, Qt::FlatCap);
    dashes.setDashPattern({3, 3});
    painter.setPen(dashes);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(place.adjusted(width / 2, width / 2, -width / 2, -width / 2), radius,
                            radius);
    painter.setFont(fontOfSize(hintTextPoints));
    painter.setPen(theme.text2);
    const qreal padding = scaled(hintPaddingPoints);
    const QRectF text = place.adjusted(padding, 0, -padding, 0);
    const QString shown =
        painter.fontMetrics().elidedText(_emptyHint, Qt::ElideRight, qRound(text.width()));
    const Qt::Alignment atStart = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
    const int flags = static_cast<int>(atStart | Qt::AlignVCenter) | Qt::TextSingleLine;
    painter.drawText(text, flags, shown);
}

void LastColors::paintDropMark(QPainter& painter, std::size_t place, const PixelGrid& grid,
                               const ThemeColors& theme) const
{
    // After the colour before it: a rule may follow, which the mark must not be beyond.
    const QRectF neighbour = _places.swatches[place == 0 ? 0 : place - 1];
    const bool isAtRight = (place == 0) == isRightToLeft();
    const qreal mark = grid.lineWidth(scaled(lastColorMarkPoints));
    const qreal x = isAtRight ? neighbour.right() + mark / 2 : neighbour.left() - 1.5 * mark;
    painter.fillRect(QRectF(grid.nearest(std::clamp(x, 0.0, width() - mark)),
                            neighbour.top() - mark, mark, neighbour.height() + 2 * mark),
                     theme.text);
}

void LastColors::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isEmpty()) {
        paintHint(painter);
        return;
    }
    const ThemeColors theme = themeColors(palette());
    const PixelGrid grid(painter);
    for (int i = 0; i < shownCount(); ++i) {
        const QRectF place = grid.nearest(_places.swatches[static_cast<std::size_t>(i)]);
        paintSwatch(painter, place, colorAt(i), theme);
        if (i != _current || !_focus.isShown()) continue;
        const qreal radius = swatchRadius();
        const qreal ring = grid.lineWidth(scaled(lastColorMarkPoints));
        // The colour may be that of the ring.
        const qreal gap = grid.lineWidth(1);
        paintSwatchLine(painter, place.adjusted(ring, ring, -ring, -ring), radius - ring, gap,
                        theme.base);
        paintSwatchLine(painter, place, radius, ring, theme.accent);
    }
    if (_places.rule) {
        QRectF rule = grid.nearest(*_places.rule);
        rule.setWidth(grid.lineWidth(1));
        painter.fillRect(rule, theme.edge);
    }
    if (_dropPlace) paintDropMark(painter, *_dropPlace, grid, theme);
}

void LastColors::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard) {
        openMenu(_current);
        return;
    }
    const int index = indexAt(event->pos());
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
