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

/// The panel on the session bus: interface `org.vantorel.ColorPanel1`, described by the XML file in
/// this folder. Has no effect without a bus.
class PanelService final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_PROPERTY(vantorel::ColorChannels Color READ channels)

public:
    enum class Claim { claimed, taken, noBus };

    /// `requests` must outlive the service.
    PanelService(PanelRequests& requests, const QDBusConnection& bus);
    /// Answers the calls in progress as cancelled.
    ~PanelService() override;

    /// Claims the panel's name on the bus, unless another program has it. The panel must be ready:
    /// calls arrive as soon as the event loop runs.
    [[nodiscard]] Claim claimName();
    /// Claims the name when the programs before it in the queue have released it.
    void waitForName();
    /// Releases the name, and returns when no more calls can arrive.
    void releaseName();

    [[nodiscard]] ColorChannels channels() const;

    // The members of the D-Bus interface, with the same names.

    void Show();
    void Activate(const QVariantMap& platformData);
    void SetColor(const QString& color);
    [[nodiscard]] QString GetColor() const;
    QString Pick(bool copy);
    QString Copy(const QString& form);

signals:
    void ColorChanged(const QString& color);
    /// A method was called.
    void called() const;
    /// Other programs can no longer reach the panel.
    void unreachable(const vantorel::Message& why);

private slots:
    void busHasGone();

private:
    /// Keeps the current call, to be answered later, and returns its number.
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
    /// The number of the latest pick.
    int _pick = 0;
};

}  // namespace vantorel

Q_DECLARE_METATYPE(vantorel::ColorChannels)
