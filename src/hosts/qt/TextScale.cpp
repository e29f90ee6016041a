#include "hosts/qt/TextScale.h"

#include <QFontDatabase>
#include <QFontInfo>

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

/// 10 points at 96 dots per inch, the default of desktops.
constexpr double usualHeight = 10 * 96 / 72.0;
constexpr double step = 0.25;
constexpr double largest = 3;

}  // namespace

double textScaleForFontHeight(double pixels)
{
    // Slightly less than a step counts as the step: 150 % of 10 points is 20 pixels after rounding.
    const double steps = std::floor(pixels / usualHeight / step + 0.1);
    return std::clamp(steps * step, 1.0, largest);
}

double textScale()
{
    static const double scale = textScaleForFontHeight(
        QFontInfo(QFontDatabase::systemFont(QFontDatabase::GeneralFont)).pixelSize());
    return scale;
}

int scaled(double points)
{
    return qRound(points * textScale());
}

}  // namespace vantorel
