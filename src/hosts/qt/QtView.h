#pragma once

#include "host/HostView.h"
#include "hosts/qt/EventGuard.h"
#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtTranslations.h"

#include <QPointer>
#include <QWidget>

namespace vantorel {

/// The widget of a view, whatever the view's class.
class QtPeer {
public:
    virtual ~QtPeer() = default;
    [[nodiscard]] virtual QWidget* widget() const = 0;
    /// Returns where the widget is shown, given the geometry of the view's frame.
    [[nodiscard]] virtual QRect shownGeometry(QRect frame) const { return frame; }

    /// The widget that had the focus when this one came into its superview's. It gets the focus
    /// back if this one is taken out with it, as a face of a page is when it is done.
    QPointer<QWidget> focusBefore;
};

[[nodiscard]] QWidget* widgetOf(const HostView* view);

/// `PixelFrames.h` in Qt's types: the geometry of a view's widget in that of the superview.
[[nodiscard]] QRect widgetGeometry(HostRect frame, HostRect superviewBounds);
/// Convert a point of a widget to the view's own coordinates, and back.
[[nodiscard]] HostPoint viewPoint(QPointF inWidget, HostRect bounds);
[[nodiscard]] QPointF widgetPoint(HostPoint inView, HostRect bounds);
[[nodiscard]] QRectF widgetRect(HostRect inView, HostRect bounds);

/// Moves the widgets of a view and its subviews to their frames.
void placeWidgets(const HostView& view);
/// Puts a view's widget into that of its superview, or hides it if there is none.
void adoptWidget(HostView& view);

/// A reaction of the page to one of Qt's signals or events, while it runs. Lives on the stack.
class WidgetReaction {
public:
    WidgetReaction() { ++running(); }
    WidgetReaction(const WidgetReaction&) = delete;
    WidgetReaction& operator=(const WidgetReaction&) = delete;
    ~WidgetReaction() { --running(); }

    [[nodiscard]] static bool isRunning() { return running() > 0; }

private:
    [[nodiscard]] static int& running();
};

/// Destroys the widget of a view that is gone. In the middle of a `WidgetReaction` it hides the
/// widget and destroys it later, because Qt goes on with the widget when the reaction is over.
void disposeOf(QWidget* widget);

/// Mirrors a view in a widget. Owns the widget unless the widget's parent is destroyed first: a
/// program may destroy its window before the page in it. `widget()` is null from then on, and
/// changes of the view have no effect on the screen.
template <class Base>
class QtMirrored : public Base, public QtPeer {
public:
    QtMirrored(HostRect frame, QWidget* widget) : Base(frame), _widget(widget)
    {
        EventGuard::watch(*widget);
        _widget->setVisible(false);
        _widget->resize(static_cast<int>(frame.width), static_cast<int>(frame.height));
    }
    ~QtMirrored() override { disposeOf(_widget); }

    [[nodiscard]] QWidget* widget() const override { return _widget; }

    void setAccessibleName(const std::u16string& name) override
    {
        if (_widget != nullptr) _widget->setAccessibleName(QString::fromStdU16String(name));
    }

protected:
    void frameDidChange() override { placeWidgets(*this); }
    void boundsDidChange() override { placeWidgets(*this); }
    void hierarchyDidChange() override { adoptWidget(*this); }
    void parkedDidChange() override { placeWidgets(*this); }
    void toolTipDidChange() override
    {
        if (_widget == nullptr) return;
        const auto& text = this->toolTip();
        // A tip of blanks would show as an empty box.
        const QString shown = text ? translatedText(*text) : QString();
        _widget->setToolTip(shown.trimmed().isEmpty() ? QString() : plainToolTip(shown));
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
