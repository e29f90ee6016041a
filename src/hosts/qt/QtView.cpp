#include "hosts/qt/QtView.h"

#include "hosts/common/PixelFrames.h"
#include "hosts/qt/TextScale.h"

#include <QEvent>

namespace vantorel {
namespace {

/// Keeps all events from a widget whose view is gone.
class LastFilter final : public QObject {
public:
    explicit LastFilter(QObject* parent) : QObject(parent) {}
    bool eventFilter(QObject*, QEvent* event) override
    {
        return event->type() != QEvent::DeferredDelete;
    }
};

}  // namespace

int& WidgetReaction::running()
{
    static int count = 0;
    return count;
}

void disposeOf(QWidget* widget)
{
    if (widget == nullptr || !WidgetReaction::isRunning()) {
        delete widget;
        return;
    }
    // Not disconnected: Qt forgets what assistive technology knows of a widget when it is
    // destroyed.
    widget->blockSignals(true);
    widget->installEventFilter(new LastFilter(widget));
    widget->setVisible(false);
    widget->setParent(nullptr);
    widget->deleteLater();
}

QWidget* widgetOf(const HostView* view)
{
    const auto* peer = dynamic_cast<const QtPeer*>(view);
    return peer != nullptr ? peer->widget() : nullptr;
}

QPointF widgetPoint(HostPoint inView, HostRect bounds)
{
    const PixelPoint point = pixelPoint(inView, bounds, textScale());
    return {point.x, point.y};
}

HostPoint viewPoint(QPointF inWidget, HostRect bounds)
{
    return viewPoint(PixelPoint{inWidget.x(), inWidget.y()}, bounds, textScale());
}

QRectF widgetRect(HostRect inView, HostRect bounds)
{
    return {widgetPoint({inView.x, inView.maxY()}, bounds),
            widgetPoint({inView.maxX(), inView.y}, bounds)};
}

QRect widgetGeometry(HostRect frame, HostRect superviewBounds)
{
    const PixelRect place = pixelFrame(frame, superviewBounds, textScale());
    return {place.x, place.y, place.width, place.height};
}

void placeWidgets(const HostView& view)
{
    const auto* peer = dynamic_cast<const QtPeer*>(&view);
    QWidget* widget = peer != nullptr ? peer->widget() : nullptr;
    if (widget != nullptr && view.superview() != nullptr) {
        const QRect place = widgetGeometry(view.frame(), view.superview()->bounds());
        widget->setGeometry(peer->shownGeometry(place));
        widget->setVisible(widget->parentWidget() != nullptr && isInSight(view, textScale()));
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
