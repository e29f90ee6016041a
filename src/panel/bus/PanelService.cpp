#include "panel/bus/PanelService.h"

#include "ColorPanelAdaptor.h"
#include "hosts/qt/QtMessages.h"
#include "panel/bus/PanelNames.h"

#include <QDBusConnectionInterface>
#include <QDBusMetaType>
#include <QDBusReply>
#include <QPointer>

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

/// Longer tokens are ignored; no desktop has them.
constexpr qsizetype longestToken = 4096;

QByteArray tokenIn(const QVariantMap& platformData, const QString& key)
{
    const QString token = platformData.value(key).toString();
    return token.size() <= longestToken ? token.toUtf8() : QByteArray();
}

/// The channel as texts of the colour have it.
double fraction(double channel)
{
    return std::isnan(channel) ? 0 : std::clamp(channel, 0.0, 1.0);
}

}  // namespace

QDBusArgument& operator<<(QDBusArgument& argument, const ColorChannels& channels)
{
    argument.beginStructure();
    argument << channels.red << channels.green << channels.blue << channels.alpha;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, ColorChannels& channels)
{
    argument.beginStructure();
    argument >> channels.red >> channels.green >> channels.blue >> channels.alpha;
    argument.endStructure();
    return argument;
}

PanelService::PanelService(PanelRequests& requests, const QDBusConnection& bus)
    : _requests(requests), _bus(bus), _announcedColor(requests.hostColor())
{
    qDBusRegisterMetaType<ColorChannels>();
    new ColorPanelAdaptor(this);
    if (!_bus.isConnected()) return;
    _callers.setConnection(_bus);
    _callers.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&_callers, &QDBusServiceWatcher::serviceUnregistered, this,
            &PanelService::callerHasGone);
    connect(_bus.interface(), &QDBusConnectionInterface::serviceUnregistered, this,
            [this](const QString& name) {
                if (name == panelBusName)
                    emit unreachable(
                        {phrase("the panel has lost its name on the session bus: "
                                "other programs can no longer reach it")});
            });
    _bus.connect({}, QStringLiteral("/org/freedesktop/DBus/Local"),
                 QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                 SLOT(busHasGone()));
    connect(&_requests, &PanelRequests::colorChanged, &_announcer, &ChangeAnnouncer::noteChange);
    connect(&_announcer, &ChangeAnnouncer::due, this, &PanelService::announceColor);
    _bus.registerObject(panelObjectPath, this, QDBusConnection::ExportAdaptors);
}

PanelService::~PanelService()
{
    if (!_bus.isConnected()) return;
    disconnect(_bus.interface(), nullptr, this, nullptr);
    const PanelError closed{PanelError::Kind::cancelled, {phrase("the panel was closed")}};
    while (!_calls.empty())
        answer(_calls.begin()->first, closed);
    _bus.unregisterObject(panelObjectPath);
    // This call waits for the bus, so the answers are sent before the program exits.
    _bus.interface()->unregisterService(panelBusName);
}

PanelService::Claim PanelService::claimName()
{
    if (!_bus.isConnected()) return Claim::noBus;
    const auto reply = _bus.interface()->registerService(panelBusName);
    if (!reply.isValid()) return Claim::noBus;
    return reply == QDBusConnectionInterface::ServiceRegistered ? Claim::claimed : Claim::taken;
}

void PanelService::waitForName()
{
    _bus.interface()->registerService(panelBusName, QDBusConnectionInterface::QueueService);
}

void PanelService::releaseName()
{
    if (!_bus.isConnected()) return;
    disconnect(_bus.interface(), &QDBusConnectionInterface::serviceUnregistered, this, nullptr);
    _bus.interface()->unregisterService(panelBusName);
}

ColorChannels PanelService::channels() const
{
    const auto color = _requests.hostColor().calibratedRGB().value_or(HostColor::Components{});
    return {fraction(color.red), fraction(color.green), fraction(color.blue),
            fraction(color.alpha)};
}

void PanelService::Show()
{
    emit called();
    _requests.show({});
}

void PanelService::Activate(const QVariantMap& platformData)
{
    emit called();
    _requests.show(
        {tokenIn(platformData, activationTokenKey), tokenIn(platformData, startupIDKey)});
}

void PanelService::SetColor(const QString& color)
{
    emit called();
    const PanelAnswer answer = _requests.setColor(color);
    if (!answer) {
        const auto& [kind, message] = answer.error();
        sendErrorReply(errorNameFor(kind), translatedSentence(message));
    }
}

QString PanelService::GetColor() const
{
    emit called();
    return _requests.color();
}

QString PanelService::Pick(bool copy)
{
    const int call = keepCall();
    _pick = call;
    _requests.pick(copy, [guard = QPointer(this), call](const PanelAnswer& answer) {
        if (guard) guard->answer(call, answer);
    });
    return {};
}

QString PanelService::Copy(const QString& form)
{
    const int call = keepCall();
    _requests.copy(form, {}, [guard = QPointer(this), call](const PanelAnswer& answer) {
        if (guard) guard->answer(call, answer);
    });
    return {};
}

int PanelService::keepCall()
{
    emit called();
    setDelayedReply(true);
    // Watched until it exits, because it may call again.
    _callers.addWatchedService(message().service());
    _calls.emplace(++_lastCall, message());
    return _lastCall;
}

void PanelService::answer(int call, const PanelAnswer& answer)
{
    const auto kept = _calls.extract(call);
    if (!kept) return;
    const QDBusMessage& message = kept.mapped();
    if (answer) {
        _bus.send(message.createReply(*answer));
    } else {
        const auto& [kind, why] = answer.error();
        _bus.send(message.createErrorReply(errorNameFor(kind), translatedSentence(why)));
    }
}

void PanelService::callerHasGone(const QString& caller)
{
    const auto pick = _calls.find(_pick);
    const bool itsPick = pick != _calls.end() && pick->second.service() == caller;
    std::erase_if(_calls, [&](const auto& call) { return call.second.service() == caller; });
    _callers.removeWatchedService(caller);
    if (itsPick) _requests.cancelPick();
}

void PanelService::announceColor()
{
    const HostColor color = _requests.hostColor();
    if (color == _announcedColor) return;
    _announcedColor = color;
    emit ColorChanged(_requests.color());
    QDBusMessage changed = QDBusMessage::createSignal(
        panelObjectPath, QStringLiteral("org.freedesktop.DBus.Properties"),
        QStringLiteral("PropertiesChanged"));
    changed << panelInterface
            << QVariantMap{{QStringLiteral("Color"), QVariant::fromValue(channels())}}
            << QStringList();
    _bus.send(changed);
}

void PanelService::busHasGone()
{
    _calls.clear();
    emit unreachable(
        {phrase("the session bus has gone: other programs can no longer reach the panel")});
}

}  // namespace vantorel
