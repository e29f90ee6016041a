#include "shortcut/PortalShortcut.h"

#include "../screenpick/PrivateBus.h"

#include <gtest/gtest.h>

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QTest>

#include <optional>

namespace vantorel {
namespace {

/// Replaces the desktop portal on a bus.
class ShortcutPortal final : public QDBusVirtualObject {
public:
    explicit ShortcutPortal(QDBusConnection bus) : _bus(std::move(bus))
    {
        _bus.registerVirtualObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                                   QDBusConnection::SubPath);
        _bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }

    bool hasShortcuts = true;
    uint answerToBind = 0;
    QString id;
    QString trigger;
    QStringList closed;
    QString client;

    static QString session() { return QStringLiteral("/org/freedesktop/portal/desktop/session/1"); }
    void activate(const QString& activated, const QString& inSession = session())
    {
        QDBusMessage signal = QDBusMessage::createSignal(
            QStringLiteral("/org/freedesktop/portal/desktop"),
            QStringLiteral("org.freedesktop.portal.GlobalShortcuts"), QStringLiteral("Activated"));
        signal << QVariant::fromValue(QDBusObjectPath(inSession)) << activated
               << QVariant::fromValue(qulonglong{1}) << QVariantMap();
        _bus.send(signal);
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override
    {
        const QString member = message.member();
        const QVariantList arguments = message.arguments();
        if (member == QLatin1String("Get")) {
            _bus.send(hasShortcuts ? message.createReply(QVariant::fromValue(QDBusVariant(1U)))
                                   : message.createErrorReply(QDBusError::InvalidArgs, {}));
        } else if (member == QLatin1String("CreateSession") &&
                   message.signature() == QLatin1String("a{sv}")) {
            respond(message, qdbus_cast<QVariantMap>(arguments.at(0)), 0,
                    {{QStringLiteral("session_handle"), session()}});
        } else if (member == QLatin1String("BindShortcuts") &&
                   message.signature() == QLatin1String("oa(sa{sv})sa{sv}")) {
            const auto list = arguments.at(1).value<QDBusArgument>();
            QVariantMap properties;
            list.beginArray();
            list.beginStructure();
            list >> id >> properties;
            list.endStructure();
            list.endArray();
            trigger = properties.value(QStringLiteral("preferred_trigger")).toString();
            respond(message, qdbus_cast<QVariantMap>(arguments.at(3)), answerToBind, {});
        } else if (member == QLatin1String("Close")) {
            closed.append(message.path());
        }
        return true;
    }

private:
    void respond(const QDBusMessage& message, const QVariantMap& options, uint code,
                 const QVariantMap& results)
    {
        const QString handle = QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2")
                                   .arg(message.service().mid(1).replace(u'.', u'_'),
                                        options.value(QStringLiteral("handle_token")).toString());
        _bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(handle))));
        QDBusMessage signal = QDBusMessage::createTargetedSignal(
            message.service(), handle, QStringLiteral("org.freedesktop.portal.Request"),
            QStringLiteral("Response"));
        signal << code << results;
        _bus.send(signal);
    }

    QDBusConnection _bus;
};

class PortalShortcutTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(_bus.isRunning()) << "is dbus-daemon installed?";
        _shortcut.emplace(_bus.connect(QStringLiteral("client")), nullptr);
        QObject::connect(&*_shortcut, &ShortcutMethod::bound, [this] { ++_bound; });
        QObject::connect(&*_shortcut, &ShortcutMethod::activated, [this] { ++_activated; });
        QObject::connect(&*_shortcut, &ShortcutMethod::unavailable, [this] { ++_unavailable; });
        QObject::connect(&*_shortcut, &ShortcutMethod::failed,
                         [this](const Message& reason) { _failure = reason; });
    }
    void bind() { _shortcut->bind(QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_C)); }

    PrivateBus _bus;
    std::optional<ShortcutPortal> _portal;
    std::optional<PortalShortcut> _shortcut;
    int _bound = 0;
    int _activated = 0;
    int _unavailable = 0;
    std::optional<Message> _failure;
};

TEST_F(PortalShortcutTest, TheKeyIsBoundAndReported)
{
    _portal.emplace(_bus.connect(QStringLiteral("portal")));
    bind();
    ASSERT_TRUE(QTest::qWaitFor([this] { return _bound == 1; }));
    EXPECT_EQ(_portal->trigger, "CTRL+ALT+c");
    _portal->activate(QStringLiteral("other"));
    _portal->activate(_portal->id, QStringLiteral("/org/freedesktop/portal/desktop/session/2"));
    _portal->activate(_portal->id);
    ASSERT_TRUE(QTest::qWaitFor([this] { return _activated > 0; }));
    EXPECT_EQ(_activated, 1);
    _shortcut.reset();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !_portal->closed.isEmpty(); }));
    EXPECT_EQ(_portal->closed, QStringList{ShortcutPortal::session()});
}

TEST_F(PortalShortcutTest, ADesktopThatDoesNotAcceptTheKeyIsAFailure)
{
    _portal.emplace(_bus.connect(QStringLiteral("portal")));
    _portal->answerToBind = 1;
    bind();
    ASSERT_TRUE(QTest::qWaitFor([this] { return _failure.has_value(); }));
    EXPECT_EQ(english(_failure->what), "the desktop did not accept the shortcut");
    EXPECT_EQ(_bound, 0);
}

TEST_F(PortalShortcutTest, WithoutThePortalTheMethodIsUnavailable)
{
    bind();
    EXPECT_TRUE(QTest::qWaitFor([this] { return _unavailable == 1; }));
    EXPECT_FALSE(_failure);
}

TEST_F(PortalShortcutTest, WithoutASessionBusTheMethodIsUnavailable)
{
    _bus.disconnect(QStringLiteral("client"));
    PortalShortcut shortcut(QDBusConnection(QStringLiteral("none")), nullptr);
    QObject::connect(&shortcut, &ShortcutMethod::unavailable, [this] { ++_unavailable; });
    shortcut.bind(QKeySequence(Qt::CTRL | Qt::Key_C));
    EXPECT_TRUE(QTest::qWaitFor([this] { return _unavailable == 1; }));
}

TEST_F(PortalShortcutTest, APortalWithoutShortcutsIsUnavailable)
{
    _portal.emplace(_bus.connect(QStringLiteral("portal")));
    _portal->hasShortcuts = false;
    bind();
    EXPECT_TRUE(QTest::qWaitFor([this] { return _unavailable == 1; }));
}

}  // namespace
}  // namespace vantorel
