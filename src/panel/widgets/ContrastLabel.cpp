#include "panel/widgets/ContrastLabel.h"

#include "panel/widgets/ContrastTexts.h"

namespace vantorel {

ContrastLabel::ContrastLabel(QWidget* parent) : PlainLabel(parent)
{
    setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    setColors(HostColor::blackColor(), HostColor::whiteColor());
}

void ContrastLabel::setColors(const HostColor& foreground, const HostColor& background)
{
    const auto ratio = contrastRatio(foreground, background);
    if (!ratio) {
        clear();
        setToolTip({});
        return;
    }
    const ContrastVerdicts verdicts = contrastVerdicts(*ratio);
    const QString level = verdicts.normalTextAAA  ? QStringLiteral("AAA")
                          : verdicts.normalTextAA ? QStringLiteral("AA")
                          : verdicts.largeTextAA  ? QStringLiteral("AA+")
                                                  : QStringLiteral("\u2013");
    setText(QStringLiteral("%1 %2").arg(shownContrastRatio(*ratio), level));
    const QString details = contrastDetails(*ratio);
    setToolTip(plainToolTip(details));
    setAccessibleName(details);
}

}  // namespace vantorel
