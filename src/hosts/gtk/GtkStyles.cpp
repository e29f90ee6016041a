#include "hosts/gtk/GtkStyles.h"

#include "hosts/common/ReadableColor.h"
#include "hosts/common/TextScale.h"
#include "hosts/gtk/GtkTextScale.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace vantorel {
namespace {

constexpr double usualPointSize = 11;
constexpr double pointsPerInch = 72;

/// The font that the user has chosen for the desktop.
PangoFont generalFont()
{
    gchar* chosen = nullptr;
    g_object_get(gtk_settings_get_default(), "gtk-font-name", &chosen, nullptr);
    const GText name(chosen);
    return PangoFont(pango_font_description_from_string(name ? name.get() : "Sans 10"));
}

#if GTK_MAJOR_VERSION >= 3
std::string cssColor(const HostColor& color)
{
    const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
    const auto byte = [](double channel) {
        return std::to_string(channel > 0 ? std::lround(std::min(channel, 1.0) * 255) : 0);
    };
    return "rgb(" + byte(rgb.red) + "," + byte(rgb.green) + "," + byte(rgb.blue) + ")";
}

void addProvider(GtkWidget* widget, GtkCssProvider* provider, guint above)
{
    gtk_style_context_add_provider(gtk_widget_get_style_context(widget),
                                   GTK_STYLE_PROVIDER(provider),
                                   GTK_STYLE_PROVIDER_PRIORITY_APPLICATION + above);
}

GtkReference<GtkCssProvider> providerOf(const char* css)
{
    auto provider = GtkReference<GtkCssProvider>::adopt(gtk_css_provider_new());
    gtk_css_provider_load_from_data(provider.get(), css, -1, nullptr);
    return provider;
}

/// Themes give fields and buttons more room around their texts than a page has. Sliding pictures
/// would also be painted long after a change.
GtkCssProvider* compactProvider()
{
    static const auto provider = providerOf(
        "entry { min-height: 0; min-width: 0; padding: 0 4px; }"
        "button { min-height: 0; min-width: 0; padding: 0 2px; margin: 0; }"
        "checkbutton, label { min-height: 0; min-width: 0; padding: 0; margin: 0; }"
        "check { min-height: 12px; min-width: 12px; margin: 0 4px 0 0; }");
    return provider.get();
}

GtkCssProvider* lightGroundProvider()
{
    static const auto provider = providerOf(
        "label, checkbutton { color: #2e3436; background: none; text-shadow: none; }"
        "button { color: #2e3436; background: none; background-color: rgba(246,245,244,0.9);"
        " border-color: #cdc7c2; text-shadow: none; -gtk-icon-shadow: none; box-shadow: none; }"
        "button:hover { background-color: #ffffff; }"
        "button:active { background-color: #d6d1cd; }");
    return provider.get();
}
#else
void parseCompactStyle()
{
    static const bool parsed = [] {
        gtk_rc_parse_string(
            "style \"vantorel-compact\" {\n"
            "  xthickness = 1\n  ythickness = 1\n"
            "  GtkButton::inner-border = { 0, 0, 0, 0 }\n"
            "  GtkButton::default-border = { 0, 0, 0, 0 }\n"
            "  GtkEntry::inner-border = { 2, 2, 0, 0 }\n"
            "  GtkWidget::focus-padding = 0\n"
            "  GtkCheckButton::indicator-spacing = 0\n"
            "}\n"
            "widget_class \"*<VantorelBox*>*\" style \"vantorel-compact\"\n"
            "widget_class \"*.VantorelBox*\" style \"vantorel-compact\"\n");
        return true;
    }();
    static_cast<void>(parsed);
}

GdkColor gdkColor(const HostColor& color)
{
    const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
    const auto word = [](double channel) {
        return static_cast<guint16>(channel > 0 ? std::lround(std::min(channel, 1.0) * 65535) : 0);
    };
    return {0, word(rgb.red), word(rgb.green), word(rgb.blue)};
}

constexpr HostColor textOnLightGround = HostColor::colorWithCalibratedRed(0.18, 0.2, 0.21, 1);

HostColor coreColor(const GdkColor& color)
{
    return HostColor::colorWithCalibratedRed(color.red / 65535.0, color.green / 65535.0,
                                             color.blue / 65535.0, 1);
}
#endif

int pixelsOfFont(double points)
{
    return std::max(1, static_cast<int>(std::lround(points * gtkTextScale())));
}

PangoFont fontOfHeight(int pixels, bool isMonospaced)
{
    PangoFont font = generalFont();
    if (isMonospaced) pango_font_description_set_family(font.get(), "monospace");
    pango_font_description_set_absolute_size(font.get(), pixels * static_cast<double>(PANGO_SCALE));
    return font;
}

}  // namespace

