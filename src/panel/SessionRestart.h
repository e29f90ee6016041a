#pragma once

#include "panel/PanelOptions.h"

#include <QObject>

// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): its destructor is private.
class QSessionManager;

namespace vantorel {

/// Removes the two arguments that a session manager adds when it starts the panel again, and
/// returns the identifier among them; empty if they are not there.
[[nodiscard]] QString takeSessionIdentifier(QStringList& arguments);

/// Tells the X session manager how to start this panel again at the next login: with the same data,
/// plug-ins and theme if its window is open, otherwise not at all. Colour, page and place are
/// in the panel's memory.
class SessionRestart final : public QObject {
    Q_OBJECT

public:
    /// Needs the application.
    explicit SessionRestart(const PanelOptions& options);

private:
    void describe(QSessionManager& session) const;

    /// Empty if this start has done its work when it ends.
    QStringList _command;
};

}  // namespace vantorel
