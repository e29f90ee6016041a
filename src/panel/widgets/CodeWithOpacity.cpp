#include "panel/widgets/CodeWithOpacity.h"

#include "csscolor/GamutMapping.h"
#include "hosts/qt/QtColors.h"

namespace vantorel {

QString codeWithOpacity(const HostColor& color)
{
    const QColor shown = qColorFrom(mappedIntoSRGB(color));
    QString code = shown.name().toUpper();
    if (shown.alpha() == 255) return code;
    return QStringLiteral("%1, %2 %").arg(code).arg(qRound(shown.alphaF() * 100));
}

}  // namespace vantorel
