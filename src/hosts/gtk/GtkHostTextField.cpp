#include "hosts/gtk/GtkHostTextField.h"

#include "hosts/gtk/GtkHostEvents.h"
#include "hosts/gtk/GtkTextScale.h"
#include "hosts/gtk/GtkTexts.h"

#include <gdk/gdkkeysyms.h>

#include <algorithm>

namespace vantorel {
namespace {

float alignmentOf(const HostControlDescription& description)
{
    switch (description.alignment) {
        case HostControlDescription::Alignment::center:
            return 0.5F;
        case HostControlDescription::Alignment::right:
            return 1;
        case HostControlDescription::Alignment::left:
            break;
    }
    return 0;
}

}  // namespace

GtkHostTextField::GtkHostTextField(const HostControlDescription& description)
    : GtkMirrored(description.frame, gtk_entry_new()),
      _entry(*this, *this),
      _scrub(*this),
      _look(widget(), description),
      _isReadOnly(description.readOnly)
{
    nameGtkWidget(widget(), description.identifier, description.accessibleName);
    gtk_entry_set_width_chars(entry(), 0);
    gtk_entry_set_alignment(entry(), alignmentOf(description));
    gtk_entry_set_text(entry(), gtkText(description.title).c_str());
    gtk_editable_set_editable(editable(), !_isReadOnly);
    connectEdits();
    connectKeys();
    connectScrub();
    connectFocus();
    signals().connect<void, GtkAllocation*>(widget(), "size-allocate",
                                            [this](GtkAllocation*) { fit(); });
}

GtkEntry* GtkHostTextField::entry() const
{
    return reinterpret_cast<GtkEntry*>(widget());
}

GtkEditable* GtkHostTextField::editable() const
{
    return reinterpret_cast<GtkEditable*>(widget());
}

void GtkHostTextField::connectEdits()
{
    GtkWidget* field = widget();
    signals().connect<void, const char*, int, int*>(
        field, "insert-text", [this](const char*, int, int*) { _hasInserted = true; });
    // Not only keys: text entered by an assistive program counts as typed, too.
    signals().connect<void>(field, "changed", [this] {
        fit();
        // Typing over a selection is reported as a deletion, and then as an insertion.
        _entry.textDidChange(!std::exchange(_hasInserted, false));
    });
    signals().connect<void>(field, "activate", [this] { _entry.enter(); });
    signals().connect<void>(field, "paste-clipboard", [this] {
        g_signal_stop_emission_by_name(widget(), "paste-clipboard");
        paste(GDK_SELECTION_CLIPBOARD);
    });
    signals().connect<void, GdkDragContext*, int, int, GtkSelectionData*, guint, guint>(
        field, "drag-data-received",
        [this](GdkDragContext* context, int, int, GtkSelectionData* data, guint, guint time) {
            // A part of the text that is moved within the field is no text from elsewhere.
            if (_isReadOnly || gtk_drag_get_source_widget(context) == widget()) return;
            g_signal_stop_emission_by_name(widget(), "drag-data-received");
            takeDrop(context, data, time);
        });
}

void GtkHostTextField::connectKeys()
{
    GtkWidget* field = widget();
    gtk_widget_add_events(field, GDK_SCROLL_MASK);
    signals().connect<bool, GdkEventKey*>(field, "key-press-event",
                                          [this](GdkEventKey* event) { return takeKey(*event); });
    signals().connect<bool, GdkEventScroll*>(field, "scroll-event", [this](GdkEventScroll* event) {
        if (!canStep() || _isReadOnly) return false;
        const int steps = _wheelSteps.stepsOf(turnOf(*event));
        if (steps != 0) _entry.step(steps, modifierFlagsOf(event->state));
        return true;
    });
    signals().connect<bool, GdkEventButton*>(field, "button-press-event",
                                             [this](GdkEventButton* event) {
                                                 if (event->button != 2 || _isReadOnly)
                                                     return false;
                                                 gtk_widget_grab_focus(widget());
                                                 paste(GDK_SELECTION_PRIMARY);
                                                 return true;
                                             });
}

void GtkHostTextField::connectScrub()
{
    GtkWidget* field = widget();
    const auto pointsOf = [](double pixels) { return pixels / gtkTextScale(); };
    signals().connect<bool, GdkEventButton*>(
        field, "button-press-event", [this, pointsOf](GdkEventButton* event) {
            return event->button == 1 && event->type == GDK_BUTTON_PRESS && !hasFocus() &&
                   _scrub.press(pointsOf(event->x));
        });
    signals().connect<bool, GdkEventMotion*>(
        field, "motion-notify-event", [this, pointsOf](GdkEventMotion* event) {
            if (!_scrub.isUnderWay()) return false;
            if ((event->state & GDK_BUTTON1_MASK) == 0) {
                // The release has gone elsewhere.
                _scrub.breakOff();
            } else {
                _scrub.move(pointsOf(event->x), modifierFlagsOf(event->state));
            }
            return true;
        });
    signals().connect<bool, GdkEventButton*>(field, "button-release-event",
                                             [this](GdkEventButton* event) {
                                                 if (event->button != 1 || !_scrub.isUnderWay())
                                                     return false;
                                                 // GTK selects the whole text of what gets the
                                                 // focus.
                                                 if (_scrub.release())
                                                     gtk_widget_grab_focus(widget());
                                                 return true;
                                             });
    signals().connect<bool, GdkEvent*>(field, "grab-broken-event", [this](GdkEvent*) {
        _scrub.breakOff();
        return false;
    });
    signals().connect<void>(field, "unmap", [this] { _scrub.breakOff(); });
}

void GtkHostTextField::connectFocus()
{
    GtkWidget* field = widget();
    signals().connect<bool, GdkEvent*>(
        field, "focus-in-event",
        [this](GdkEvent*) {
            focusDidChange(true);
            return false;
        },
        true);
    signals().connect<bool, GdkEvent*>(field, "focus-out-event", [this](GdkEvent*) {
        focusDidChange(false);
        return false;
    });
}

bool GtkHostTextField::takeKey(const GdkEventKey& event)
{
    const bool isUp = event.keyval == GDK_KEY_Up || event.keyval == GDK_KEY_KP_Up;
    const bool isDown = event.keyval == GDK_KEY_Down || event.keyval == GDK_KEY_KP_Down;
    if ((isUp || isDown) && canStep() && !_isReadOnly) {
        _entry.step(isUp ? 1 : -1, modifierFlagsOf(event.state));
        return true;
    }
    return event.keyval == GDK_KEY_Escape && _entry.giveUp();
}

void GtkHostTextField::focusDidChange(bool hasFocus)
{
    if (widget() == nullptr) return;
    fit();
    GtkWidget* window = gtk_widget_get_toplevel(widget());
    // The focus can also go because of another window or a menu, or because the field is hidden.
    const bool isLeft = !hasFocus && !isHidingGtkWidget() && gtk_widget_get_mapped(widget()) &&
                        GTK_IS_WINDOW(window) && gtk_window_has_toplevel_focus(GTK_WINDOW(window));
    if (isLeft) _entry.leave();
}

void GtkHostTextField::paste(GdkAtom selection)
{
    struct Request {
        GtkHostTextField* field;
        std::weak_ptr<const bool> life;
    };
    // The other program may take its time; the field may be gone by then.
    gtk_clipboard_request_text(
        gtk_widget_get_clipboard(widget(), selection),
        [](GtkClipboard*, const gchar* text, gpointer data) {
            const std::unique_ptr<Request> request(static_cast<Request*>(data));
            if (text == nullptr || request->life.expired() || !request->field->isVisible()) return;
            callFromC([&] { request->field->_entry.bring(coreText(text)); });
        },
        new Request{this, _life});
}

void GtkHostTextField::takeDrop(GdkDragContext* context, GtkSelectionData* data, guint time)
{
    const GText text(reinterpret_cast<char*>(gtk_selection_data_get_text(data)));
    gtk_drag_finish(context, text != nullptr, FALSE, time);
    if (!text) return;
    gtk_widget_grab_focus(widget());
    _entry.bring(coreText(text.get()));
}

void GtkHostTextField::setStringValue(const std::u16string& text)
{
    if (widget() != nullptr) _entry.setStringValue(text);
}

std::u16string GtkHostTextField::text() const
{
    return widget() != nullptr ? coreText(gtk_entry_get_text(entry())) : std::u16string();
}

void GtkHostTextField::writeText(const std::u16string& text)
{
    if (widget() != nullptr) gtk_entry_set_text(entry(), gtkText(text).c_str());
}

EntryWidget::Range GtkHostTextField::selection() const
{
    if (widget() == nullptr) return {};
    const std::u16string shown = text();
    const int caret = gtk_editable_get_position(editable());
    int start = caret;
    int end = caret;
    gtk_editable_get_selection_bounds(editable(), &start, &end);
    const int anchor = caret == start ? end : start;
    return {unitsOfCharacters(shown, anchor), unitsOfCharacters(shown, caret)};
}

void GtkHostTextField::select(Range range)
{
    if (widget() == nullptr) return;
    const std::u16string shown = text();
    gtk_editable_select_region(editable(), charactersOfUnits(shown, range.anchor),
                               charactersOfUnits(shown, range.caret));
}

void GtkHostTextField::insert(const std::u16string& text)
{
    if (widget() == nullptr) return;
    // A field has one line.
    std::u16string line = text;
    std::replace_if(
        line.begin(), line.end(), [](char16_t c) { return c == u'\n' || c == u'\r'; }, u' ');
    const std::string bytes = gtkText(line);
    gtk_editable_delete_selection(editable());
    int position = gtk_editable_get_position(editable());
    gtk_editable_insert_text(editable(), bytes.c_str(), static_cast<int>(bytes.size()), &position);
    gtk_editable_set_position(editable(), position);
}

bool GtkHostTextField::hasFocus() const
{
    return widget() != nullptr && gtk_widget_is_focus(widget());
}

bool GtkHostTextField::isVisible() const
{
    return widget() != nullptr && gtk_widget_get_mapped(widget());
}

void GtkHostTextField::afterChange(const std::function<void()>& reaction)
{
    _reaction.callSoon(reaction);
}

bool GtkHostTextField::offerText(const std::u16string& text)
{
    return _panel.takeText && _panel.takeText(text);
}

void GtkHostTextField::entryGivenUp()
{
    if (_panel.restore) _panel.restore();
}

GtkHostLabel::GtkHostLabel(const HostControlDescription& description)
    : GtkMirrored(description.frame, gtk_label_new(nullptr)), _style(widget(), description)
{
    nameGtkWidget(widget(), description.identifier, description.accessibleName);
    gtk_misc_set_alignment(reinterpret_cast<GtkMisc*>(widget()), alignmentOf(description), 0.5F);
    setStringValue(description.title);
}

void GtkHostLabel::setStringValue(const std::u16string& text)
{
    _text = text;
    if (widget() == nullptr) return;
    const std::string shown = gtkText(text);
    gtk_label_set_text(GTK_LABEL(widget()), shown.c_str());
    // The accessible name hides the text from assistive technology unless they are the same.
    AtkObject* accessible = gtk_widget_get_accessible(widget());
    const char* name = atk_object_get_name(accessible);
    if (name == nullptr || shown != name) atk_object_set_description(accessible, shown.c_str());
}

void GtkHostLabel::setTextColor(const HostColor& color)
{
    if (widget() != nullptr) _style.setTextColor(color);
}

}  // namespace vantorel
