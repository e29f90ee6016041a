#pragma once

#include "host/HostColor.h"
#include "panel/bus/ActivationToken.h"
#include "wayland/WaylandSelection.h"

#include <QObject>
#include <QString>

#include <deque>
#include <functional>
#include <memory>

namespace vantorel {

/// Copies for other programs, whose requests come while no window of the panel has the focus. Qt
/// can do that under X11 only; see `WaylandSelection`.
class SessionClipboard final : public QObject {
    Q_OBJECT

public:
    using Done = std::function<void(bool isCopied)>;

    SessionClipboard();

    /// Copies the colour together with this text. `done` is called once, possibly before this
    /// returns, unless this object is destroyed before.
    void copy(const HostColor& color, const QString& text, const ActivationToken& token, Done done);
    /// Whether the program has to run on so that others can paste what it has copied.
    [[nodiscard]] bool isOurs() const;

signals:
    /// Another program has copied something.
    void lost();

private:
    struct Job {
        std::vector<OfferedForm> forms;
        std::string activationToken;
        Done done;
    };

    void startNextJob();
    void finishJob(bool isOurs);
    void forget(int selection);

    /// Jobs that have not finished; the first has begun.
    std::deque<Job> _jobs;
    /// The one that is confirmed, and the one of the first job. Each replaces the one before.
    std::unique_ptr<WaylandSelection> _current;
    std::unique_ptr<WaylandSelection> _next;
    int _currentNumber = 0;
    int _nextNumber = 0;
};

}  // namespace vantorel
