#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <optional>

/// Replaces the desktop portal on a bus and answers as a test requires.
class PortalStandIn final : public QDBusVirtualObject {
public:
    /// Registers the portal's name on that bus.
    explicit PortalStandIn(QDBusConnection bus);

    // Behaviour.
    /// `std::nullopt` if the portal lacks the interface.
    std::optional<uint> version = 2;
    bool isSilent = false;
    bool holdsHandleBack = false;
    bool answersBeforeItReturns = false;
    bool makesUpItsHandles = false;
    QString errorOfPickColor;

    // Recorded calls.
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
