#pragma once

#include "host/HostColor.h"
#include "result/Message.h"
#include "screenpick/PickOptions.h"

#include <QObject>

#include <variant>

class QWidget;

namespace vantorel {

/// One way to pick a colour from the screen.
class PickMethod : public QObject {
    Q_OBJECT

public:
    struct CancelledByUser {
        bool operator==(const CancelledByUser&) const = default;
    };
    /// Why this method cannot pick: a clause such as "there is no X11 display". It becomes part of
    /// a message.
    struct Failure {
        Phrase clause;
        bool operator==(const Failure&) const = default;
    };
    using Outcome = std::variant<HostColor, CancelledByUser, Failure>;

    /// Whether the method can pick averages, and heeds all other options as well.
    [[nodiscard]] virtual bool canAverage() const = 0;
    /// Begins a pick. None may be in progress. `parent` is the requesting window; may be null. A
    /// method heeds as many of the options as it can.
    virtual void start(QWidget* parent, const PickOptions& options) = 0;
    /// Abandons the pick in progress, if any; `finished` is not emitted. Destroying the method does
    /// the same.
    virtual void cancel() = 0;

signals:
    /// The user has picked a colour and goes on picking.
    void pickedOnTheWay(const vantorel::HostColor& color);
    /// Emitted from the event loop, once for each start that is not cancelled. A slot may start or
    /// cancel the method again, but not destroy it.
    void finished(const vantorel::PickMethod::Outcome& outcome);
};

}  // namespace vantorel
