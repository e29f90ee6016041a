#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

namespace vantorel {

/// A call of PickColor, until it is answered, as an object on the bus with the interface
/// org.freedesktop.impl.portal.Request. The portal closes the object when the program that has
/// asked is gone.
class PortalPick final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Request")

public:
    /// `handle` is the path of the object.
    PortalPick(QDBusConnection bus, const QDBusMessage& call, const QString& handle);
    ~PortalPick() override;

    /// The codes of org.freedesktop.portal.Request.
    enum class Response : uint { success = 0, cancelled = 1, other = 2 };
    void answer(Response response, const QVariantMap& results = {});

public slots:
    /// Part of the D-Bus interface, with the same name.
    Q_SCRIPTABLE void Close();

signals:
    void closed();

private:
    QDBusConnection _bus;
    QDBusMessage _call;
    QString _handle;
};

}  // namespace vantorel
