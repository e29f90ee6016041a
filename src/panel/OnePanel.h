#pragma once

#include "panel/Panel.h"
#include "panel/PanelEnvironment.h"
#include "panel/bus/CallersProcess.h"
#include "panel/bus/PanelRequests.h"
#include "panel/bus/PanelService.h"
#include "panel/bus/RunningPanel.h"

#include <optional>

namespace vantorel {

/// What a start of the program orders from the panel, its own or one that runs already.
[[nodiscard]] PanelOrder orderFrom(const PanelOptions& options, const ActivationToken& token);

/// A start of the program that becomes the desktop's one panel, or hands over to the panel that
/// runs already.
class OnePanel {
public:
    /// All must outlive the object. `caller` waits for an order that shows no window; null for
    /// other orders.
    OnePanel(const PanelOptions& options, const PanelEnvironment& environment,
             const PanelOrder& order, CallersProcess* caller);

    /// Returns the exit status.
    [[nodiscard]] int run();

private:
    /// Returns the exit status if the panel that runs already has carried out the order, or
    /// `std::nullopt` if it could not be reached.
    [[nodiscard]] std::optional<int> handOver();
    /// Takes the name on the bus, or hands over to a start that was quicker. Returns the exit
    /// status, or `std::nullopt` if this start goes on.
    [[nodiscard]] std::optional<int> takeName(PanelService& service);

    // The ways to go on. Each returns the exit status when the panel has ended.

    [[nodiscard]] int runForOrder(PanelRequests& requests);
    [[nodiscard]] static int runForCalls(PanelService& service, const PanelRequests& requests);
    [[nodiscard]] static int runForUser(PanelWindow& window);

    const PanelOptions& _options;
    const PanelEnvironment& _environment;
    const PanelOrder& _order;
    CallersProcess* _caller;
    RunningPanel _running;
    RunningPanel::Contact _contact = RunningPanel::Contact::none;
};

}  // namespace vantorel
