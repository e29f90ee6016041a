#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtDesktop.h"
#include "panel/PanelOptions.h"
#include "panel/PanelTheme.h"
#include "panel/PanelTranslations.h"
#include "panel/PanelWindow.h"
#include "panel/PluginLoader.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

namespace {

using namespace vantorel;

constexpr int failure = 1;

void print(std::FILE* stream, const QString& text)
{
    // There is nowhere to tell that a standard stream is closed.
    static_cast<void>(std::fputs(text.toUtf8().constData(), stream));
    static_cast<void>(std::fflush(stream));
}

bool hasDisplay()
{
    return qEnvironmentVariableIsSet("WAYLAND_DISPLAY") || qEnvironmentVariableIsSet("DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

void sendAction(PanelWindow& window, const char* name)
{
    if (HostColorPicker* picker = window.currentPicker()) picker->performAction(name, nullptr);
}

void applyOptions(PanelWindow& window, const PanelOptions& options)
{
    if (options.printColor) {
        window.addColorObserver([](const HostColor& color) {
            const QString argb = qColorFrom(color).name(QColor::HexArgb);
            print(stdout, u'#' + argb.mid(3) + argb.mid(1, 2) + u'\n');
        });
    }
    if (options.size) window.resizeToPage(*options.size);
    if (options.color) window.chooseColor(hostColorFrom(*options.color));
    if (options.mode == QLatin1String("slider")) sendAction(window, "sliderViewModeAction");
    if (options.mode == QLatin1String("palette")) sendAction(window, "paletteViewModeAction");
    if (options.mode == QLatin1String("wheel")) sendAction(window, "cubeViewModeAction");
    if (options.settingsFace) sendAction(window, "settingsButtonAction");
}

int saveScreenshot(PanelWindow& window, const QString& file)
{
    window.show();
    QApplication::processEvents();
    // Painting places some controls, so what counts is the second look.
    window.grab();
    QApplication::processEvents();
    if (window.grab().save(file, "PNG")) return 0;
    print(stderr,
          QStringLiteral("vantorel-panel: --screenshot: \"%1\" cannot be written\n").arg(file));
    return failure;
}

}  // namespace

int main(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const PanelCommandLine commandLine = readCommandLine(arguments);
    if (commandLine.exitStatus) {
        print(*commandLine.exitStatus == 0 ? stdout : stderr, commandLine.message);
        return *commandLine.exitStatus;
    }
    const PanelOptions& options = commandLine.options;

    if (options.dataFolder) qputenv("XDG_DATA_HOME", QFile::encodeName(*options.dataFolder));
    const std::string userData = PosixFiles().applicationSupportDirectory().value_or("");
    QTemporaryDir scratch;
    if (options.screenshot) {
        // A picture is taken beside the user's own panel and settings, not with them.
        // What other programs have installed must not show in it, either.
        for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_DIRS", "XDG_CONFIG_DIRS"})
            qputenv(variable, QFile::encodeName(scratch.path()));
        if (!options.dataFolder) qputenv("XDG_DATA_HOME", QFile::encodeName(scratch.path()));
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    } else if (!hasDisplay()) {
        print(stderr, QStringLiteral("vantorel-panel: there is no display (neither WAYLAND_DISPLAY "
                                     "nor DISPLAY is set); --screenshot FILE works without one\n"));
        return failure;
    }

    QApplication application(argc, argv);
    installTranslations(application);
    QApplication::setApplicationName(QStringLiteral("vantorel-panel"));
    QApplication::setDesktopFileName(QStringLiteral("org.vantorel.ColorPanel"));
    if (options.theme) applyTheme(*options.theme);

    std::vector<std::string> pluginFiles;
    for (const QString& file : options.plugins) {
        pluginFiles.push_back(file.toLocal8Bit().toStdString());
    }
    PluginSearch search = loadPlugins(
        pluginFolders(QCoreApplication::applicationDirPath().toStdString(), userData), pluginFiles);

    QtDesktop desktop;
    PanelWindow window(desktop, search.plugins, search.problems);
    for (const std::string& problem : search.problems) {
        print(stderr, QStringLiteral("vantorel-panel: %1\n").arg(QString::fromStdString(problem)));
    }
    if (!search.problems.empty()) window.showProblems(search.problems);
    if (!options.screenshot) window.recall(readPanelMemory());
    applyOptions(window, options);
    if (options.screenshot) return saveScreenshot(window, *options.screenshot);
    window.show();
    const int status = QApplication::exec();
    writePanelMemory(window.memory());
    return status;
}
