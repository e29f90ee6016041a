#include "hosts/gtk/GtkHostCustomView.h"

#include "hosts/gtk/CairoCanvas.h"
#include "hosts/gtk/GtkHostBox.h"
#include "hosts/gtk/GtkHostEvents.h"
#include "hosts/gtk/GtkStyles.h"
#include "hosts/gtk/GtkTexts.h"

#include <atk/atk.h>

#include <cmath>

namespace vantorel {

GtkHostCustomView::GtkHostCustomView(const HostControlDescription& description,
                                     HostViewContent& content)
    : GtkMirrored(description.frame, newHostBox(false)),
      _content(content),
      _area(newPaintArea()),
      _tracking(content),
      _turn(content)
{
    GtkWidget* area = _area.get();
    gtk_container_add(GTK_CONTAINER(widget()), area);
    gtk_widget_show(area);
    gtk_widget_add_events(area, GDK_BUTTON_PRESS_MASK | GDK_BUTTON_RELEASE_MASK |
                                    GDK_POINTER_MOTION_MASK | GDK_ENTER_NOTIFY_MASK |
                                    GDK_LEAVE_NOTIFY_MASK | GDK_SCROLL_MASK | GDK_KEY_PRESS_MASK |
                                    GDK_FOCUS_CHANGE_MASK);
    gtk_widget_set_can_focus(area, content.takesKeys());
    nameGtkWidget(widget(), description.identifier, description.accessibleName);
    nameGtkWidget(area, description.identifier + "-area", description.accessibleName);
    signals().connectPaint(area, [this](cairo_t* cairo) { paint(cairo); });
    connectMouse();
    connectKeys();
}

void GtkHostCustomView::connectMouse()
{
    GtkWidget* area = _area.get();
    signals().connect<bool, GdkEventButton*>(
        area, "button-press-event", [this](GdkEventButton* event) {
            // The second press of a double click is reported as a press of its own, too.
            if (event->button != 1 || event->type != GDK_BUTTON_PRESS) return false;
            press(*event);
            return true;
        });
    signals().connect<bool, GdkEventButton*>(
        area, "button-release-event", [this](GdkEventButton* event) {
            if (event->button != 1) return false;
            _turn.proceed(hostEvent(HostEventType::leftMouseUp, event->x, event->y, event->state));
            return true;
        });
    signals().connect<bool, GdkEventMotion*>(area, "motion-notify-event",
                                             [this](GdkEventMotion* event) {
                                                 move(*event);
                                                 return true;
                                             });
    signals().connect<bool, GdkEventCrossing*>(
        area, "enter-notify-event", [this](GdkEventCrossing* event) {
            if ((event->state & GDK_BUTTON1_MASK) != 0) return false;
            _tracking.move(hostEvent(HostEventType::mouseMoved, event->x, event->y, event->state));
            return false;
        });
    signals().connect<bool, GdkEventCrossing*>(
        area, "leave-notify-event", [this](GdkEventCrossing*) {
            _tracking.leave({HostEventType::mouseExited, {}, 0});
            return false;
        });
    signals().connect<bool, GdkEventScroll*>(area, "scroll-event", [this](GdkEventScroll* event) {
        const HostScrollEvent scroll{corePoint(event->x, event->y, bounds()),
                                     _wheelSteps.stepsOf(turnOf(*event)),
                                     modifierFlagsOf(event->state)};
        return scroll.steps != 0 && _content.scrollWheel(scroll);
    });
    // Whoever takes the pointer gets the release.
    signals().connect<bool, GdkEvent*>(area, "grab-broken-event", [this](GdkEvent*) {
        _turn.breakOff();
        return false;
    });
    signals().connect<void, gboolean>(area, "grab-notify", [this](gboolean isBackFromGrab) {
        if (isBackFromGrab == FALSE) _turn.breakOff();
    });
    signals().connect<void>(area, "unmap", [this] { _turn.breakOff(); });
    // GTK 2 does not unmap what is taken out.
    signals().connect<void>(area, "unrealize", [this] { _turn.breakOff(); });
    signals().connect<void>(area, "destroy", [this] { _turn.breakOff(); });
}

void GtkHostCustomView::connectKeys()
{
    GtkWidget* area = _area.get();
    signals().connect<bool, GdkEventKey*>(area, "key-press-event",
                                          [this](GdkEventKey* event) { return takeKey(*event); });
    signals().connect<bool, GdkEvent*>(area, "focus-in-event", [this](GdkEvent*) {
        focusCame();
        return false;
    });
    signals().connect<bool, GdkEvent*>(area, "focus-out-event", [this](GdkEvent*) {
        _content.keyFocusDidChange(false);
        redraw();
        return false;
    });
}

void GtkHostCustomView::focusCame()
{
    GtkWidget* window = gtk_widget_get_toplevel(_area.get());
    // The window has got the keyboard, rather than this view the window's focus.
    const bool isReturned =
        !GTK_IS_WINDOW(window) || !gtk_window_has_toplevel_focus(GTK_WINDOW(window));
    _marks.focusCame(_isClickingIn ? FocusOrigin::mouse
                     : isReturned  ? FocusOrigin::returned
                                   : FocusOrigin::keys);
    _content.keyFocusDidChange(true);
    redraw();
}

bool GtkHostCustomView::takeKey(const GdkEventKey& event)
{
    const auto key = hostKeyEventOf(event, _content.takesControlKeys());
    if (!key || !_marks.offers(*key) || !_content.takesKeys() || !_content.keyDown(*key))
        return false;
    _marks.keyWasUsed();
    redraw();
    return true;
}

void GtkHostCustomView::redraw()
{
    if (GtkWidget* area = _area.get()) gtk_widget_queue_draw(area);
}

/// The content is painted into a picture in memory first: two thousand cells of a wheel would be as
/// many requests to the display.
void GtkHostCustomView::paint(cairo_t* cairo)
{
    GtkWidget* area = _area.get();
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
    cairo_clip_extents(cairo, &left, &top, &right, &bottom);
    if (right <= left || bottom <= top) return;
    left = std::floor(left);
    top = std::floor(top);
    const double scale = scaleFactorOf(area);
    const CairoSurface picture(cairo_image_surface_create(
        CAIRO_FORMAT_ARGB32, static_cast<int>(std::ceil((right - left) * scale)),
        static_cast<int>(std::ceil((bottom - top) * scale))));
    cairo_surface_set_device_scale(picture.get(), scale, scale);
    cairo_surface_set_device_offset(picture.get(), -left * scale, -top * scale);
    const bool showsFocus = _marks.areShown() && gtk_widget_has_focus(area);
    paintContent(CairoContext(cairo_create(picture.get())).get(), showsFocus);
    cairo_set_source_surface(cairo, picture.get(), 0, 0);
    cairo_paint(cairo);
    if (showsFocus && setCairoColor(cairo, themeSelectionColor(area))) {
        constexpr double ringWidth = 2;
        GtkAllocation place;
        gtk_widget_get_allocation(area, &place);
        cairo_set_line_width(cairo, ringWidth);
        cairo_rectangle(cairo, ringWidth / 2, ringWidth / 2, place.width - ringWidth,
                        place.height - ringWidth);
        cairo_stroke(cairo);
    }
    reportDescription();
}

void GtkHostCustomView::paintContent(cairo_t* cairo, bool showsFocus)
{
    CairoCanvas canvas(cairo, bounds(), scaleFactorOf(_area.get()), themeBasisOf(_area.get()));
    _content.drawRect(canvas);
    if (showsFocus) strokeOnAnyColor(canvas, _content.keyOutline());
    setNeedsDisplay(false);
}

/// Whatever changes the description repaints the view, too.
void GtkHostCustomView::reportDescription()
{
    const auto description = accessibleDescription();
    if (!description) return;
    const std::string text = gtkText(*description);
    if (text == _reportedDescription) return;
    _reportedDescription = text;
    AtkObject* accessible = gtk_widget_get_accessible(_area.get());
    atk_object_set_role(accessible, ATK_ROLE_COLOR_CHOOSER);
    atk_object_set_description(accessible, text.c_str());
}

HostEvent GtkHostCustomView::hostEvent(HostEventType type, double x, double y, guint state) const
{
    return {type, corePoint(x, y, bounds()), modifierFlagsOf(state)};
}

void GtkHostCustomView::press(const GdkEventButton& event)
{
    _lastButtonEvent.reset(gdk_event_copy(reinterpret_cast<const GdkEvent*>(&event)));
    _marks.buttonWasPressed();
    _isClickingIn = true;
    // What leaves the focus enters its text, which may end the dialog.
    const GtkWeakWidget alive = _area;
    if (_content.takesKeys()) gtk_widget_grab_focus(_area.get());
    if (alive.get() == nullptr) return;
    _isClickingIn = false;
    redraw();
    // The view may be destroyed meanwhile.
    _turn.press(hostEvent(HostEventType::leftMouseDown, event.x, event.y, event.state));
}

void GtkHostCustomView::move(const GdkEventMotion& event)
{
    if ((event.state & GDK_BUTTON1_MASK) != 0) {
        _lastButtonEvent.reset(gdk_event_copy(reinterpret_cast<const GdkEvent*>(&event)));
        _turn.proceed(hostEvent(HostEventType::leftMouseDragged, event.x, event.y, event.state));
    } else {
        // If the button was pressed here, its release has gone elsewhere.
        _turn.breakOff();
        _tracking.move(hostEvent(HostEventType::mouseMoved, event.x, event.y, event.state));
    }
}

HostEvent GtkHostCustomView::nextMouseEvent(std::uint32_t mask)
{
    GtkNestedLoop wait;
    return _turn.nextEvent(mask, wait);
}

}  // namespace vantorel
