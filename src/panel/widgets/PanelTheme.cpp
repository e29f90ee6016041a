#include "panel/widgets/PanelTheme.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

#include <array>

namespace vantorel {
namespace {

struct ThemeColor {
    QPalette::ColorRole role;
    const char* light;
    const char* dark;
};

constexpr std::array themeColors{
    ThemeColor{QPalette::Window, "#efeff1", "#2b2c30"},
    ThemeColor{QPalette::WindowText, "#1c1c1e", "#ececee"},
    ThemeColor{QPalette::Base, "#ffffff", "#1f2023"},
    ThemeColor{QPalette::AlternateBase, "#f5f5f7", "#26272b"},
    ThemeColor{QPalette::Text, "#1c1c1e", "#ececee"},
    ThemeColor{QPalette::Button, "#f4f4f6", "#3a3b40"},
    ThemeColor{QPalette::ButtonText, "#1c1c1e", "#ececee"},
    ThemeColor{QPalette::BrightText, "#ffffff", "#ffffff"},
    ThemeColor{QPalette::ToolTipBase, "#ffffe8", "#3a3b40"},
    ThemeColor{QPalette::ToolTipText, "#1c1c1e", "#ececee"},
    ThemeColor{QPalette::Highlight, "#2f6fd6", "#3f7fe6"},
    ThemeColor{QPalette::HighlightedText, "#ffffff", "#ffffff"},
    ThemeColor{QPalette::Link, "#1f5fc6", "#7fb0ff"},
    ThemeColor{QPalette::PlaceholderText, "#77777c", "#97979c"},
    ThemeColor{QPalette::Light, "#ffffff", "#4a4b50"},
    ThemeColor{QPalette::Midlight, "#f8f8fa", "#424348"},
    ThemeColor{QPalette::Mid, "#b4b4b8", "#5a5b60"},
    ThemeColor{QPalette::Dark, "#9a9a9e", "#1a1b1e"},
    ThemeColor{QPalette::Shadow, "#70707a", "#0c0c0e"},
};

}  // namespace

bool applyTheme(const QString& name)
{
    const bool dark = name == QLatin1String("dark");
    if (!dark && name != QLatin1String("light")) return false;
    QPalette palette;
    for (const ThemeColor& row : themeColors) {
        const QColor color(dark ? row.dark : row.light);
        palette.setColor(row.role, color);
    }
    const QColor faint(dark ? "#77777c" : "#9a9a9e");
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(palette);
    return true;
}

}  // namespace vantorel
