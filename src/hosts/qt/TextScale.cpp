#include "hosts/qt/TextScale.h"

#include "hosts/common/TextScale.h"

#include <QFontDatabase>
#include <QFontInfo>

namespace vantorel {

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
