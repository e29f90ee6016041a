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
    // Closing the panel's window quits explicitly. In a panel without a window, closing the
    // magnifier would quit.
    QApplication::setQuitOnLastWindowClosed(false);
    if (options.theme) applyTheme(*options.theme);
}

}  // namespace vantorel
