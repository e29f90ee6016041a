#include "hosts/qt/QtView.h"

#include "hosts/qt/TextScale.h"

#include <QCoreApplication>

namespace vantorel {

QWidget* widgetOf(const HostView* view)
{
    const auto* peer = dynamic_cast<const QtPeer*>(view);
    return peer != nullptr ? peer->widget() : nullptr;
}

QPointF widgetPoint(HostPoint inView, HostRect bounds)
{
    return QPointF(inView.x - bounds.x, bounds.maxY() - inView.y) * textScale();
}

HostPoint viewPoint(QPointF inWidget, HostRect bounds)
{
    const QPointF inPoints = inWidget / textScale();
    return {inPoints.x() + bounds.x, bounds.maxY() - inPoints.y()};
}

QRectF widgetRect(HostRect inView, HostRect bounds)
{
    return {widgetPoint({inView.x, inView.maxY()}, bounds),
            widgetPoint({inView.maxX(), inView.y}, bounds)};
}

QRect widgetGeometry(HostRect frame, HostRect superviewBounds)
{
    const QRectF rect = widgetRect(frame, superviewBounds);
    const QPoint topLeft(qRound(rect.left()), qRound(rect.top()));
    return {topLeft,
            QSize(qRound(rect.right()) - topLeft.x(), qRound(rect.bottom()) - topLeft.y())};
}

QString translatedText(const std::u16string& text)
{
    const QString plain = QString::fromStdU16String(text);
    return QCoreApplication::translate("Vantorel", plain.toUtf8().constData());
}

void placeWidgets(const HostView& view)
{
    const auto* peer = dynamic_cast<const QtPeer*>(&view);
    QWidget* widget = peer != nullptr ? peer->widget() : nullptr;
    if (widget != nullptr && view.superview() != nullptr) {
        const QRect place = widgetGeometry(view.frame(), view.superview()->bounds());
        widget->setGeometry(peer->shownGeometry(place));
        // The core hides views by parking them, or by moving them outside their superview. Neither
        // the mouse nor Tab nor assistive technology must find them there.
        const HostRect superview = view.superview()->bounds();
        const QRectF shown = widgetRect(superview, superview);
        widget->setVisible(widget->parentWidget() != nullptr && !view.isParked() &&
                           shown.intersects(place));
    }
    // With y up, an unchanged frame moves in Qt's coordinates when the superview's height changes.
    for (const HostView* subview : view.subviews())
        placeWidgets(*subview);
}

void adoptWidget(HostView& view)
{
    auto* peer = dynamic_cast<QtPeer*>(&view);
    QWidget* widget = peer != nullptr ? peer->widget() : nullptr;
    if (widget == nullptr) return;
    QWidget* parent = widgetOf(view.superview());
    QWidget* focused = (parent != nullptr ? parent : widget)->window()->focusWidget();
    const bool hadFocus = focused == widget || widget->isAncestorOf(focused);
    widget->setParent(parent);
    if (parent == nullptr) widget->setVisible(false);
    placeWidgets(view);
    if (parent != nullptr) {
        peer->focusBefore = focused;
    } else if (hadFocus && peer->focusBefore && peer->focusBefore->isVisible()) {
        peer->focusBefore->setFocus(Qt::OtherFocusReason);
    }
}

}  // namespace vantorel
