#include "panel/SessionRestart.h"

#include <QApplication>
#include <QDir>
#include <QSessionManager>
#include <QWidget>

#include <algorithm>

namespace vantorel {
namespace {

/// Qt's name for it, with a single hyphen.
constexpr QLatin1String sessionOption("-session");

QStringList commandFor(const PanelOptions& options)
{
    if (options.choice || options.screenshot || options.step != PanelOrder::Step::show) return {};
    QStringList command{QCoreApplication::applicationFilePath()};
    if (options.another) command.append(QStringLiteral("--new"));
    if (options.theme) command.append({QStringLiteral("--theme"), *options.theme});
    // The session starts programs in another folder.
    if (options.dataFolder) {
        command.append({QStringLiteral("--data"), QDir().absoluteFilePath(*options.dataFolder)});
    }
    for (const QString& plugin : options.plugins)
        command.append({QStringLiteral("--plugin"), QDir().absoluteFilePath(plugin)});
    return command;
}

bool hasWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(),
                       [](const QWidget* window) { return window->isVisible(); });
}

}  // namespace

QString takeSessionIdentifier(QStringList& arguments)
{
    const qsizetype place = arguments.size() - 2;
    if (place < 1 || arguments[place] != sessionOption) return {};
    QString identifier = arguments.takeLast();
    arguments.removeLast();
    return identifier;
}

SessionRestart::SessionRestart(const PanelOptions& options) : _command(commandFor(options))
{
    connect(qGuiApp, &QGuiApplication::saveStateRequest, this, &SessionRestart::describe);
}

void SessionRestart::describe(QSessionManager& session) const
{
    if (_command.isEmpty() || !hasWindow()) {
        session.setRestartHint(QSessionManager::RestartNever);
        return;
    }
    session.setRestartHint(QSessionManager::RestartIfRunning);
    // Session managers wait until a client with the same identifier has joined.
    const QString identifier = session.sessionId() + u'_' + session.sessionKey();
    session.setRestartCommand(_command + QStringList{QString(sessionOption), identifier});
}

}  // namespace vantorel
