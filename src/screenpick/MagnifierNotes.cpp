#include "screenpick/MagnifierNotes.h"

#include "screenpick/MagnifierPainting.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantorel {
namespace {

// In device-independent pixels.
constexpr double noteHeight = 26;
constexpr double notePadding = 8;
constexpr double keyPadding = 5;
constexpr double keyHeight = 18;
constexpr double wordGap = 6;
constexpr double hintGap = 12;
constexpr double pickedSide = 14;
constexpr double pickedGap = 4;
constexpr double noteTextSize = 11;

/// As many of the newest colours are shown.
constexpr std::size_t mostPickedShown = 12;

struct Hint {
    QString key;
    QString effect;
};

std::vector<Hint> magnifierHints(const Magnified& magnified)
{
    const auto hint = [](const char* key, const char* effect) {
        return Hint{QCoreApplication::translate("Vantorel", key),
                    QCoreApplication::translate("Vantorel", effect)};
    };
    std::vector<Hint> hints{
        hint(QT_TRANSLATE_NOOP("Vantorel", "Enter"), QT_TRANSLATE_NOOP("Vantorel", "picks")),
        hint(QT_TRANSLATE_NOOP("Vantorel", "Shift"), QT_TRANSLATE_NOOP("Vantorel", "several")),
        hint(QT_TRANSLATE_NOOP("Vantorel", "A"), QT_TRANSLATE_NOOP("Vantorel", "averages")),
        hint(QT_TRANSLATE_NOOP("Vantorel", "Mouse wheel"), QT_TRANSLATE_NOOP("Vantorel", "zooms")),
        hint(QT_TRANSLATE_NOOP("Vantorel", "Esc"), QT_TRANSLATE_NOOP("Vantorel", "leaves")),
    };
    if (magnified.copiesByLetter) {
        // Letters of names that are the same in every language: hex, RGB, HSL, OKLCH.
        hints.insert(hints.begin() + 1,
                     {QStringLiteral("H R S O"),
                      QCoreApplication::translate("Vantorel", "copy as hex, rgb, hsl, oklch")});
    }
    return hints;
}

QFont noteFont(double ratio)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(static_cast<int>(std::lround(noteTextSize * ratio)));
    return font;
}

double textWidth(const QString& text, double ratio)
{
    return QFontMetricsF(noteFont(ratio)).horizontalAdvance(text);
}

QString pickedCount(std::size_t count)
{
    return QCoreApplication::translate("Vantorel", "%1 picked").arg(count);
}

double widthOfHint(const Hint& hint, double ratio)
{
    return textWidth(hint.key, ratio) + textWidth(hint.effect, ratio) +
           (2 * keyPadding + wordGap) * ratio;
}

void paintHints(QPainter& painter, const QRectF& place, const Magnified& magnified, double ratio,
                const QPalette& palette)
{
    double x = place.left() + notePadding * ratio;
    const double keyTop = std::round(place.center().y() - keyHeight * ratio / 2);
    for (const Hint& hint : magnifierHints(magnified)) {
        const QRectF key(std::round(x), keyTop,
                         std::round(textWidth(hint.key, ratio) + 2 * keyPadding * ratio),
                         std::round(keyHeight * ratio));
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(faintTextOf(palette), ratio));
        const double half = ratio / 2;
        painter.drawRoundedRect(key.adjusted(half, half, -half, -half), 4 * ratio, 4 * ratio);
        painter.setPen(palette.color(QPalette::WindowText));
        painter.drawText(key, Qt::AlignCenter | Qt::TextDontClip, hint.key);
        const QRectF effect(key.right() + wordGap * ratio, place.top(), place.width(),
                            place.height());
        painter.drawText(effect, Qt::AlignLeft | Qt::AlignVCenter, hint.effect);
        x += widthOfHint(hint, ratio) + hintGap * ratio;
    }
}

void paintPicked(QPainter& painter, const QRectF& place, const std::vector<QColor>& picked,
                 double ratio, const QPalette& palette)
{
    const std::size_t shown = std::min(picked.size(), mostPickedShown);
    double x = place.left() + notePadding * ratio;
    for (std::size_t i = picked.size() - shown; i < picked.size(); ++i) {
        const QRectF swatch(std::round(x), std::round(place.center().y() - pickedSide * ratio / 2),
                            std::round(pickedSide * ratio), std::round(pickedSide * ratio));
        painter.setPen(QPen(faintTextOf(palette), ratio));
        painter.setBrush(picked[i]);
        painter.drawRoundedRect(swatch, 4 * ratio, 4 * ratio);
        x += (pickedSide + pickedGap) * ratio;
    }
    painter.setPen(palette.color(QPalette::WindowText));
    painter.drawText(QRectF(x + pickedGap * ratio, place.top(), place.width(), place.height()),
                     Qt::AlignLeft | Qt::AlignVCenter, pickedCount(picked.size()));
}

}  // namespace

QSizeF sizeOfNotes(const Magnified& magnified, double ratio)
{
    double width = 2 * notePadding * ratio;
    if (!magnified.picked.empty()) {
        const auto shown = static_cast<double>(std::min(magnified.picked.size(), mostPickedShown));
        width += shown * (pickedSide + pickedGap) * ratio + pickedGap * ratio +
                 textWidth(pickedCount(magnified.picked.size()), ratio);
    } else if (magnified.showsHints) {
        width -= hintGap * ratio;
        for (const Hint& hint : magnifierHints(magnified))
            width += widthOfHint(hint, ratio) + hintGap * ratio;
    } else {
        return {};
    }
    return {std::ceil(width), std::round(noteHeight * ratio)};
}

void paintNotes(QPainter& painter, const QRectF& place, const Magnified& magnified, double ratio,
                const QPalette& palette)
{
    if (place.isEmpty()) return;
    paintPill(painter, place, ratio, palette);
    painter.setFont(noteFont(ratio));
    if (magnified.picked.empty()) {
        paintHints(painter, place, magnified, ratio, palette);
    } else {
        paintPicked(painter, place, magnified.picked, ratio, palette);
    }
}

}  // namespace vantorel
