#include "panel/widgets/RecentColors.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "panel/widgets/Checkers.h"
#include "panel/widgets/ColorClipboard.h"
#include "panel/widgets/WidgetFrame.h"

#include <QApplication>
#include <QDrag>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>
#include <QToolTip>

#include <algorithm>

namespace vantorel {
namespace {

constexpr int swatchSize = 14;
constexpr int pitch = swatchSize + 3;

void paintSwatch(QPainter& painter, const QRect& place, const HostColor& color)
{
    if (color.alphaComponent() < 1) paintCheckers(painter, place);
    painter.fillRect(place, qColorFrom(color));
}

}  // namespace

RecentColors::RecentColors(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Last colours"));
    setColors({});
}

void RecentColors::setColors(std::vector<HostColor> colors)
{
    _colors = std::move(colors);
    // An empty row shows nothing, and so no focus.
    setEnabled(!_colors.empty());
    setCurrent(_current);
    update();
}

QSize RecentColors::sizeHint() const
{
    return {pitch * 8, swatchSize + 2};
}

QSize RecentColors::minimumSizeHint() const
{
    return {pitch, swatchSize + 2};
}

int RecentColors::shownCount() const
{
    return std::min(static_cast<int>(_colors.size()), (width() + pitch - swatchSize) / pitch);
}

QRect RecentColors::rectOfColor(int index) const
{
    const int x = index * pitch;
    const int mirrored = isRightToLeft() ? width() - x - swatchSize : x;
    return {mirrored, (height() - swatchSize) / 2, swatchSize, swatchSize};
}

int RecentColors::indexAt(QPoint point) const
{
    for (int i = 0; i < shownCount(); ++i) {
        if (rectOfColor(i).contains(point)) return i;
    }
    return -1;
}

void RecentColors::setCurrent(int index)
{
    _current = std::clamp(index, 0, std::max(shownCount() - 1, 0));
    if (_current < shownCount()) {
        setAccessibleDescription(codeWithOpacity(_colors[static_cast<std::size_t>(_current)]));
    }
    update();
}

void RecentColors::choose(int index)
{
    if (index < 0 || index >= shownCount()) return;
    // A copy, because the receiver of the signal sets new colours.
    const HostColor color = _colors[static_cast<std::size_t>(index)];
    emit chosen(color);
}

bool RecentColors::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const int index = indexAt(help->pos());
        if (index >= 0) {
            const HostColor& color = _colors[static_cast<std::size_t>(index)];
            QToolTip::showText(help->globalPos(), plainToolTip(codeWithOpacity(color)), this,
                               rectOfColor(index));
        } else {
            QToolTip::showText(help->globalPos(), tr("Last colours"), this);
        }
        return true;
    }
    return QWidget::event(event);
}

void RecentColors::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    for (int i = 0; i < shownCount(); ++i) {
        const QRect place = rectOfColor(i);
        paintSwatch(painter, place.adjusted(1, 1, -1, -1), _colors[static_cast<std::size_t>(i)]);
        paintFrame(painter, place, palette().color(QPalette::Mid), 1);
    }
    if (hasFocus() && _current < shownCount()) {
        paintFrame(painter, rectOfColor(_current).adjusted(-1, -1, 1, 1),
                   palette().color(QPalette::Highlight), 2);
    }
}

void RecentColors::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) return;
    _pressedAt = event->position().toPoint();
    _pressed = indexAt(_pressedAt);
}

void RecentColors::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint at = event->position().toPoint();
    if (_pressed < 0 || (at - _pressedAt).manhattanLength() < QApplication::startDragDistance()) {
        return;
    }
    auto* drag = new QDrag(this);
    const HostColor color = _colors[static_cast<std::size_t>(_pressed)];
    _pressed = -1;
    drag->setMimeData(mimeDataFromColor(color).release());
    QPixmap picture(QSize(swatchSize, swatchSize) * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    QPainter painter(&picture);
    paintSwatch(painter, QRect(0, 0, swatchSize, swatchSize), color);
    painter.end();
    drag->setPixmap(picture);
    drag->exec(Qt::CopyAction);
}

void RecentColors::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) return;
    const int released = indexAt(event->position().toPoint());
    if (released >= 0 && released == _pressed) choose(released);
    _pressed = -1;
}

void RecentColors::keyPressEvent(QKeyEvent* event)
{
    const int forward = isRightToLeft() ? -1 : 1;
    switch (event->key()) {
        case Qt::Key_Right:
            setCurrent(_current + forward);
            break;
        case Qt::Key_Left:
            setCurrent(_current - forward);
            break;
        case Qt::Key_Home:
            setCurrent(0);
            break;
        case Qt::Key_End:
            setCurrent(shownCount() - 1);
            break;
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            choose(_current);
            break;
        default:
            QWidget::keyPressEvent(event);
    }
}

}  // namespace vantorel
