#pragma once

#include "host/HostColor.h"
#include "host/HostInterfaceFactory.h"
#include "hosts/common/ThemeMixtures.h"
#include "hosts/gtk/GtkReferences.h"

#include <optional>

/// Fonts and colours of the theme, and what a page's controls change of it.
namespace vantorel {

struct PangoFontDescriptionFree {
    void operator()(PangoFontDescription* font) const { pango_font_description_free(font); }
};
using PangoFont = std::unique_ptr<PangoFontDescription, PangoFontDescriptionFree>;

/// The height of the desktop's general font, in pixels.
[[nodiscard]] double generalFontHeight();

/// The desktop's sans-serif font. A point of the core is `gtkTextScale()` pixels.
[[nodiscard]] PangoFont gtkFontOfSize(double points);

/// The size of a control's font: 11 points unless its description has one.
[[nodiscard]] double pointSizeOf(const HostControlDescription& description);

/// The look of a control: the theme's, but in the page's font, and no larger than its frame.
class GtkControlStyle {
public:
    GtkControlStyle(GtkWidget* widget, const HostControlDescription& description);

    /// Makes the font a little smaller if a line then fits into `room` pixels.
    void fitFont(const char* text, double room);
    void useWholeFont();
    /// Shows a text colour of the core, readable on the theme's ground. Call it again when the
    /// theme has changed.
    void setTextColor(const HostColor& color);

private:
    void apply();

    GtkWidget* _widget;
    /// The height of the font, in pixels.
    int _fullSize;
    int _size;
    bool _isMonospaced;
    std::optional<HostColor> _color;
#if GTK_MAJOR_VERSION >= 3
    GtkReference<GtkCssProvider> _provider;
#endif
};

/// Gives a control the look of a light theme: it lies on a ground of the core, which is light in
/// every theme.
void styleForLightGround(GtkWidget* widget);

/// The theme's text colour on a widget.
[[nodiscard]] HostColor themeTextColor(GtkWidget* widget);
/// The theme's colour for what is selected.
[[nodiscard]] HostColor themeSelectionColor(GtkWidget* widget);

/// The theme's colours for a widget that paints itself.
[[nodiscard]] ThemeBasis themeBasisOf(GtkWidget* widget);

/// The arrow of a pop-up, in the middle of a rectangle.
void drawPopUpArrow(cairo_t* cairo, const HostColor& color, double centerX, double centerY);

/// Selects a colour of the core for cairo; false for a pattern.
bool setCairoColor(cairo_t* cairo, const HostColor& color);

}  // namespace vantorel
