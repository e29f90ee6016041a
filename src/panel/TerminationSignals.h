#pragma once

#include <QObject>

#include <array>
#include <csignal>

namespace vantorel {

/// Turns SIGTERM, SIGHUP and SIGINT into a Qt signal, so that the program can end in good order.
///
/// When the object is destroyed after one of them has arrived, the program ends by that signal, as
/// its parent expects. A second signal of the same kind ends the program at once. Signals that are
/// ignored, as by nohup, stay ignored. At most one object may exist at a time.
class TerminationSignals final : public QObject {
    Q_OBJECT

public:
    TerminationSignals();
    ~TerminationSignals() override;

signals:
    void received() const;

private:
    void takeSignal();

    static constexpr std::array handled{SIGTERM, SIGHUP, SIGINT};

    std::array<struct sigaction, handled.size()> _usual{};
    int _readEnd = -1;
    int _writeEnd = -1;
    /// 0 until one has arrived.
    int _signal = 0;
};

}  // namespace vantorel
