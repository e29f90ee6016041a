#pragma once

#include "panel/bus/PanelService.h"

#include <QTimer>

namespace vantorel {

/// Ends a panel that the bus has started for a call, when it has nothing left to do and was not
/// called for a while. The while can be short, because the next call starts the panel again.
class ServiceLifetime final : public QObject {
    Q_OBJECT

public:
    /// Both must outlive it.
    ServiceLifetime(PanelService& service, const PanelRequests& requests);

signals:
    /// The panel has released its name and answered every call.
    void ended();

private:
    void endIfUnused();

    PanelService& _service;
    const PanelRequests& _requests;
    QTimer _timer;
};

}  // namespace vantorel
