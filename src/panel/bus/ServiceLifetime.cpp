#include "panel/bus/ServiceLifetime.h"

#include <QCoreApplication>

#include <chrono>

namespace vantorel {

/// Long enough for successive calls of a script to reach the same panel.
constexpr std::chrono::seconds patience{10};

ServiceLifetime::ServiceLifetime(PanelService& service, const PanelRequests& requests)
    : _service(service), _requests(requests)
{
    _timer.setSingleShot(true);
    _timer.setInterval(patience);
    const auto wait = qOverload<>(&QTimer::start);
    connect(&_timer, &QTimer::timeout, this, &ServiceLifetime::endIfUnused);
    connect(&service, &PanelService::called, &_timer, wait);
    connect(&requests, &PanelRequests::nothingLeft, &_timer, wait);
    _timer.start();
}

void ServiceLifetime::endIfUnused()
{
    if (!_requests.isNothingLeft()) return;
    // A call in transit must not be lost: calls that the bus sent before it released the name have
    // arrived by now, and later calls start another panel.
    _service.releaseName();
    QCoreApplication::processEvents();
    if (_requests.isNothingLeft()) {
        emit ended();
    } else {
        _service.waitForName();
    }
}

}  // namespace vantorel
