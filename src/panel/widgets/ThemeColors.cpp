#include "panel/widgets/ThemeColors.h"

#include "csscolor/Contrast.h"
#include "hosts/qt/QtColors.h"
#include "panel/widgets/ThemeTables.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

constexpr double textContrast = 4.5;
constexpr double edgeContrast = 3;
constexpr double shareStep = 0.05;

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

/// Returns whether a colour reaches a contrast on every ground on which the text itself does. A
/// palette may have grounds of its own for other texts.
template <class Grounds>
bool isReadable(const QColor& color, const QColor& text, const Grounds& grounds, double contrast)
{
    return std::all_of(grounds.begin(), grounds.end(), [&](const QColor& ground) {
        return contrastOf(color, ground) >= contrast || contrastOf(text, ground) < contrast;
    });
}

/// Mixes at least `share` of `text` into `from`, and more until the contrast is reached.
template <class Grounds>
QColor readableMixture(const QColor& from, const QColor& text, double share, const Grounds& grounds,
                       double contrast)
{
    while (share < 1) {
        const QColor mixture = mixedColor(from, text, share);
        if (isReadable(mixture, text, grounds, contrast)) return mixture;
        share += shareStep;
    }
    return text;
}

/// Mixes at most `share` of `text` into a ground, so that the text remains readable on it.
QColor shadedGround(const QColor& ground, const QColor& text, double share)
{
    const double wanted = std::min(textContrast, contrastOf(ground, text));
    while (share > 0) {
        const QColor mixture = mixedColor(ground, text, share);
        if (contrastOf(mixture, text) >= wanted) return mixture;
        share -= shareStep / 5;
    }
    return ground;
}

/// The colours of a palette from which all others are derived.
struct PaletteColors {
    explicit PaletteColors(const QPalette& palette)
        : window(palette.color(QPalette::Active, QPalette::Window)),
          base(palette.color(QPalette::Active, QPalette::Base)),
          control(palette.color(QPalette::Active, QPalette::Button)),
          text(palette.color(QPalette::Active, QPalette::WindowText)),
          accent(palette.color(QPalette::Active, QPalette::Highlight)),
          onAccent(palette.color(QPalette::Active, QPalette::HighlightedText))
    {
    }

    bool operator==(const PaletteColors&) const = default;

    QColor window;
    QColor base;
    QColor control;
    QColor text;
    QColor accent;
    QColor onAccent;
};

/// The colour that is read best on the accent: the palette's, or else black or white.
QColor textOnAccent(const QColor& accent, const QColor& wanted)
{
    if (contrastOf(wanted, accent) >= textContrast) return wanted;
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    return contrastOf(black, accent) > contrastOf(white, accent) ? black : white;
}

ThemeColors derivedColors(const PaletteColors& given)
{
    ThemeColors colors;
    colors.window = given.window;
    colors.base = given.base;
    colors.control = given.control;
    colors.text = given.text;
    colors.isDark = contrastOf(colors.window, Qt::white) > contrastOf(colors.window, Qt::black);
    colors.hover = shadedGround(colors.window, colors.text, 0.06);
    colors.down = shadedGround(colors.window, colors.text, 0.14);

    const std::array atRest{colors.window, colors.base, colors.control};
    const std::array all{colors.window, colors.base, colors.control, colors.hover, colors.down};
    colors.text2 = readableMixture(colors.window, colors.text, 0.7, all, textContrast);
    colors.edge = readableMixture(colors.window, colors.text, 0.45, atRest, edgeContrast);
    colors.textOff = mixedColor(colors.window, colors.text, 0.45);
    colors.line = mixedColor(colors.window, colors.text, 0.14);
    colors.accent = readableMixture(given.accent, colors.text, 0, atRest, edgeContrast);
    colors.onAccent = textOnAccent(colors.accent, given.onAccent);

    const ThemeColors& own = colors.isDark ? darkTheme() : lightTheme();
    const auto signal = [&](const QColor& color) {
        return readableMixture(color, colors.text, 0, atRest, textContrast);
    };
    colors.error = signal(own.error);
    colors.good = signal(own.good);
    colors.warn = signal(own.warn);
    colors.swatchLine = own.swatchLine;
    colors.checkA = own.checkA;
    colors.checkB = own.checkB;
    colors.plane = mixedColor(colors.window, colors.text, 0.06);
    colors.hatch = own.hatch;
    return colors;
}

}  // namespace

ThemeColors themeColors(const QPalette& palette)
{
    if (const ThemeColors* own = themeOf(palette)) return *own;
    // The last ones are kept, because all parts of a window ask for the same with every painting.
    const PaletteColors given(palette);
    static PaletteColors known = given;
    static ThemeColors colors = derivedColors(known);
    if (!(given == known)) {
        known = given;
        colors = derivedColors(given);
    }
    return colors;
}

}  // namespace vantorel
