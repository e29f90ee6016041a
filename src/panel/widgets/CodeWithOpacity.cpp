#include "panel/widgets/CodeWithOpacity.h"

#include "csscolor/CSSColorWriter.h"
#include "csscolor/GamutMapping.h"
#include "hosts/qt/QtColors.h"
#include "panel/widgets/PanelSettings.h"

namespace vantorel {

QString plainHexCode(const HostColor& color)
{
    return qStringFrom(
        hexText(mappedIntoSRGB(color), PanelSettings::hexForm()).value_or(std::u16string()));
}

QString codeWithOpacity(const HostColor& color)
{
    const HostColor mapped = mappedIntoSRGB(color);
    const QColor shown = qColorFrom(mapped);
    QString code = plainHexCode(mapped.colorWithAlphaComponent(1));
    if (shown.alpha() == 255) return code;
    return QStringLiteral("%1, %2 %").arg(code).arg(qRound(shown.alphaF() * 100));
}

}  // namespace vantorel
