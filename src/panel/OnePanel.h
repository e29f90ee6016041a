#pragma once

#include "panel/Output.h"
#include "panel/Panel.h"
#include "panel/PanelEnvironment.h"
#include "panel/bus/CallersProcess.h"
#include "panel/bus/PanelRequests.h"
#include "panel/bus/PanelService.h"
#include "panel/bus/RunningPanel.h"

#include <optional>

namespace vantorel {

/// Returns the order of a start of the program to the panel, be it its own or the running one.
[[nodiscard]] PanelOrder orderFrom(const PanelOptions& options, const ActivationToken& token);

/// A start of the program. It becomes the desktop's only panel, or passes its order to the running
/// one.
class OnePanel {
public:
    /// All must outlive the object. `caller` waits for an order that shows no window; null for
    /// other orders.
    OnePanel(const PanelOptions& options, const PanelEnvironment& environment,
             const PanelOrder& order, CallersProcess* caller);

    /// Returns the exit status.
    [[nodiscard]] int run();

private:
    /// Prints each text for the caller.
    [[nodiscard]] PanelOrder::Say say();
    /// Prints why an order failed, if so, and returns the exit status.
    [[nodiscard]] int report(const PanelAnswer& answer) const;
    /// Returns the exit status if the running panel has carried out the order, or `std::nullopt` if
    /// it could not be reached.
    [[nodiscard]] std::optional<int> handOver();
    /// Claims the name on the bus, or passes the order to a panel that started first. Returns the
    /// exit status, or `std::nullopt` if this start becomes the panel.
    [[nodiscard]] std::optional<int> takeName(PanelService& service);

    // Each of these runs the panel and returns its exit status.

    [[nodiscard]] int runForOrder(PanelRequests& requests);
    [[nodiscard]] static int runForCalls(PanelService& service, PanelRequests& requests,
                                         PanelWindow& window);
    [[nodiscard]] static int runForUser(PanelWindow& window);

    const PanelOptions& _options;
    const PanelEnvironment& _environment;
    const PanelOrder& _order;
    CallersProcess* _caller;
    RunningPanel _running;
    /// Of the last text that was printed.
    int _sayStatus = succeeded;
    RunningPanel::Contact _contact = RunningPanel::Contact::none;
};

}  // namespace vantorel
