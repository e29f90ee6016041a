#include "screenpick/PortalRequest.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusError>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantorel {
namespace {

const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString screenshotInterface = QStringLiteral("org.freedesktop.portal.Screenshot");
const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");

constexpr uint firstVersionWithPickColor = 2;
// Long enough for a portal that the call starts, short enough for a waiting user.
constexpr int versionTimeout = 5000;
constexpr int callTimeout = 10000;

enum ResponseCode : uint { succeeded = 0, cancelledByUser = 1 };

Phrase hasNoPickColor()
{
    return phrase("the desktop portal has no PickColor");
}

Phrase couldNotPick()
{
    return phrase("the desktop portal could not pick a colour");
}

Phrase clauseFor(const QDBusMessage& error)
{
    switch (QDBusError(error).type()) {
        case QDBusError::ServiceUnknown:
        case QDBusError::Disconnected:
            return phrase("there is no desktop portal");
        case QDBusError::NoReply:
        case QDBusError::Timeout:
        case QDBusError::TimedOut:
            return phrase("the desktop portal does not answer");
        case QDBusError::UnknownInterface:
        case QDBusError::UnknownMethod:
        case QDBusError::UnknownObject:
        case QDBusError::UnknownProperty:
        case QDBusError::InvalidArgs:
            return hasNoPickColor();
        default:
            return couldNotPick();
    }
}

/// Returns `std::nullopt` for anything but three numbers.
std::optional<HostColor> colorFrom(const QVariant& value)
{
    if (value.metaType() != QMetaType::fromType<QDBusArgument>()) return std::nullopt;
    // Const, because the operators of a non-const argument would write to it.
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String("(ddd)")) return std::nullopt;
    double red = 0;
    double green = 0;
    double blue = 0;
    argument.beginStructure();
    argument >> red >> green >> blue;
    argument.endStructure();
    if (std::isnan(red) || std::isnan(green) || std::isnan(blue)) return std::nullopt;
    const auto cut = [](double channel) { return std::clamp(channel, 0.0, 1.0); };
    return HostColor::colorWithCalibratedRed(cut(red), cut(green), cut(blue), 1);
}

}  // namespace

PortalRequest::PortalRequest(const QDBusConnection& bus)
    // Requests that still wait for a portal when the program exits are owned by the application.
    : QObject(QCoreApplication::instance()),
      _bus(bus),
      _portalWatcher(portalService, bus, QDBusServiceWatcher::WatchForUnregistration),
      // Random, so that no other program on the bus can guess the path of the answer.
      _token(QStringLiteral("vantorel_%1").arg(QRandomGenerator::system()->generate64(), 0, 16))
{
    connect(&_portalWatcher, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { fail(phrase("the desktop portal has gone")); });
}

void PortalRequest::start(const QString& parentWindow)
{
    _parentWindow = parentWindow;
    if (!_bus.isConnected()) {
        QMetaObject::invokeMethod(
            this, [this] { fail(phrase("there is no session bus")); }, Qt::QueuedConnection);
        return;
    }
    _bus.connect({}, QStringLiteral("/org/freedesktop/DBus/Local"),
                 QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                 SLOT(busHasGone()));
    askForVersion();
}

void PortalRequest::cancel()
{
    if (_over) return;
    _over = true;
    // A portal that has not yet returned the handle may not have created it and would miss a Close.
    if (_handleIsPending) return;
    if (!_handle.isEmpty()) closeAtPortal();
    deleteLater();
}

void PortalRequest::askForVersion()
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        portalService, portalPath, QStringLiteral("org.freedesktop.DBus.Properties"),
        QStringLiteral("Get"));
    call << screenshotInterface << QStringLiteral("version");
    auto* watcher = new QDBusPendingCallWatcher(_bus.asyncCall(call, versionTimeout), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, watcher] { takeVersion(watcher->reply()); });
}

void PortalRequest::takeVersion(const QDBusMessage& reply)
{
    if (_over) return;
    if (reply.type() == QDBusMessage::ErrorMessage) {
        fail(clauseFor(reply));
        return;
    }
    const uint version = reply.arguments().value(0).value<QDBusVariant>().variant().toUInt();
    if (version < firstVersionWithPickColor) {
        fail(hasNoPickColor());
        return;
    }
    callPickColor();
}

void PortalRequest::callPickColor()
{
    // The answer can arrive before the call returns, so its path is computed in advance.
    const QString sender = _bus.baseService().mid(1).replace(u'.', u'_');
    listenAt(QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, _token));
    QDBusMessage call = QDBusMessage::createMethodCall(
        portalService, portalPath, screenshotInterface, QStringLiteral("PickColor"));
    call << _parentWindow << QVariantMap{{QStringLiteral("handle_token"), _token}};
    auto* watcher = new QDBusPendingCallWatcher(_bus.asyncCall(call, callTimeout), this);
    _handleIsPending = true;
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, watcher] { takeHandle(watcher->reply()); });
}

void PortalRequest::takeHandle(const QDBusMessage& reply)
{
    _handleIsPending = false;
    const bool failed = reply.type() == QDBusMessage::ErrorMessage;
    if (!failed) {
        // Old portals choose their own handles.
        const QString handle = reply.arguments().value(0).value<QDBusObjectPath>().path();
        if (!handle.isEmpty() && handle != _handle) listenAt(handle);
    }
    if (_over || failed) closeAtPortal();
    if (_over) {
        deleteLater();
    } else if (failed) {
        fail(clauseFor(reply));
    }
    // From here on there is no time limit: the user may take as long as they like.
}

void PortalRequest::listenAt(const QString& handle)
{
    _handle = handle;
    _bus.connect(portalService, handle, requestInterface, QStringLiteral("Response"), this,
                 SLOT(responded(QDBusMessage)));
}

void PortalRequest::closeAtPortal()
{
    QDBusMessage call = QDBusMessage::createMethodCall(portalService, _handle, requestInterface,
                                                       QStringLiteral("Close"));
    // If the portal has exited there is no request to close.
    call.setAutoStartService(false);
    _bus.send(call);
}

void PortalRequest::responded(const QDBusMessage& message)
{
    if (message.signature() != QLatin1String("ua{sv}")) {
        fail(couldNotPick());
        return;
    }
    const QList<QVariant> arguments = message.arguments();
    const uint code = arguments.value(0).toUInt();
    if (code == cancelledByUser) {
        finish(PickMethod::CancelledByUser{});
        return;
    }
    if (code == succeeded) {
        const auto results = qdbus_cast<QVariantMap>(arguments.value(1));
        if (const auto color = colorFrom(results.value(QStringLiteral("color")))) {
            finish(*color);
            return;
        }
    }
    fail(couldNotPick());
}

void PortalRequest::busHasGone()
{
    fail(phrase("the session bus has gone"));
}

void PortalRequest::fail(const Phrase& clause)
{
    finish(PickMethod::Failure{clause});
}

void PortalRequest::finish(const PickMethod::Outcome& outcome)
{
    deleteLater();
    if (!std::exchange(_over, true)) emit finished(outcome);
}

}  // namespace vantorel
