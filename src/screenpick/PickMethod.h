#pragma once

#include "host/HostColor.h"

#include <QString>

#include <functional>
#include <variant>

class QWidget;

namespace vantorel {

/// One way to pick a colour from the screen.
class PickMethod {
public:
    struct CancelledByUser {
        bool operator==(const CancelledByUser&) const = default;
    };
    /// Why this way is closed: a clause such as "there is no X11 display", which becomes part of a
    /// sentence.
    struct Failure {
        QString clause;
        bool operator==(const Failure&) const = default;
    };
    using Outcome = std::variant<HostColor, CancelledByUser, Failure>;
    using Done = std::function<void(const Outcome&)>;

    PickMethod() = default;
    PickMethod(const PickMethod&) = delete;
    PickMethod& operator=(const PickMethod&) = delete;
    /// As `cancel`.
    virtual ~PickMethod() = default;

    /// Begins a pick; none is under way. `done` is called at most once, from the event loop. It may
    /// start or cancel this method again, but not destroy it.
    virtual void start(QWidget* parent, Done done) = 0;
    /// Gives up the pick that is under way, if any: its `done` is not called any more.
    virtual void cancel() = 0;
};

}  // namespace vantorel
