#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QTemporaryDir>

/// A private message bus for a test, without service activation.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();

    [[nodiscard]] bool isRunning() const { return !_address.isEmpty(); }
    /// Returns a separate connection for each name.
    [[nodiscard]] QDBusConnection connect(const QString& name);
    void disconnect(const QString& name);
    /// Stops the bus while clients are connected.
    void stop();

private:
    QTemporaryDir _folder;
    QProcess _daemon;
    QString _address;
    QStringList _names;
};
