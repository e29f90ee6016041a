#pragma once

#include "panel/palettes/PaletteSession.h"

#include <QObject>
#include <QTimer>

namespace vantorel {

/// Reads the list that a session shows in steps, between which the page can be used. Most lists
/// need one step.
class PaletteLoading final : public QObject {
    Q_OBJECT

public:
    /// How many lines a step reads: as many as take a fraction of a second.
    static constexpr std::size_t linesOfStep = 20'000;

    /// `session` must outlive this object.
    explicit PaletteLoading(PaletteSession& session);

    /// Goes on with the list that the session shows, and takes the first step at once. Does nothing
    /// if the list has been read or the user has stopped.
    void start();
    /// Ends the reading of this list, as the user wishes. The colours read so far remain.
    void stop();
    /// Interrupts the reading until `start`.
    void pause();
    [[nodiscard]] bool isRunning() const { return _steps.isActive(); }

signals:
    /// In percent of the file.
    void progressed(int percent);
    /// The session has more colours than before.
    void foundMore();
    /// All colours have been read, or the user has stopped.
    void finished();

private:
    void takeStep();

    PaletteSession& _session;
    QTimer _steps;
    PaletteId _list = 0;
    bool _isStopped = false;
    /// How many colours must have been read before they are shown again.
    std::size_t _nextShown = 0;
};

}  // namespace vantorel
