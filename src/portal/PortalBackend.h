#pragma once

#include "portal/PortalPick.h"
#include "screenpick/ScreenPicker.h"

#include <QDBusContext>
#include <QDBusObjectPath>
#include <QTimer>

#include <memory>

namespace vantorel {

/// Picks colours for the desktop portal (interface org.freedesktop.impl.portal.Screenshot, version
/// 2), so that sandboxed programs can pick on desktops whose own back ends cannot.
class PortalBackend final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Screenshot")
    Q_PROPERTY(uint version READ version)

public:
    /// `picker` must not ask the portal, which would ask this object.
    PortalBackend(const QDBusConnection& bus, std::unique_ptr<ScreenPicker> picker);

    /// Claims the name on the bus. Returns false if that is not possible.
    [[nodiscard]] bool begin();

    [[nodiscard]] static uint version() { return 2; }

public slots:
    // Part of the D-Bus interface, with the same names.

    Q_SCRIPTABLE uint PickColor(const QDBusObjectPath& handle, const QString& program,
                                const QString& parentWindow, const QVariantMap& options,
                                QVariantMap& results);
    /// Is declined: only colours are picked here.
    Q_SCRIPTABLE uint Screenshot(const QDBusObjectPath& handle, const QString& program,
                                 const QString& parentWindow, const QVariantMap& options,
                                 QVariantMap& results);

signals:
    /// There has been nothing to do for a while, and no more calls arrive. The bus starts the
    /// program again for the next one.
    void ended();

private:
    void take(const ScreenPickResult& result);
    void finish(PortalPick::Response response, const QVariantMap& results = {});
    void rest();

    QDBusConnection _bus;
    std::unique_ptr<ScreenPicker> _picker;
    std::unique_ptr<PortalPick> _pick;
    QTimer _idle;
    bool _isNamed = false;
};

}  // namespace vantorel
