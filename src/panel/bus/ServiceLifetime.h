#pragma once

#include "panel/bus/PanelService.h"

#include <QTimer>

namespace vantorel {

/// Ends a panel that the bus has started for somebody's call, when nothing is left of what was
/// asked and nobody has asked anything for a while. It need not be long: the next call starts it
/// again.
class ServiceLifetime final : public QObject {
    Q_OBJECT

public:
    /// Both must outlive it.
    ServiceLifetime(PanelService& service, const PanelRequests& requests);

signals:
    /// The panel has given up its name, and every call that it got is answered.
    void ended();

private:
    void endIfUnused();

    PanelService& _service;
    const PanelRequests& _requests;
    QTimer _timer;
};

}  // namespace vantorel
