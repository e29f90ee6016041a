#include "hosts/qt/TextScale.h"

#include "hosts/common/TextScale.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

double textFactor = 1;

/// Pages have scales of quarters (see `textScaleForFontHeight`), also when the user enlarges them.
double enlargedScale(double scale)
{
    constexpr double step = 0.25;
    constexpr double largest = 3;
    return std::clamp(std::round(scale * textFactor / step) * step, 1.0, largest);
}

}  // namespace

void enlargeText(double factor)
{
    textFactor = factor;
    if (factor == 1) return;
    QFont font = QApplication::font();
    if (font.pixelSize() > 0) {
        font.setPixelSize(qRound(font.pixelSize() * factor));
    } else {
        font.setPointSizeF(font.pointSizeF() * factor);
    }
    QApplication::setFont(font);
}

double textScale()
{
    static const double scale = enlargedScale(textScaleForFontHeight(
        QFontInfo(QFontDatabase::systemFont(QFontDatabase::GeneralFont)).pixelSize()));
    return scale;
}

int scaled(double points)
{
    return qRound(points * textScale());
}

}  // namespace vantorel
