#pragma once

#include "shortcut/ShortcutMethod.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantMap>

namespace vantorel {

/// A key that the desktop portal (org.freedesktop.portal.GlobalShortcuts) reports. The desktop asks
/// the user, who may choose another key there.
class PortalShortcut final : public ShortcutMethod {
    Q_OBJECT

public:
    PortalShortcut(const QDBusConnection& bus, QObject* parent);
    ~PortalShortcut() override;

    void bind(const QKeySequence& keys) override;

private slots:
    void responded(const QDBusMessage& message);
    void wasActivated(const QDBusMessage& message);

private:
    enum class Stage { askingForVersion, creatingSession, binding, bound, over };

    void takeVersion(const QDBusMessage& reply);
    void createSession();
    void takeSession(const QVariantMap& results);
    /// Calls a method that answers by a signal.
    void call(const QDBusMessage& message);
    void listenAt(const QString& handle);
    void fail(const Message& reason);
    [[nodiscard]] QString newToken();

    QDBusConnection _bus;
    QKeySequence _keys;
    QString _handle;
    QString _session;
    Stage _stage = Stage::askingForVersion;
};

/// A shortcut as the portal gets it.
struct PortalShortcutEntry {
    QString id;
    QVariantMap properties;
};

}  // namespace vantorel

Q_DECLARE_METATYPE(vantorel::PortalShortcutEntry)
