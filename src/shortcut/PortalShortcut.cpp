#include "shortcut/PortalShortcut.h"

#include "shortcut/DesktopKeys.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QRandomGenerator>

#include <utility>

namespace vantorel {

// Found by QtDBus.
QDBusArgument& operator<<(QDBusArgument& argument, const PortalShortcutEntry& entry)
{
    argument.beginStructure();
    argument << entry.id << entry.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, PortalShortcutEntry& entry)
{
    argument.beginStructure();
    argument >> entry.id >> entry.properties;
    argument.endStructure();
    return argument;
}

namespace {

const QString shortcutPortal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString shortcutPortalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString shortcutsInterface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
const QString shortcutRequest = QStringLiteral("org.freedesktop.portal.Request");
const QString pickShortcutId = QStringLiteral("pick");

// Long enough for a portal that the call starts.
constexpr int portalTimeout = 10000;

QDBusMessage portalCall(const QString& interface, const QString& method)
{
    return QDBusMessage::createMethodCall(shortcutPortal, shortcutPortalPath, interface, method);
}

Message notAccepted()
{
    return {phrase("the desktop did not accept the shortcut"),
            phrase("choose another one, or allow it in the settings of the desktop")};
}

}  // namespace

PortalShortcut::PortalShortcut(const QDBusConnection& bus, QObject* parent)
    : ShortcutMethod(parent), _bus(bus)
{
    qDBusRegisterMetaType<PortalShortcutEntry>();
    qDBusRegisterMetaType<QList<PortalShortcutEntry>>();
}

PortalShortcut::~PortalShortcut()
{
    if (_session.isEmpty()) return;
    QDBusMessage close = QDBusMessage::createMethodCall(
        shortcutPortal, _session, QStringLiteral("org.freedesktop.portal.Session"),
        QStringLiteral("Close"));
    // If the portal has exited there is no session to close.
    close.setAutoStartService(false);
    _bus.send(close);
}

void PortalShortcut::bind(const QKeySequence& keys)
{
    _keys = keys;
    if (!_bus.isConnected()) {
        _stage = Stage::over;
        QMetaObject::invokeMethod(
            this, [this] { emit unavailable(); }, Qt::QueuedConnection);
        return;
    }
    QDBusMessage call =
        portalCall(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    call << shortcutsInterface << QStringLiteral("version");
    auto* watcher = new QDBusPendingCallWatcher(_bus.asyncCall(call, portalTimeout), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        takeVersion(watcher->reply());
    });
}

void PortalShortcut::takeVersion(const QDBusMessage& reply)
{
    if (reply.type() != QDBusMessage::ReplyMessage) {
        _stage = Stage::over;
        emit unavailable();
        return;
    }
    _bus.connect(shortcutPortal, shortcutPortalPath, shortcutsInterface,
                 QStringLiteral("Activated"), this, SLOT(wasActivated(QDBusMessage)));
    createSession();
}

QString PortalShortcut::newToken()
{
    // Random, so that no other program on the bus can guess the path of the answer.
    QString token =
        QStringLiteral("vantorel_%1").arg(QRandomGenerator::system()->generate64(), 0, 16);
    // The answer can arrive before the call returns, so its path is computed in advance.
    const QString sender = _bus.baseService().mid(1).replace(u'.', u'_');
    listenAt(QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token));
    return token;
}

void PortalShortcut::createSession()
{
    _stage = Stage::creatingSession;
    QDBusMessage message = portalCall(shortcutsInterface, QStringLiteral("CreateSession"));
    const QString token = newToken();
    message << QVariantMap{{QStringLiteral("handle_token"), token},
                           {QStringLiteral("session_handle_token"), token}};
    call(message);
}

void PortalShortcut::takeSession(const QVariantMap& results)
{
    const QVariant session = results.value(QStringLiteral("session_handle"));
    _session = session.metaType() == QMetaType::fromType<QDBusObjectPath>()
                   ? session.value<QDBusObjectPath>().path()
                   : session.toString();
    if (_session.isEmpty()) {
        fail(notAccepted());
        return;
    }
    _stage = Stage::binding;
    QDBusMessage message = portalCall(shortcutsInterface, QStringLiteral("BindShortcuts"));
    const QList<PortalShortcutEntry> entries{
        {pickShortcutId,
         {{QStringLiteral("description"), tr("Pick a colour from the screen")},
          {QStringLiteral("preferred_trigger"), portalTriggerFrom(_keys)}}}};
    message << QVariant::fromValue(QDBusObjectPath(_session)) << QVariant::fromValue(entries)
            << QString() << QVariantMap{{QStringLiteral("handle_token"), newToken()}};
    call(message);
}

void PortalShortcut::call(const QDBusMessage& message)
{
    auto* watcher = new QDBusPendingCallWatcher(_bus.asyncCall(message, portalTimeout), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, expected = _handle] {
        watcher->deleteLater();
        const QDBusMessage reply = watcher->reply();
        if (reply.type() != QDBusMessage::ReplyMessage) {
            fail(notAccepted());
            return;
        }
        // Old portals choose their own handles.
        const QString handle = reply.arguments().value(0).value<QDBusObjectPath>().path();
        if (!handle.isEmpty() && handle != expected && expected == _handle) listenAt(handle);
    });
}

void PortalShortcut::listenAt(const QString& handle)
{
    _handle = handle;
    _bus.connect(shortcutPortal, handle, shortcutRequest, QStringLiteral("Response"), this,
                 SLOT(responded(QDBusMessage)));
}

void PortalShortcut::responded(const QDBusMessage& message)
{
    if (message.path() != _handle || _stage == Stage::over) return;
    _bus.disconnect(shortcutPortal, _handle, shortcutRequest, QStringLiteral("Response"), this,
                    SLOT(responded(QDBusMessage)));
    const QList<QVariant> arguments = message.arguments();
    if (message.signature() != QLatin1String("ua{sv}") || arguments.value(0).toUInt() != 0) {
        fail(notAccepted());
    } else if (_stage == Stage::creatingSession) {
        takeSession(qdbus_cast<QVariantMap>(arguments.value(1)));
    } else if (_stage == Stage::binding) {
        _stage = Stage::bound;
        emit bound();
    }
}

void PortalShortcut::wasActivated(const QDBusMessage& message)
{
    const QList<QVariant> arguments = message.arguments();
    if (_stage != Stage::bound || arguments.value(1).toString() != pickShortcutId) return;
    if (arguments.value(0).value<QDBusObjectPath>().path() == _session) emit activated();
}

void PortalShortcut::fail(const Message& reason)
{
    if (std::exchange(_stage, Stage::over) != Stage::over) emit failed(reason);
}

}  // namespace vantorel
