#pragma once

#include "panel/bus/PanelOrder.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>

namespace vantorel {

/// The panel that has the name on the session bus, as another start of the program sees it. All
/// calls wait for it.
class RunningPanel {
    Q_DECLARE_TR_FUNCTIONS(RunningPanel)

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
    /// What the user should know when contact was not made; empty when that is as usual.
    [[nodiscard]] static QString remarkOn(Contact contact);

private:
    [[nodiscard]] Reply call(const QString& member, const QVariantList& arguments,
                             int timeout = patience) const;

    QDBusConnection _bus;
};

}  // namespace vantorel
