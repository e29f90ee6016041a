#pragma once

#include "panel/window/PanelMemory.h"

#include <QObject>
#include <QTimer>

namespace vantorel {

class PanelWindow;

/// Keeps the panel's memory on the disk up to date, so that it survives whatever ends the panel.
///
/// Changes are written soon after they are made, for the ends that nobody can prepare for. The
/// memory is also written when the session asks programs to save, when the program exits because
/// the connection to the X server broke, and by `save` at an orderly end.
class PanelMemoryKeeper final : public QObject {
    Q_OBJECT

public:
    /// Reads the memory into the window, which must outlive the keeper. At most one keeper may
    /// exist at a time.
    explicit PanelMemoryKeeper(PanelWindow& window);
    ~PanelMemoryKeeper() override;

    /// From now on the memory is written. To be called when the panel is sure to go on.
    void keep();
    /// Writes the memory at once, unless it is as it was last read or written.
    void save();

protected:
    /// Watches the window's place.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void saveSoon();
    void saveAtExit();
    void write(PanelMemory memory);

    PanelWindow& _window;
    /// As this panel has last read or written it.
    PanelMemory _known;
    QTimer _timer;
};

}  // namespace vantorel
