#include "panel/widgets/ThemeColors.h"

#include "csscolor/Contrast.h"
#include "hosts/qt/QtColors.h"

namespace vantorel {
namespace {

double contrastOf(const QColor& a, const QColor& b)
{
    return contrastRatio(hostColorFrom(a), hostColorFrom(b)).value_or(1);
}

QColor mixedColor(const QColor& from, const QColor& to, double share)
{
    const auto channel = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return {channel(from.red(), to.red()), channel(from.green(), to.green()),
            channel(from.blue(), to.blue())};
}

/// Returns `ground` mixed with at least `share` of `text`, and with more until it reaches the
/// contrast.
QColor readableMixture(const QColor& ground, const QColor& text, double share, double contrast)
{
    constexpr double step = 0.05;
    for (; share < 1; share += step) {
        const QColor mixture = mixedColor(ground, text, share);
        if (contrastOf(mixture, ground) >= contrast) return mixture;
    }
    return text;
}

}  // namespace

ThemeColors themeColors(const QPalette& palette)
{
    ThemeColors colors;
    colors.window = palette.color(QPalette::Window);
    colors.base = palette.color(QPalette::Base);
    colors.control = palette.color(QPalette::Button);
    colors.text = palette.color(QPalette::WindowText);
    colors.isDark = contrastOf(colors.window, Qt::white) > contrastOf(colors.window, Qt::black);
    colors.hover = mixedColor(colors.window, colors.text, 0.06);
    colors.down = mixedColor(colors.window, colors.text, 0.14);
    constexpr double textContrast = 4.5;
    constexpr double edgeContrast = 3;
    colors.text2 = readableMixture(colors.window, colors.text, 0.7, textContrast);
    colors.edge = readableMixture(colors.window, colors.text, 0.45, edgeContrast);
    colors.textOff = mixedColor(colors.window, colors.text, 0.45);
    colors.line = mixedColor(colors.window, colors.text, 0.14);
    colors.accent = palette.color(QPalette::Highlight);
    colors.onAccent = palette.color(QPalette::HighlightedText);
    colors.error = QColor(colors.isDark ? "#ff9c92" : "#b3261e");
    colors.good = QColor(colors.isDark ? "#84d6a0" : "#1c6b36");
    colors.warn = QColor(colors.isDark ? "#f0c36a" : "#855300");
    colors.swatchLine = colors.isDark ? QColor(255, 255, 255, 66) : QColor(0, 0, 0, 56);
    colors.checkA = QColor(colors.isDark ? "#5a5a5a" : "#ffffff");
    colors.checkB = QColor(colors.isDark ? "#3e3e3e" : "#d0d0d0");
    return colors;
}

}  // namespace vantorel
