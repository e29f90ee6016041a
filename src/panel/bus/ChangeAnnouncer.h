#pragma once

#include <QObject>
#include <QTimer>

namespace vantorel {

/// Announces changes at a limited rate: the first immediately, and those within `leastInterval` of
/// the last announcement together after it. The last change is always announced, and no timer runs
/// without changes.
class ChangeAnnouncer final : public QObject {
    Q_OBJECT

public:
    /// In milliseconds: about 60 per second.
    static constexpr int leastInterval = 16;

    ChangeAnnouncer();

    /// Whether no change waits to be announced and no timer runs.
    [[nodiscard]] bool isAtRest() const { return !_timer.isActive(); }

public slots:
    void noteChange();

signals:
    /// Changes must be announced now.
    void due();

private:
    void announce();

    bool _isWaiting = false;
    QTimer _timer;
};

}  // namespace vantorel
