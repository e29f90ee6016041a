#pragma once

#include "panel/bus/PanelOrder.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace vantorel {

/// The panel that has the name on the session bus, as seen by another start of the program. All
/// calls block.
class RunningPanel {
public:
    enum class Contact {
        made,
        /// There is no panel or no bus, or the panel exited before it answered.
        none,
        /// The panel hangs.
        noAnswer,
        /// Another program has the name.
        notAPanel,
    };

    struct Reply {
        Contact contact = Contact::none;
        /// Valid if contact was made.
        PanelAnswer answer = QString();
    };

    /// In milliseconds: longer than a busy panel needs, and shorter than users wait.
    static constexpr int patience = 5000;

    explicit RunningPanel(const QDBusConnection& bus) : _bus(bus) {}

    /// Lets the running panel carry out the order. A pick takes as long as the user does. `say`
    /// gets each text for the caller as soon as it is known.
    [[nodiscard]] Reply handOver(const PanelOrder& order, const PanelOrder::Say& say) const;
    /// A success unless the way that contact failed is a problem that the user should know of.
    [[nodiscard]] static Status statusAfter(Contact contact);

private:
    [[nodiscard]] Reply pick(const PanelOrder& order, const PanelOrder::Say& say) const;
    [[nodiscard]] Reply call(const QString& member, const QVariantList& arguments,
                             int timeout = patience) const;

    QDBusConnection _bus;
};

}  // namespace vantorel
