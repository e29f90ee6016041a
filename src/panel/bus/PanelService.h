#pragma once

#include "panel/bus/ChangeAnnouncer.h"
#include "panel/bus/PanelRequests.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>

#include <map>

namespace vantorel {

/// A colour as D-Bus carries it: four doubles, 0..1.
struct ColorChannels {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;
};
QDBusArgument& operator<<(QDBusArgument& argument, const ColorChannels& channels);
const QDBusArgument& operator>>(const QDBusArgument& argument, ColorChannels& channels);

/// The panel on the session bus: interface `org.vantorel.ColorPanel1`, which its XML file beside
/// this one describes. Without a bus it does nothing.
class PanelService final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_PROPERTY(vantorel::ColorChannels Color READ channels)

public:
    enum class Claim { claimed, taken, noBus };

    /// `requests` must outlive the service.
    PanelService(PanelRequests& requests, const QDBusConnection& bus);
    /// Answers the picks that are under way as cancelled.
    ~PanelService() override;

    /// Takes the panel's name on the bus, unless another has it. The panel must be ready: calls
    /// come as soon as the event loop runs.
    [[nodiscard]] Claim claimName();
    /// Takes the name when those who have it now have left.
    void waitForName();
    /// Gives the name up, and returns when no more calls can come.
    void releaseName();

    [[nodiscard]] ColorChannels channels() const;

    // The members of the interface, under their names there.

    void Show();
    void Activate(const QVariantMap& platformData);
    void SetColor(const QString& color);
    [[nodiscard]] QString GetColor() const;
    QString Pick(bool copy);
    QString Copy(const QString& form);

signals:
    void ColorChanged(const QString& color);
    /// Somebody has asked something.
    void called() const;
    /// Other programs can no longer reach the panel.
    void unreachable(const vantorel::Message& why);

private slots:
    void busHasGone();

private:
    /// What is answered later, under a number of its own.
    int keepCall();
    void answer(int call, const PanelAnswer& answer);
    void callerHasGone(const QString& caller);
    void announceColor();

    PanelRequests& _requests;
    QDBusConnection _bus;
    QDBusServiceWatcher _callers;
    ChangeAnnouncer _announcer;
    HostColor _announcedColor;
    std::map<int, QDBusMessage> _calls;
    int _lastCall = 0;
    /// The pick that the screen picker works on.
    int _pick = 0;
};

}  // namespace vantorel

Q_DECLARE_METATYPE(vantorel::ColorChannels)
