#include "panel/widgets/SwapButton.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/PanelIcons.h"
#include "panel/widgets/PixelGrid.h"
#include "panel/widgets/Swatch.h"

#include <QFocusEvent>
#include <QPainter>

namespace vantorel {
namespace {

constexpr int swapDiameterPoints = 24;
constexpr int swapPicturePoints = 14;
constexpr int swapRingPoints = 2;

}  // namespace

SwapButton::SwapButton(QWidget* parent) : QAbstractButton(parent), _picture(swapIcon())
{
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    // The corners belong to the halves.
    const QSize size = sizeHint();
    setFixedSize(size);
    setMask(QRegion(QRect(QPoint(), size), QRegion::Ellipse));
    connect(this, &QAbstractButton::clicked, this, [this] {
        if (_action != nullptr) _action->trigger();
    });
}

QSize SwapButton::sizeHint() const
{
    // The edge lies around the button.
    const int side = scaled(swapDiameterPoints) + 2;
    return {side, side};
}

void SwapButton::setAction(QAction& action)
{
    if (_action != nullptr) _action->disconnect(this);
    _action = &action;
    connect(&action, &QAction::changed, this, &SwapButton::showAction);
    showAction();
}

void SwapButton::showAction()
{
    setAccessibleName(_action->text());
    setToolTip(plainToolTip(_action->toolTip()));
    setEnabled(_action->isEnabled());
    updateAround();
}

void SwapButton::paintIn(QPainter& painter, const ThemeColors& theme) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const PixelGrid grid(painter);
    const QRectF place = grid.nearest(QRectF(geometry()));
    const qreal edge = grid.lineWidth(1);
    if (_focus.isShown()) {
        const qreal ring = grid.lineWidth(scaled(swapRingPoints));
        const qreal reach = ring + edge;
        const QRectF around = place.adjusted(-reach, -reach, reach, reach);
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme.base);
        painter.drawEllipse(around);
        paintSwatchLine(painter, around, around.height() / 2, ring, theme.accent);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(isDown()                      ? theme.down
                     : underMouse() && isEnabled() ? theme.hover
                                                   : theme.window);
    painter.drawEllipse(place);
    paintSwatchLine(painter, place, place.height() / 2, edge,
                    isEnabled() ? theme.edge : theme.line);
    QRectF picture(QPointF(), QSizeF(1, 1) * scaled(swapPicturePoints));
    picture.moveCenter(place.center());
    _picture.paint(&painter, picture.toAlignedRect(), Qt::AlignCenter,
                   isEnabled() ? QIcon::Normal : QIcon::Disabled);
    painter.restore();
}

bool SwapButton::hitButton(const QPoint& point) const
{
    return mask().contains(point);
}

void SwapButton::focusInEvent(QFocusEvent* event)
{
    _focus.focusIn(event->reason());
    QAbstractButton::focusInEvent(event);
    updateAround();
}

void SwapButton::focusOutEvent(QFocusEvent* event)
{
    _focus.focusOut();
    QAbstractButton::focusOutEvent(event);
    updateAround();
}

void SwapButton::keyPressEvent(QKeyEvent* event)
{
    _focus.keyPressed();
    updateAround();
    // Of its own accord a button answers to Space alone.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

void SwapButton::updateAround()
{
    parentWidget()->update();
}

}  // namespace vantorel
