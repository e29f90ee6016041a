#pragma once

#include "host/HostView.h"
#include "hosts/common/PixelFrames.h"
#include "hosts/gtk/GtkReferences.h"

namespace vantorel {

/// The widget of a view, whatever the view's class. Owns the widget, unless what contains it is
/// destroyed first: `widget()` is null from then on.
class GtkPeer {
public:
    explicit GtkPeer(GtkWidget* widget);
    GtkPeer(const GtkPeer&) = delete;
    GtkPeer& operator=(const GtkPeer&) = delete;
    virtual ~GtkPeer() = default;

    /// The widget at the view's place.
    [[nodiscard]] GtkWidget* widget() const { return _alive.get(); }
    /// The widget that takes the focus and the mouse.
    [[nodiscard]] virtual GtkWidget* activeWidget() const { return widget(); }

    /// The widget that had the focus when this one came into its superview's. It gets the focus
    /// back if this one is taken out with it, as a face of a page is when it is done.
    GtkWeakWidget focusBefore;

protected:
    /// Ends the connections and destroys the widget.
    void closeWidget();
    [[nodiscard]] GtkConnections& signals() { return _signals; }

private:
    GtkReference<GtkWidget> _widget;
    GtkWeakWidget _alive;
    GtkConnections _signals;
};

[[nodiscard]] GtkWidget* gtkWidgetOf(const HostView* view);

/// Convert between a view's own coordinates, with y up, and pixels of its widget (see
/// hosts/common/PixelFrames.h).
[[nodiscard]] HostPoint corePoint(double x, double y, HostRect bounds);
/// The smallest rectangle of whole pixels around a part of a view.
[[nodiscard]] PixelRect pixelsAround(HostRect inView, HostRect bounds);

/// Moves the widgets of a view and its subviews to their frames, and hides what is out of sight.
void placeGtkWidgets(const HostView& view);
/// Whether a widget is being hidden or taken out by its view. If it has the focus, GTK takes it
/// away first; it was not the user who left it.
[[nodiscard]] bool isHidingGtkWidget();
/// Puts a view's widget into that of its superview, or takes it out if there is none.
void adoptGtkWidget(HostView& view);

/// Shows a text as it is written; `std::nullopt` or blanks remove the tip.
void showToolTip(GtkWidget* widget, const std::optional<std::u16string>& text);

/// The identifier that an interface file gives the control, and the name that assistive technology
/// announces.
void nameGtkWidget(GtkWidget* widget, const std::string& identifier,
                   const std::u16string& accessibleName);

void speakGtkWidget(GtkWidget* widget, const std::u16string& name);

/// Mirrors a view in a widget.
template <class Base>
class GtkMirrored : public Base, public GtkPeer {
public:
    GtkMirrored(HostRect frame, GtkWidget* widget) : Base(frame), GtkPeer(widget) {}
    // Here, because the view's own functions must not be called any more.
    ~GtkMirrored() override { closeWidget(); }

    void setAccessibleName(const std::u16string& name) override
    {
        for (GtkWidget* spoken : {widget(), activeWidget()})
            if (spoken != nullptr) speakGtkWidget(spoken, name);
    }

protected:
    void frameDidChange() override { placeGtkWidgets(*this); }
    void boundsDidChange() override { placeGtkWidgets(*this); }
    void hierarchyDidChange() override { adoptGtkWidget(*this); }
    void parkedDidChange() override { placeGtkWidgets(*this); }
    void toolTipDidChange() override
    {
        if (GtkWidget* shown = activeWidget()) showToolTip(shown, this->toolTip());
    }
    void displayDidBecomeNeeded(HostRect rect) override
    {
        GtkWidget* shown = activeWidget();
        if (shown == nullptr) return;
        const PixelRect area = pixelsAround(rect, this->bounds());
        queueDrawing(shown, area.x, area.y, area.width, area.height);
    }
};

}  // namespace vantorel
