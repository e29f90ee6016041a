#include "panel/window/FormNames.h"

#include "csscolor/GamutMapping.h"
#include "hosts/qt/DisplayNames.h"
#include "hosts/qt/QtColors.h"
#include "text/HexDigits.h"

#include <algorithm>

namespace vantorel {
namespace {

/// Whether a text is a hex code, with or without "#".
bool isHexCode(const QString& text)
{
    if (text.startsWith(u'#')) return true;
    return (text.size() == 6 || text.size() == 8) &&
           std::ranges::all_of(text, [](QChar c) { return isHexDigit(char16_t{c.unicode()}); });
}

}  // namespace

QString shortFormName(const HostColorText& form)
{
    constexpr std::u16string_view css = u" (CSS)";
    if (form.name == u"Hex Code") return QStringLiteral("HEX");
    if (form.name.ends_with(css))
        return qStringFrom(std::u16string_view(form.name).substr(0, form.name.size() - css.size()));
    return shownName(form);
}

QString shortFormNameOfText(const QString& text)
{
    QString name = text.section(u'(', 0, 0).trimmed().toUpper();
    if (isHexCode(text)) return QStringLiteral("HEX");
    if (name == QLatin1String("RGBA")) return QStringLiteral("RGB");
    for (const char* known : {"RGB", "HSL", "OKLCH"})
        if (name == QLatin1String(known)) return name;
    return {};
}

QString roundedOklchText(const HostColor& color)
{
    const QColor shown = qColorFrom(color);
    if (!shown.isValid()) return {};
    ColorTriple srgb{shown.redF(), shown.greenF(), shown.blueF()};
    if (isOutsideSRGB(color)) {
        const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
        srgb = {rgb.red, rgb.green, rgb.blue};
    }
    const ColorTriple oklch = polarFromRectangular(oklabFromSRGB(srgb));
    const auto [lightness, chroma, hue] = oklch;
    constexpr double leastChroma = 0.0005;
    const bool isGrey = chroma < leastChroma;
    const QString alpha =
        shown.alpha() < 255 ? QStringLiteral(" / %1").arg(shown.alphaF(), 0, 'g', 2) : QString();
    return QStringLiteral("oklch(%1% %2 %3%4)")
        .arg(lightness * 100, 0, 'f', 1)
        .arg(isGrey ? 0 : chroma, 0, 'f', isGrey ? 0 : 3)
        .arg(isGrey ? 0 : hue, 0, 'f', isGrey ? 0 : 1)
        .arg(alpha);
}

}  // namespace vantorel
