#pragma once

#include "panel/bus/PanelOrder.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace vantorel {

/// The panel that has the name on the session bus, as another start of the program sees it. All
/// calls wait for it.
class RunningPanel {
public:
    enum class Contact {
        made,
        /// There is no panel, or no bus; or it went away before it had answered.
        none,
        /// It hangs.
        noAnswer,
        /// Another program has the name.
        notAPanel,
    };

    struct Reply {
        Contact contact = Contact::none;
        /// When contact was made.
        PanelAnswer answer = QString();
    };

    /// In milliseconds. A panel that has much to do answers sooner, and a user still waits.
    static constexpr int patience = 5000;

    explicit RunningPanel(const QDBusConnection& bus) : _bus(bus) {}

    /// Has the panel carry out what is ordered. A pick takes as long as the user does.
    [[nodiscard]] Reply handOver(const PanelOrder& order) const;
    /// A success unless the way that contact failed is a problem that the user should know of.
    [[nodiscard]] static Status statusAfter(Contact contact);

private:
    [[nodiscard]] Reply call(const QString& member, const QVariantList& arguments,
                             int timeout = patience) const;

    QDBusConnection _bus;
};

}  // namespace vantorel
