#include "panel/widgets/ContrastTexts.h"

#include <QCoreApplication>
#include <QLocale>

#include <cmath>

namespace vantorel {
namespace {

class ContrastText {
    Q_DECLARE_TR_FUNCTIONS(ContrastText)
};

}  // namespace

QString shownContrastRatio(double ratio)
{
    const double cut = std::floor(ratio * 100) / 100;
    return QLocale().toString(cut, 'f', ratio < 10 ? 2 : 1);
}

QString contrastDetails(double ratio)
{
    const ContrastVerdicts verdicts = contrastVerdicts(ratio);
    const auto verdict = [](bool reached) {
        return reached ? ContrastText::tr("yes") : ContrastText::tr("no");
    };
    return ContrastText::tr(
               "Contrast with the background: %1 to 1\n"
               "Normal text: AA %2, AAA %3\n"
               "Large text: AA %4, AAA %5\n"
               "Controls and graphics: AA %6")
        .arg(shownContrastRatio(ratio), verdict(verdicts.normalTextAA),
             verdict(verdicts.normalTextAAA), verdict(verdicts.largeTextAA),
             verdict(verdicts.largeTextAAA), verdict(verdicts.componentAA));
}

ContrastLevel contrastLevel(double ratio)
{
    const ContrastVerdicts verdicts = contrastVerdicts(ratio);
    if (verdicts.normalTextAAA) return ContrastLevel::enhanced;
    if (verdicts.normalTextAA) return ContrastLevel::normalText;
    return verdicts.largeTextAA ? ContrastLevel::largeText : ContrastLevel::fails;
}

QString contrastLevelName(ContrastLevel level)
{
    switch (level) {
        case ContrastLevel::enhanced:
            return QStringLiteral("AAA");
        case ContrastLevel::normalText:
            return QStringLiteral("AA");
        case ContrastLevel::largeText:
            return ContrastText::tr("AA large");
        case ContrastLevel::fails:
            break;
    }
    return ContrastText::tr("fails");
}

}  // namespace vantorel
