#include "PrivateBus.h"

#include <QFile>

PrivateBus::PrivateBus()
{
    QFile settings(_folder.filePath(QStringLiteral("bus.conf")));
    if (!settings.open(QFile::WriteOnly)) return;
    settings.write(QStringLiteral("<busconfig><type>session</type><listen>unix:dir=%1</listen>"
                                  "<auth>EXTERNAL</auth><policy context=\"default\">"
                                  "<allow send_destination=\"*\" eavesdrop=\"true\"/>"
                                  "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy>"
                                  "</busconfig>")
                       .arg(_folder.path())
                       .toUtf8());
    settings.close();
    _daemon.start(QStringLiteral("dbus-daemon"),
                  {QStringLiteral("--config-file=") + settings.fileName(),
                   QStringLiteral("--nofork"), QStringLiteral("--print-address")});
    if (_daemon.waitForReadyRead()) {
        _address = QString::fromLatin1(_daemon.readLine()).trimmed();
    }
}

PrivateBus::~PrivateBus()
{
    for (const QString& name : _names)
        QDBusConnection::disconnectFromBus(name);
    stop();
}

QDBusConnection PrivateBus::connect(const QString& name)
{
    _names.append(name);
    return QDBusConnection::connectToBus(_address, name);
}

void PrivateBus::disconnect(const QString& name)
{
    _names.removeAll(name);
    QDBusConnection::disconnectFromBus(name);
}

void PrivateBus::stop()
{
    _daemon.kill();
    _daemon.waitForFinished();
}
