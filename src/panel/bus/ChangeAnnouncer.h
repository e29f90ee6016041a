#pragma once

#include <QTimer>

#include <functional>

namespace vantorel {

/// Tells of changes at a bearable rate: of the first in a row at once, of those that come within
/// `leastInterval` of the last announcement together, after it. So the last change of all is always
/// told of, and no timer runs while nothing changes.
class ChangeAnnouncer {
public:
    /// In milliseconds; about 60 a second.
    static constexpr int leastInterval = 16;

    explicit ChangeAnnouncer(std::function<void()> tell);

    void changed();
    /// Whether nothing waits to be told and no timer runs.
    [[nodiscard]] bool isAtRest() const { return !_timer.isActive(); }

private:
    void announce();

    std::function<void()> _tell;
    bool _isWaiting = false;
    QTimer _timer;
};

}  // namespace vantorel
