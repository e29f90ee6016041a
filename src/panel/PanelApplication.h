#pragma once

#include "panel/DisplayFailure.h"
#include "panel/PanelOptions.h"
#include "panel/SessionRestart.h"

#include <QApplication>

#include <array>
#include <optional>

namespace vantorel {

/// The application, in the user's language and the theme of the options.
class PanelApplication {
public:
    /// `sessionIdentifier` is the one that the session manager has started this panel with, or
    /// empty. Exits with `noDisplayStatus` if the display cannot be opened.
    PanelApplication(const char* program, const PanelOptions& options,
                     const QString& sessionIdentifier, int noDisplayStatus);

private:
    std::optional<DisplayFailure> _displayFailure;
    /// Qt gets only the program's name and the session, because it would interpret --plugin as its
    /// own option.
    QByteArray _program;
    QByteArray _sessionOption{"-session"};
    QByteArray _session;
    std::array<char*, 4> _arguments;
    int _argumentCount;
    QApplication _application;
    SessionRestart _restart;
};

}  // namespace vantorel
