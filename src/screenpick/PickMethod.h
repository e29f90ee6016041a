#pragma once

#include "host/HostColor.h"
#include "result/Message.h"

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
    /// Why this way is closed: a clause such as "there is no X11 display", which becomes part of a
    /// sentence.
    struct Failure {
        Phrase clause;
        bool operator==(const Failure&) const = default;
    };
    using Outcome = std::variant<HostColor, CancelledByUser, Failure>;

    /// Begins a pick; none is under way. `parent` is the window that asks; may be null.
    virtual void start(QWidget* parent) = 0;
    /// Gives up the pick that is under way, if any: it does not finish any more. Destroying the
    /// method does the same.
    virtual void cancel() = 0;

signals:
    /// The pick is over. Comes from the event loop, once for each start that is not cancelled. A
    /// slot may start or cancel the method again, but not destroy it.
    void finished(const vantorel::PickMethod::Outcome& outcome);
};

}  // namespace vantorel