double generalFontHeight()
{
    const PangoFont font = generalFont();
    const double size =
        pango_font_description_get_size(font.get()) / static_cast<double>(PANGO_SCALE);
    if (pango_font_description_get_size_is_absolute(font.get())) return size;
    const double dotsPerInch = gdk_screen_get_resolution(gdk_screen_get_default());
    return size * (dotsPerInch > 0 ? dotsPerInch : 96) / pointsPerInch;
}

PangoFont gtkFontOfSize(double points)
{
    return fontOfHeight(pixelsOfFont(points), false);
}

double pointSizeOf(const HostControlDescription& description)
{
    return description.pointSize > 0 ? description.pointSize : usualPointSize;
}

GtkControlStyle::GtkControlStyle(GtkWidget* widget, const HostControlDescription& description)
    : _widget(widget),
      _fullSize(pixelsOfFont(pointSizeOf(description))),
      _size(_fullSize),
      _isMonospaced(description.monospaced)
{
#if GTK_MAJOR_VERSION >= 3
    _provider = GtkReference<GtkCssProvider>::adopt(gtk_css_provider_new());
    addProvider(widget, compactProvider(), 1);
    addProvider(widget, _provider.get(), 2);
#else
    parseCompactStyle();
#endif
    apply();
}

void GtkControlStyle::fitFont(const char* text, double room)
{
    const auto layout =
        GtkReference<PangoLayout>::adopt(gtk_widget_create_pango_layout(_widget, text));
    pango_layout_set_font_description(layout.get(), fontOfHeight(_fullSize, _isMonospaced).get());
    int width = 0;
    pango_layout_get_pixel_size(layout.get(), &width, nullptr);
    const int size = fittedTextSize(_fullSize, width, room);
    if (size == _size) return;
    _size = size;
    apply();
}

void GtkControlStyle::useWholeFont()
{
    if (_size == _fullSize) return;
    _size = _fullSize;
    apply();
}

void GtkControlStyle::setTextColor(const HostColor& color)
{
    // Asked of the window, because the widget may have our colour. A light text means a dark
    // ground.
    const HostColor usual = themeTextColor(gtk_widget_get_toplevel(_widget));
    const HostColor ground =
        isDarkGround(usual) ? HostColor::whiteColor() : HostColor::blackColor();
    const HostColor shown = readableTextColor(color, ground, usual);
    const auto wanted = shown == usual ? std::nullopt : std::optional(shown);
    if (wanted == _color) return;
    _color = wanted;
#if GTK_MAJOR_VERSION >= 3
    apply();
#else
    const GdkColor text = _color ? gdkColor(*_color) : GdkColor();
    const auto modify = GTK_IS_ENTRY(_widget) ? gtk_widget_modify_text : gtk_widget_modify_fg;
    modify(_widget, GTK_STATE_NORMAL, _color ? &text : nullptr);
#endif
}

void GtkControlStyle::apply()
{
#if GTK_MAJOR_VERSION >= 3
    std::string css = "* { font-size: " + std::to_string(_size) + "px;";
    if (_isMonospaced) css += " font-family: monospace;";
    css += " }";
    if (_color) css += " entry, label { color: " + cssColor(*_color) + "; }";
    gtk_css_provider_load_from_data(_provider.get(), css.c_str(), -1, nullptr);
#else
    // The text of a button is a widget of its own.
    GtkWidget* texts = GTK_IS_BUTTON(_widget) ? gtk_bin_get_child(GTK_BIN(_widget)) : _widget;
    if (texts == nullptr) texts = _widget;
    gtk_widget_modify_font(texts, fontOfHeight(_size, _isMonospaced).get());
#endif
}

