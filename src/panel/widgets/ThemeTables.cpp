#include "panel/widgets/ThemeTables.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

ThemeColors makeLightTheme()
{
    ThemeColors colors;
    colors.window = QColor(0xf2, 0xf2, 0xf2);
    colors.base = QColor(0xff, 0xff, 0xff);
    colors.control = QColor(0xfa, 0xfa, 0xfa);
    colors.hover = QColor(0xec, 0xec, 0xec);
    colors.down = QColor(0xe0, 0xe0, 0xe0);
    colors.text = QColor(0x1a, 0x1a, 0x1a);
    colors.text2 = QColor(0x57, 0x57, 0x57);
    colors.textOff = QColor(0x8e, 0x8e, 0x8e);
    colors.edge = QColor(0x85, 0x85, 0x85);
    colors.line = QColor(0xd6, 0xd6, 0xd6);
    colors.accent = QColor(0x1a, 0x5f, 0xd0);
    colors.onAccent = QColor(0xff, 0xff, 0xff);
    colors.error = QColor(0xb3, 0x26, 0x1e);
    colors.good = QColor(0x1c, 0x6b, 0x36);
    colors.warn = QColor(0x85, 0x53, 0x00);
    colors.swatchLine = QColor(0, 0, 0, 56);
    colors.checkA = QColor(0xff, 0xff, 0xff);
    colors.checkB = QColor(0xd0, 0xd0, 0xd0);
    colors.plane = QColor(0xe6, 0xe6, 0xe6);
    colors.hatch = QColor(0, 0, 0, 41);
    return colors;
}

ThemeColors makeDarkTheme()
{
    ThemeColors colors;
    colors.window = QColor(0x24, 0x24, 0x24);
    colors.base = QColor(0x19, 0x19, 0x19);
    colors.control = QColor(0x30, 0x30, 0x30);
    colors.hover = QColor(0x3a, 0x3a, 0x3a);
    colors.down = QColor(0x45, 0x45, 0x45);
    colors.text = QColor(0xec, 0xec, 0xec);
    colors.text2 = QColor(0xb4, 0xb4, 0xb4);
    colors.textOff = QColor(0x74, 0x74, 0x74);
    colors.edge = QColor(0x82, 0x82, 0x82);
    colors.line = QColor(0x3c, 0x3c, 0x3c);
    colors.accent = QColor(0x78, 0xa9, 0xff);
    colors.onAccent = QColor(0x0b, 0x1a, 0x33);
    colors.error = QColor(0xff, 0x9c, 0x92);
    colors.good = QColor(0x84, 0xd6, 0xa0);
    colors.warn = QColor(0xf0, 0xc3, 0x6a);
    colors.swatchLine = QColor(255, 255, 255, 66);
    colors.checkA = QColor(0x5a, 0x5a, 0x5a);
    colors.checkB = QColor(0x3e, 0x3e, 0x3e);
    colors.plane = QColor(0x30, 0x30, 0x30);
    colors.hatch = QColor(255, 255, 255, 38);
    colors.isDark = true;
    return colors;
}

ThemeColors makeContrastTheme()
{
    ThemeColors colors;
    colors.window = colors.base = colors.control = QColor(0, 0, 0);
    colors.hover = QColor(0x1f, 0x1f, 0x1f);
    colors.down = QColor(0x33, 0x33, 0x33);
    colors.text = colors.text2 = QColor(255, 255, 255);
    colors.textOff = QColor(0x9a, 0x9a, 0x9a);
    colors.edge = colors.line = QColor(255, 255, 255);
    colors.accent = QColor(0xff, 0xe2, 0x4a);
    colors.onAccent = QColor(0, 0, 0);
    colors.error = QColor(0xff, 0xb4, 0xac);
    colors.good = QColor(0x9d, 0xff, 0xb8);
    colors.warn = QColor(0xff, 0xe2, 0x4a);
    colors.swatchLine = QColor(255, 255, 255);
    colors.checkA = QColor(0x70, 0x70, 0x70);
    colors.checkB = QColor(0x30, 0x30, 0x30);
    colors.plane = QColor(0, 0, 0);
    colors.hatch = QColor(255, 255, 255, 102);
    colors.isDark = true;
    colors.isHighContrast = true;
    return colors;
}

}  // namespace

const ThemeColors& lightTheme()
{
    static const ThemeColors theme = makeLightTheme();
    return theme;
}

const ThemeColors& darkTheme()
{
    static const ThemeColors theme = makeDarkTheme();
    return theme;
}

const ThemeColors& contrastTheme()
{
    static const ThemeColors theme = makeContrastTheme();
    return theme;
}

QPalette paletteOf(const ThemeColors& theme)
{
    QPalette palette;
    const auto set = [&palette](const QColor& color,
                                std::initializer_list<QPalette::ColorRole> roles) {
        for (const QPalette::ColorRole role : roles)
            palette.setColor(role, color);
    };
    set(theme.window, {QPalette::Window, QPalette::AlternateBase});
    set(theme.base, {QPalette::Base, QPalette::ToolTipBase});
    set(theme.control, {QPalette::Button});
    set(theme.hover, {QPalette::Midlight});
    set(theme.down, {QPalette::Dark});
    set(theme.text, {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                     QPalette::ToolTipText, QPalette::BrightText, QPalette::Shadow});
    set(theme.text2, {QPalette::PlaceholderText});
    set(theme.edge, {QPalette::Mid});
    set(theme.line, {QPalette::Light});
    set(theme.accent, {QPalette::Highlight, QPalette::Link, QPalette::LinkVisited});
    set(theme.onAccent, {QPalette::HighlightedText});
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
    set(theme.accent, {QPalette::Accent});
#endif
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::PlaceholderText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, theme.textOff);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, theme.down);
    return palette;
}

const ThemeColors* themeOf(const QPalette& palette)
{
    // Roles that no widget changes for itself while it keeps the theme's ground.
    const auto has = [&palette](QPalette::ColorRole role, const QColor& color) {
        return palette.color(QPalette::Active, role) == color;
    };
    const std::array themes{&lightTheme(), &darkTheme(), &contrastTheme()};
    const auto* const found =
        std::find_if(themes.begin(), themes.end(), [&has](const ThemeColors* theme) {
            return has(QPalette::Window, theme->window) && has(QPalette::Base, theme->base) &&
                   has(QPalette::Button, theme->control) && has(QPalette::Mid, theme->edge) &&
                   has(QPalette::Link, theme->accent);
        });
    return found != themes.end() ? *found : nullptr;
}

}  // namespace vantorel
