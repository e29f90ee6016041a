#include "panel/widgets/ContrastLabel.h"

#include "csscolor/Contrast.h"

#include <QLocale>

#include <cmath>

namespace vantorel {
namespace {

/// Rounded down, so that a ratio shown as 4.5 is at least 4.5.
QString shownRatio(double ratio)
{
    const double cut = std::floor(ratio * 100) / 100;
    return QLocale().toString(cut, 'f', ratio < 10 ? 2 : 1);
}

}  // namespace

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
    setText(QStringLiteral("%1 %2").arg(shownRatio(*ratio), level));
    const auto verdict = [](bool reached) { return reached ? tr("yes") : tr("no"); };
    const QString details = tr("Contrast with the background: %1 to 1\n"
                               "Normal text: AA %2, AAA %3\n"
                               "Large text: AA %4, AAA %5\n"
                               "Controls and graphics: AA %6")
                                .arg(shownRatio(*ratio), verdict(verdicts.normalTextAA),
                                     verdict(verdicts.normalTextAAA), verdict(verdicts.largeTextAA),
                                     verdict(verdicts.largeTextAAA), verdict(verdicts.componentAA));
    setToolTip(plainToolTip(details));
    setAccessibleName(details);
}

}  // namespace vantorel
