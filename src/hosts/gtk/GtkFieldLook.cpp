#include "hosts/gtk/GtkFieldLook.h"

#include "hosts/gtk/GtkTextScale.h"

namespace vantorel {

GtkFieldLook::GtkFieldLook(GtkWidget* field, const HostControlDescription& description)
    : _field(field), _style(field, description)
{
    // The theme's colours may have changed. It is too early to change any while GTK says so.
    const auto styleDidChange = [this] { _colorReaction.callSoon([this] { showColor(); }); };
#if GTK_MAJOR_VERSION >= 3
    _signals.connect<void>(field, "style-updated", styleDidChange);
#else
    _signals.connect<void, GtkStyle*>(field, "style-set",
                                      [styleDidChange](GtkStyle*) { styleDidChange(); });
#endif
}

void GtkFieldLook::setTextColor(const HostColor& color)
{
    if (color == _color) return;
    _color = color;
    showColor();
}

void GtkFieldLook::showColor()
{
    if (_field.get() != nullptr) _style.setTextColor(_color);
}

void GtkFieldLook::fit(double width)
{
    constexpr double besideText = 10;
    GtkWidget* field = _field.get();
    if (field == nullptr) return;
    if (gtk_widget_is_focus(field)) {
        _style.useWholeFont();
    } else {
        const char* text = gtk_entry_get_text(reinterpret_cast<GtkEntry*>(field));
        _style.fitFont(text, width * gtkTextScale() - besideText);
    }
}

}  // namespace vantorel
