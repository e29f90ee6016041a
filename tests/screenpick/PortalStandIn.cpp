#include "PortalStandIn.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>

PortalStandIn::PortalStandIn(QDBusConnection bus) : _bus(std::move(bus))
{
    _bus.registerVirtualObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                               QDBusConnection::SubPath);
    _bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
}

bool PortalStandIn::handleMessage(const QDBusMessage& message, const QDBusConnection&)
{
    message.setDelayedReply(true);
    const QString member = message.member();
    if (member == QLatin1String("Get")) {
        ++versionCalls;
        if (isSilent) return true;
        const bool right =
            message.arguments() == QVariantList{QStringLiteral("org.freedesktop.portal.Screenshot"),
                                                QStringLiteral("version")};
        if (right && version) {
            _bus.send(message.createReply(QVariant::fromValue(QDBusVariant(*version))));
        } else {
            _bus.send(message.createErrorReply(QDBusError::InvalidArgs,
                                               QStringLiteral("No such interface")));
        }
    } else if (member == QLatin1String("PickColor") &&
               message.interface() == QLatin1String("org.freedesktop.portal.Screenshot") &&
               message.signature() == QLatin1String("sa{sv}")) {
        pickColor(message);
    } else if (member == QLatin1String("Close") &&
               message.interface() == QLatin1String("org.freedesktop.portal.Request")) {
        closedHandles.append(message.path());
    }
    return true;
}

void PortalStandIn::pickColor(const QDBusMessage& message)
{
    ++calls;
    if (!errorOfPickColor.isEmpty()) {
        _bus.send(message.createErrorReply(errorOfPickColor, QStringLiteral("It does not work")));
        return;
    }
    _pickColor = message;
    parentWindow = message.arguments().at(0).toString();
    const auto options = qdbus_cast<QVariantMap>(message.arguments().at(1));
    const QString token = makesUpItsHandles
                              ? QStringLiteral("t%1").arg(calls)
                              : options.value(QStringLiteral("handle_token")).toString();
    handle = QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2")
                 .arg(message.service().mid(1).replace(u'.', u'_'), token);
    if (answersBeforeItReturns) respond(0, color(0, 1, 0));
    if (!holdsHandleBack) returnHandle();
}

void PortalStandIn::returnHandle()
{
    _bus.send(_pickColor.createReply(QVariant::fromValue(QDBusObjectPath(handle))));
}

void PortalStandIn::respond(const QVariantList& arguments)
{
    QDBusMessage signal = QDBusMessage::createTargetedSignal(
        _pickColor.service(), handle, QStringLiteral("org.freedesktop.portal.Request"),
        QStringLiteral("Response"));
    signal.setArguments(arguments);
    _bus.send(signal);
}

void PortalStandIn::respond(uint code, const QVariantMap& results)
{
    respond(QVariantList{code, results});
}

QVariantMap PortalStandIn::color(double red, double green, double blue)
{
    QDBusArgument argument;
    argument.beginStructure();
    argument << red << green << blue;
    argument.endStructure();
    return {{QStringLiteral("color"), QVariant::fromValue(argument)}};
}