void styleForLightGround(GtkWidget* widget)
{
    constexpr const char* styledKey = "vantorel-light-ground";
    if (g_object_get_data(G_OBJECT(widget), styledKey) != nullptr) return;
    g_object_set_data(G_OBJECT(widget), styledKey, widget);
#if GTK_MAJOR_VERSION >= 3
    addProvider(widget, lightGroundProvider(), 3);
    if (!GTK_IS_BUTTON(widget)) return;
#else
    // A theme can paint buttons with pictures, and paints what the mouse is over. Their texts stay
    // the theme's, too.
    const bool isCheckBox = GTK_IS_CHECK_BUTTON(widget);
    const bool isButton = GTK_IS_BUTTON(widget) && !isCheckBox;
    if (isButton && gtk_button_get_relief(GTK_BUTTON(widget)) != GTK_RELIEF_NONE) return;
    const GdkColor dark = gdkColor(textOnLightGround);
    gtk_widget_modify_fg(widget, GTK_STATE_NORMAL, &dark);
    // A check box that is checked is active.
    if (!isButton) gtk_widget_modify_fg(widget, GTK_STATE_ACTIVE, &dark);
    if (!isCheckBox) return;
#endif
    // The text of a button is a widget of its own.
    if (GtkWidget* text = gtk_bin_get_child(GTK_BIN(widget))) styleForLightGround(text);
}

HostColor themeTextColor(GtkWidget* widget)
{
#if GTK_MAJOR_VERSION >= 3
    GtkStyleContext* context = gtk_widget_get_style_context(widget);
    GdkRGBA color;
    gtk_style_context_get_color(context, gtk_style_context_get_state(context), &color);
    return HostColor::colorWithCalibratedRed(color.red, color.green, color.blue, color.alpha);
#else
    const GtkStyle* style = gtk_widget_get_style(widget);
    return coreColor(GTK_IS_ENTRY(widget) ? style->text[GTK_STATE_NORMAL]
                                          : style->fg[gtk_widget_get_state(widget)]);
#endif
}

HostColor themeSelectionColor(GtkWidget* widget)
{
#if GTK_MAJOR_VERSION >= 3
    GdkRGBA color{0.2, 0.5, 0.9, 1};
    for (const char* name : {"theme_selected_bg_color", "accent_bg_color"}) {
        if (gtk_style_context_lookup_color(gtk_widget_get_style_context(widget), name, &color))
            break;
    }
    return HostColor::colorWithCalibratedRed(color.red, color.green, color.blue, color.alpha);
#else
    return coreColor(gtk_widget_get_style(widget)->bg[GTK_STATE_SELECTED]);
#endif
}

ThemeBasis themeBasisOf(GtkWidget* widget)
{
    ThemeBasis basis;
    basis.text = themeTextColor(widget);
    basis.accent = themeSelectionColor(widget);
#if GTK_MAJOR_VERSION >= 3
    const bool isLightText = !isDarkGround(basis.text);
    basis.window = isLightText ? HostColor::blackColor() : HostColor::whiteColor();
    basis.base = basis.window;
    GtkStyleContext* context = gtk_widget_get_style_context(widget);
    const auto look = [context](const char* name, HostColor& found) {
        GdkRGBA color;
        if (!gtk_style_context_lookup_color(context, name, &color)) return;
        found = HostColor::colorWithCalibratedRed(color.red, color.green, color.blue, 1);
    };
    look("theme_bg_color", basis.window);
    look("theme_base_color", basis.base);
#else
    const GtkStyle* style = gtk_widget_get_style(widget);
    basis.window = coreColor(style->bg[GTK_STATE_NORMAL]);
    basis.base = coreColor(style->base[GTK_STATE_NORMAL]);
#endif
    return basis;
}

void drawPopUpArrow(cairo_t* cairo, const HostColor& color, double centerX, double centerY)
{
    constexpr double half = 3.5;
    if (!setCairoColor(cairo, color)) return;
    cairo_set_line_width(cairo, 1.5);
    cairo_move_to(cairo, centerX - half, centerY - half / 2);
    cairo_line_to(cairo, centerX, centerY + half / 2);
    cairo_line_to(cairo, centerX + half, centerY - half / 2);
    cairo_stroke(cairo);
}

bool setCairoColor(cairo_t* cairo, const HostColor& color)
{
    const auto rgb = color.calibratedRGB();
    if (!rgb) return false;
    // Written so that NaN becomes 0: cairo's own limits would let it pass.
    const auto fraction = [](double channel) { return channel > 0 ? std::min(channel, 1.0) : 0.0; };
    cairo_set_source_rgba(cairo, fraction(rgb->red), fraction(rgb->green), fraction(rgb->blue),
                          fraction(rgb->alpha));
    return true;
}

}  // namespace vantorel
