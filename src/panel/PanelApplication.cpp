#include "panel/PanelApplication.h"

#include "panel/PanelTranslations.h"
#include "panel/widgets/PanelTheme.h"

namespace vantorel {

PanelApplication::PanelApplication(char** argv, const PanelOptions& options, int noDisplayStatus)
    : _displayFailure(std::in_place, noDisplayStatus), _application(_argumentCount, argv)
{
    _displayFailure.reset();
    installTranslations(_application);
    QApplication::setApplicationName(QStringLiteral("vantorel-panel"));
    QApplication::setDesktopFileName(QStringLiteral("org.vantorel.ColorPanel"));
    // The panel quits by itself when it is closed, and without a window the magnifier is the last.
    QApplication::setQuitOnLastWindowClosed(false);
    if (options.theme) applyTheme(*options.theme);
}

}  // namespace vantorel
