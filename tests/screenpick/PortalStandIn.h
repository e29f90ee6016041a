#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <optional>

/// Stands at the desktop portal's place on a bus, and does what a test tells it.
class PortalStandIn final : public QDBusVirtualObject {
public:
    /// Takes the portal's name on that bus.
    explicit PortalStandIn(QDBusConnection bus);

    // What it is like.
    /// Empty: it has no such interface.
    std::optional<uint> version = 2;
    bool isSilent = false;
    bool holdsHandleBack = false;
    bool answersBeforeItReturns = false;
    bool makesUpItsHandles = false;
    QString errorOfPickColor;

    // What it has seen.
    int calls = 0;
    int versionCalls = 0;
    QString parentWindow;
    QString handle;
    QStringList closedHandles;

    /// Returns from the `PickColor` that was held back.
    void returnHandle();
    /// Sends `Response` for the last handle; any arguments.
    void respond(const QVariantList& arguments);
    void respond(uint code, const QVariantMap& results);

    [[nodiscard]] static QVariantMap color(double red, double green, double blue);

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    void pickColor(const QDBusMessage& message);

    QDBusConnection _bus;
    QDBusMessage _pickColor;
};
