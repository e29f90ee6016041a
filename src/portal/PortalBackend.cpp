#include "portal/PortalBackend.h"

#include "hosts/qt/QtColors.h"
#include "portal/PortalColor.h"

#include <QDBusMetaType>

#include <chrono>

namespace vantorel {
namespace {

constexpr const char* serviceName = "org.freedesktop.impl.portal.desktop.vantorel";
constexpr const char* objectPath = "/org/freedesktop/portal/desktop";

constexpr std::chrono::seconds idleTime{30};
/// Long enough for calls that were sent before the name was released.
constexpr std::chrono::seconds lastCallsTime{1};

}  // namespace

PortalBackend::PortalBackend(const QDBusConnection& bus, std::unique_ptr<ScreenPicker> picker)
    : _bus(bus), _picker(std::move(picker))
{
    qDBusRegisterMetaType<PortalColor>();
    _idle.setSingleShot(true);
    connect(&_idle, &QTimer::timeout, this, &PortalBackend::rest);
}

bool PortalBackend::begin()
{
    constexpr auto exported =
        QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportAllProperties;
    _isNamed = _bus.registerObject(QLatin1String(objectPath), this, exported) &&
               _bus.registerService(QLatin1String(serviceName));
    if (_isNamed) _idle.start(idleTime);
    return _isNamed;
}

uint PortalBackend::PickColor(const QDBusObjectPath& handle, const QString&, const QString&,
                              const QVariantMap&, QVariantMap&)
{
    // The screen has one magnifier, and its user should not lose it to another program.
    if (_pick) return static_cast<uint>(PortalPick::Response::other);
    setDelayedReply(true);
    _idle.stop();
    _pick = std::make_unique<PortalPick>(_bus, message(), handle.path());
    connect(_pick.get(), &PortalPick::closed, this, [this] { _picker->cancel(); });
    _picker->start(nullptr, {}, [this](const ScreenPickResult& result) { take(result); });
    return 0;
}

uint PortalBackend::Screenshot(const QDBusObjectPath&, const QString&, const QString&,
                               const QVariantMap&, QVariantMap&)
{
    return static_cast<uint>(PortalPick::Response::other);
}

void PortalBackend::take(const ScreenPickResult& result)
{
    switch (result.outcome) {
        case ScreenPickResult::Outcome::picked: {
            const QColor color = qColorFrom(result.color);
            const PortalColor picked{color.redF(), color.greenF(), color.blueF()};
            finish(PortalPick::Response::success,
                   {{QStringLiteral("color"), QVariant::fromValue(picked)}});
            break;
        }
        case ScreenPickResult::Outcome::cancelled:
            finish(PortalPick::Response::cancelled);
            break;
        case ScreenPickResult::Outcome::notPossible:
            finish(PortalPick::Response::other);
            break;
    }
}

void PortalBackend::finish(PortalPick::Response response, const QVariantMap& results)
{
    _pick->answer(response, results);
    _pick.reset();
    _idle.start(_isNamed ? idleTime : lastCallsTime);
}

void PortalBackend::rest()
{
    if (!_isNamed) {
        emit ended();
        return;
    }
    _bus.unregisterService(QLatin1String(serviceName));
    _isNamed = false;
    _idle.start(lastCallsTime);
}

}  // namespace vantorel
