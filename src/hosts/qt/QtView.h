#pragma once

#include "host/HostView.h"

#include <QPointer>
#include <QWidget>

namespace vantorel {

/// The widget of a view, wherever it stands in the tree of classes.
class QtPeer {
public:
    virtual ~QtPeer() = default;
    [[nodiscard]] virtual QWidget* widget() const = 0;
};

[[nodiscard]] QWidget* widgetOf(const HostView* view);

/// Visits a view and those below it that are of a class. `view` may be null.
template <class View, class Visit>
void forEachBelow(HostView* view, const Visit& visit)
{
    if (view == nullptr) return;
    if (auto* found = dynamic_cast<View*>(view)) visit(*found);
    for (HostView* subview : view->subviews())
        forEachBelow<View>(subview, visit);
}

/// Where a view's widget stands in its superview's: this is the one place that turns the core's
/// coordinates, y up and with an origin of their own, into Qt's. Edges are rounded, not sizes, so
/// that views side by side stay so.
[[nodiscard]] QRect widgetGeometry(HostRect frame, HostRect superviewBounds);
/// A point of a widget in the view's own coordinates, and back.
[[nodiscard]] HostPoint viewPoint(QPointF inWidget, HostRect bounds);
[[nodiscard]] QPointF widgetPoint(HostPoint inView, HostRect bounds);
[[nodiscard]] QRectF widgetRect(HostRect inView, HostRect bounds);

/// Puts a view's widget where its frame is, and those of its subviews.
void placeWidgets(const HostView& view);
/// Puts a view's widget into that of its superview, or out of sight.
void adoptWidget(const HostView& view);

/// A text of the core in the user's language; the text itself where there is no translation.
[[nodiscard]] QString translatedText(const std::u16string& text);

/// Mirrors a view in a widget, which it owns unless the widget's parent ends first.
template <class Base>
class QtMirrored : public Base, public QtPeer {
public:
    QtMirrored(HostRect frame, QWidget* widget) : Base(frame), _widget(widget)
    {
        _widget->setVisible(false);
        _widget->resize(static_cast<int>(frame.width), static_cast<int>(frame.height));
    }
    ~QtMirrored() override { delete _widget.data(); }

    [[nodiscard]] QWidget* widget() const override { return _widget; }

protected:
    void frameDidChange() override { placeWidgets(*this); }
    void boundsDidChange() override { placeWidgets(*this); }
    void hierarchyDidChange() override { adoptWidget(*this); }
    void toolTipDidChange() override
    {
        if (_widget == nullptr) return;
        const auto& text = this->toolTip();
        _widget->setToolTip(text ? translatedText(*text) : QString());
    }
    void displayDidBecomeNeeded(HostRect rect) override
    {
        if (_widget != nullptr) {
            _widget->update(widgetRect(rect, this->bounds()).toAlignedRect());
        }
    }

private:
    QPointer<QWidget> _widget;
};

}  // namespace vantorel
