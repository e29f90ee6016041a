#include "panel/DisplayFailure.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace vantorel {
namespace {

DisplayFailure* current = nullptr;

/// `libraryPaths` may include folders that hold the plug-ins directly
/// (QT_QPA_PLATFORM_PLUGIN_PATH).
bool hasPlatformPlugin(const QString& filePattern)
{
    QStringList folders;
    for (const QString& folder : QCoreApplication::libraryPaths())
        folders << folder << folder + QStringLiteral("/platforms");
    return std::any_of(folders.begin(), folders.end(), [&](const QString& folder) {
        return !QDir(folder).entryList({filePattern}, QDir::Files).isEmpty();
    });
}

QString describe(const char* variable)
{
    if (!qEnvironmentVariableIsSet(variable))
        return QStringLiteral("%1 is not set").arg(QLatin1String(variable));
    return QStringLiteral("%1 is \"%2\"")
        .arg(QLatin1String(variable), qEnvironmentVariable(variable));
}

/// Returns the missing plug-in and how to install it. Empty if all plug-ins that the session needs
/// are installed.
QString missingPlugin()
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) return {};
    if (qEnvironmentVariableIsSet("WAYLAND_DISPLAY") &&
        !hasPlatformPlugin(QStringLiteral("libqwayland*.so")))
        return QStringLiteral(
            "Qt's plug-in for Wayland is missing; install the package "
            "qt6-wayland (Fedora: qt6-qtwayland)");
    if (qEnvironmentVariableIsSet("DISPLAY") && !hasPlatformPlugin(QStringLiteral("libqxcb.so")))
        return QStringLiteral(
            "Qt's plug-in for X11 is missing; install the package libqt6gui6 "
            "(Fedora: qt6-qtbase-gui, Arch: qt6-base)");
    return {};
}

}  // namespace

DisplayFailure::DisplayFailure(int exitStatus)
    : _exitStatus(exitStatus), _usualHandler(qInstallMessageHandler(&handle))
{
    current = this;
}

DisplayFailure::~DisplayFailure()
{
    qInstallMessageHandler(_usualHandler);
    current = nullptr;
    printMessages();
}

void DisplayFailure::handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtFatalMsg) current->exit(text);
    const QByteArray category(context.category);
    if (category.startsWith("qt.qpa."))
        // The plug-in that owns the context may be unloaded when the message is printed.
        current->_messages.push_back({type, category, text});
    else
        current->_usualHandler(type, context, text);
}

void DisplayFailure::printMessages() const
{
    for (const Message& message : _messages) {
        _usualHandler(message.type,
                      QMessageLogContext(nullptr, 0, nullptr, message.category.constData()),
                      message.text);
    }
}

void DisplayFailure::exit(const QString& reason) const
{
    QString sentence = missingPlugin();
    if (sentence.isEmpty()) {
        printMessages();
        sentence = qEnvironmentVariableIsSet("QT_QPA_PLATFORM")
                       ? QStringLiteral("Qt cannot start on this platform (%1); %2")
                             .arg(describe("QT_QPA_PLATFORM"), reason.simplified())
                       : QStringLiteral(
                             "the display cannot be opened (%1, %2); "
                             "--screenshot FILE works without one")
                             .arg(describe("WAYLAND_DISPLAY"), describe("DISPLAY"));
    }
    static_cast<void>(std::fprintf(stderr, "vantorel-panel: %s\n", sentence.toUtf8().constData()));
    // Qt is still constructing the application, so none of it may be destroyed.
    std::_Exit(_exitStatus);
}

}  // namespace vantorel
