#include "panel/widgets/Checkers.h"

#include "hosts/qt/QtColors.h"

namespace vantorel {

void paintCheckers(QPainter& painter, const QRect& place)
{
    constexpr int checkSize = 5;
    painter.fillRect(place, Qt::white);
    for (int y = place.top(); y <= place.bottom(); y += checkSize) {
        for (int x = place.left(); x <= place.right(); x += checkSize) {
            const int parity = (x - place.left()) / checkSize + (y - place.top()) / checkSize;
            if (parity % 2 == 0) continue;
            painter.fillRect(QRect(x, y, checkSize, checkSize).intersected(place),
                             QColor(190, 190, 190));
        }
    }
}

QString codeWithOpacity(const HostColor& color)
{
    const QColor shown = qColorFrom(color);
    QString code = shown.name().toUpper();
    if (shown.alpha() == 255) return code;
    return QStringLiteral("%1, %2 %").arg(code).arg(qRound(shown.alphaF() * 100));
}

}  // namespace vantorel
