#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QTemporaryDir>

/// A message bus of a test's own, on which no service starts by itself.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();

    [[nodiscard]] bool isRunning() const { return !_address.isEmpty(); }
    /// A connection of its own for each name.
    [[nodiscard]] QDBusConnection connect(const QString& name);
    void disconnect(const QString& name);
    /// Ends the bus under all that are connected.
    void stop();

private:
    QTemporaryDir _folder;
    QProcess _daemon;
    QString _address;
    QStringList _names;
};
