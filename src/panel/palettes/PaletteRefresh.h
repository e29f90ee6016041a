#pragma once

#include "panel/palettes/PaletteSession.h"

#include <QObject>
#include <QTimer>

namespace vantorel {

/// Refreshes the lists of a session in steps, between which the page can be used. Most users'
/// lists need one step.
class PaletteRefresh final : public QObject {
    Q_OBJECT

public:
    /// How many files a step looks at: as many as can be read in a fraction of a second.
    static constexpr std::size_t filesOfStep = 256;

    /// `session` must outlive this object.
    explicit PaletteRefresh(PaletteSession& session);

    /// Takes the first step at once. While a refresh is under way, another one follows it.
    void start();
    /// Ends a refresh that is under way; does nothing if there is none. The lists found so far
    /// remain.
    void stop();
    [[nodiscard]] bool isRunning() const { return _steps.isActive(); }

signals:
    void progressed(qsizetype files, qsizetype allFiles);
    /// The session has more lists than before.
    void foundMore();
    /// `changed` are the lists that other programs have changed or removed.
    void finished(const std::vector<vantorel::EditablePalette>& changed);

private:
    void takeStep();
    void finish();

    PaletteSession& _session;
    QTimer _steps;
    bool _isWantedAgain = false;
    /// How many files must have been looked at before the lists are shown again.
    std::size_t _nextShown = 0;
};

}  // namespace vantorel
