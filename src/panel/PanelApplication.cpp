#include "panel/PanelApplication.h"

#include "commandline/Programs.h"
#include "hosts/qt/TextScale.h"
#include "panel/PanelTranslations.h"
#include "panel/SessionManagerLoss.h"
#include "panel/preferences/PanelPreferences.h"
#include "panel/widgets/PanelTheme.h"

namespace vantorel {

PanelApplication::PanelApplication(const char* program, const PanelOptions& options,
                                   const QString& sessionIdentifier, int noDisplayStatus)
    : _displayFailure(std::in_place, noDisplayStatus),
      _program(program),
      _session(sessionIdentifier.toLocal8Bit()),
      _arguments{_program.data(), _sessionOption.data(), _session.data(), nullptr},
      _argumentCount(_session.isEmpty() ? 1 : 3),
      _application(_argumentCount, _arguments.data()),
      _restart(options)
{
    _displayFailure.reset();
    outliveSessionManager();
    installTranslations(_application);
    QApplication::setApplicationName(QStringLiteral("vantorel-panel"));
    QApplication::setApplicationVersion(QString::fromUtf8(vantorelPanelProgram.version));
    QApplication::setDesktopFileName(QStringLiteral("org.vantorel.ColorPanel"));
    // Closing the panel's window quits explicitly. In a panel without a window, closing the
    // magnifier would quit.
    QApplication::setQuitOnLastWindowClosed(false);
    const PanelPreferences preferences;
    enlargeText(preferences.textSize() / 100.0);
    applyTheme(options.theme.value_or(preferences.themeInForce()));
}

}  // namespace vantorel
