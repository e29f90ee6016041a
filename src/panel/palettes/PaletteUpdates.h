#pragma once

#include "panel/palettes/PaletteLoading.h"
#include "panel/palettes/PaletteRefresh.h"
#include "panel/palettes/PaletteWatch.h"

namespace vantorel {

/// Keeps what a session shows up to date with the disk: notices changes by other programs,
/// refreshes the lists, and reads the list that is shown.
class PaletteUpdates final : public QObject {
    Q_OBJECT

public:
    /// All three must outlive this object, which is off at first.
    PaletteUpdates(HostFiles& files, PaletteFileStore& store, PaletteSession& session);

    /// Turns on or off that changes by other programs are noticed.
    void start();
    void stop();
    /// Refreshes the lists, unless this object is off.
    void lookAgain();
    /// Reads and watches the list that the session shows now.
    void followList();
    /// Reads no more, as the user wishes. What has been read so far can be used.
    void readNoMore();

signals:
    /// Reading takes a while. `text` says how far it has come.
    void progressed(const QString& text);
    /// Nothing is being read any more.
    void rested();
    /// The session has more lists than before.
    void foundLists();
    /// The session has more colours than before, or has all of them.
    void foundColors();
    /// The lists have been refreshed. `changed` are those that other programs have changed or
    /// removed.
    void refreshed(const std::vector<vantorel::EditablePalette>& changed);

private:
    void restIfDone();

    PaletteSession& _session;
    PaletteRefresh _refresh;
    PaletteLoading _loading;
    PaletteWatch _watch;
};

}  // namespace vantorel
