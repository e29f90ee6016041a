#include "panel/widgets/ColorWell.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "panel/widgets/Checkers.h"
#include "panel/widgets/WidgetFrame.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMouseEvent>
#include <QPainter>

namespace vantorel {
ColorWell::ColorWell(const QString& name, QWidget* parent) : QWidget(parent)
{
    setAccessibleName(name);
    setFocusPolicy(Qt::TabFocus);
    setAcceptDrops(true);
    setColor(_color);
}

void ColorWell::setColor(const HostColor& color)
{
    _color = color;
    const QString text = codeWithOpacity(color);
    setToolTip(plainToolTip(accessibleName() + QStringLiteral(": ") + text));
    setAccessibleDescription(text);
    update();
}

void ColorWell::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect inside = rect().adjusted(1, 1, -1, -1);
    const QColor color = qColorFrom(_color);
    QRect right = inside;
    right.setLeft(inside.center().x());
    paintCheckers(painter, right);
    painter.fillRect(inside, color);
    QColor opaque = color;
    opaque.setAlpha(255);
    painter.fillRect(QRect(inside.topLeft(), QPoint(right.left() - 1, inside.bottom())), opaque);
    const bool isMarked = _dropIsNear || hasFocus();
    // The colour may be that of the mark.
    if (isMarked)
        paintFrame(painter, rect().adjusted(2, 2, -2, -2), palette().color(QPalette::Base), 1);
    paintFrame(painter, rect(), palette().color(isMarked ? QPalette::Highlight : QPalette::Mid),
               isMarked ? 2 : 1);
}

void ColorWell::mousePressEvent(QMouseEvent* event)
{
    _pressedAt = event->position().toPoint();
}

void ColorWell::mouseMoveEvent(QMouseEvent* event)
{
    const int distance = (event->position().toPoint() - _pressedAt).manhattanLength();
    if ((event->buttons() & Qt::LeftButton) == 0 || distance < QApplication::startDragDistance()) {
        return;
    }
    auto* drag = new QDrag(this);
    drag->setMimeData(mimeDataFromColor(_color).release());
    drag->setPixmap(grab());
    drag->exec(Qt::CopyAction);
}

void ColorWell::setDropIsNear(bool flag)
{
    _dropIsNear = flag;
    update();
}

void ColorWell::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->source() == this || !mayHoldColor(*event->mimeData())) return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    setDropIsNear(true);
}

void ColorWell::dragLeaveEvent(QDragLeaveEvent*)
{
    setDropIsNear(false);
}

void ColorWell::dropEvent(QDropEvent* event)
{
    setDropIsNear(false);
    event->setDropAction(Qt::CopyAction);
    event->accept();
    emit dropped(colorFromMimeData(*event->mimeData()));
}

}  // namespace vantorel
