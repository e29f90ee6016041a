#pragma once

#include <QObject>
#include <QTimer>

namespace vantorel {

/// Announces changes at a bearable rate: the first in a row at once, those that come within
/// `leastInterval` of the last announcement together, after it. So the last change of all is always
/// announced, and no timer runs while nothing changes.
class ChangeAnnouncer final : public QObject {
    Q_OBJECT

public:
    /// In milliseconds; about 60 a second.
    static constexpr int leastInterval = 16;

    ChangeAnnouncer();

    /// Whether no change waits to be announced and no timer runs.
    [[nodiscard]] bool isAtRest() const { return !_timer.isActive(); }

public slots:
    void noteChange();

signals:
    /// It is time to announce what has changed.
    void due();

private:
    void announce();

    bool _isWaiting = false;
    QTimer _timer;
};

}  // namespace vantorel
