#include "panel/PanelEnvironment.h"

#include "hosts/posix/PosixFiles.h"
#include "panel/preferences/ConfigurationFile.h"

#include <QFile>

namespace vantorel {

PanelEnvironment::PanelEnvironment(const PanelOptions& options)
{
    if (options.dataFolder) {
        qputenv("XDG_DATA_HOME", QFile::encodeName(*options.dataFolder));
        // The configuration folder is not replaced: it also leads to the palettes of other
        // programs.
        setConfigurationFolder(*options.dataFolder);
    }
    _userData = PosixFiles().applicationSupportDirectory().value_or("");
    if (options.screenshot) hideUser(options);
}

/// A picture must not depend on the user's panel and settings, nor on palettes installed by other
/// programs.
void PanelEnvironment::hideUser(const PanelOptions& options)
{
    const QByteArray scratch = QFile::encodeName(_scratch.emplace().path());
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_DIRS", "XDG_CONFIG_DIRS"})
        qputenv(variable, scratch);
    if (!options.dataFolder) qputenv("XDG_DATA_HOME", scratch);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
}

bool PanelEnvironment::hasDisplay()
{
    return qEnvironmentVariableIsSet("WAYLAND_DISPLAY") || qEnvironmentVariableIsSet("DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

}  // namespace vantorel
