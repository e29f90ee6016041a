#include "hosts/qt/QtColors.h"

#include "host/HostColor.h"
#include "host/HostInterfaceFactory.h"
#include "host/HostText.h"
#include "hosts/common/ReadableColor.h"
#include "hosts/qt/QtVersions.h"
#include "hosts/qt/TextScale.h"

#include <QApplication>
#include <QFontDatabase>

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

quint16 channel(double value)
{
    constexpr double largest = 65535;
    // This is correct for non-negative values, and unlike std::lround it is inlined.
    // NOLINTNEXTLINE(bugprone-incorrect-roundings)
    return value > 0 ? static_cast<quint16>(std::min(value, 1.0) * largest + 0.5) : quint16{0};
}

}  // namespace

QColor qColorFrom(const HostColor& color)
{
    const auto rgb = color.calibratedRGB();
    if (!rgb) return {};
    return QColor::fromRgba64(channel(rgb->red), channel(rgb->green), channel(rgb->blue),
                              channel(rgb->alpha));
}

HostColor hostColorFrom(const QColor& color)
{
    // From the 16-bit words, so that a byte's grid comes out exactly.
    const auto fraction = [](std::uint16_t word) { return word / 65535.0; };
    const QRgba64 words = color.rgba64();
    return HostColor::colorWithCalibratedRed(fraction(words.red()), fraction(words.green()),
                                             fraction(words.blue()), fraction(words.alpha()));
}

QString qStringFrom(std::u16string_view text)
{
    return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<QtLength>(text.size()));
}

std::u16string u16From(const QString& text)
{
    return text.toStdU16String();
}

QFont fontOfSize(double points)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(points * textScale()))));
    return font;
}

QFont fontOf(const HostText& text)
{
    QFont font = fontOfSize(text.pointSize);
    font.setBold(text.isBold);
    return font;
}

QFont fontOf(const HostControlDescription& description)
{
    constexpr double usualPointSize = 11;
    QFont font = fontOfSize(description.pointSize > 0 ? description.pointSize : usualPointSize);
    if (!description.monospaced) return font;
    QFont monospaced = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    monospaced.setPixelSize(font.pixelSize());
    return monospaced;
}

QPalette paletteOnGround(const std::optional<HostColor>& groundColor)
{
    QPalette themes = QApplication::palette();
    const HostColor window = hostColorFrom(themes.color(QPalette::Window));
    if (!groundColor || isDarkGround(*groundColor) == isDarkGround(window)) return themes;
    const QColor ground = qColorFrom(*groundColor);
    QPalette palette(ground, ground);  // derives the other roles
    palette.setColor(QPalette::Highlight, themes.color(QPalette::Highlight));
    palette.setColor(QPalette::HighlightedText, themes.color(QPalette::HighlightedText));
    return palette;
}

}  // namespace vantorel
