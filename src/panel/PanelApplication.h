#pragma once

#include "panel/DisplayFailure.h"
#include "panel/PanelOptions.h"

#include <QApplication>

#include <optional>

namespace vantorel {

/// The application, in the user's language and in the theme that the options ask for.
class PanelApplication {
public:
    /// Ends the program with `noDisplayStatus` if the display cannot be opened.
    PanelApplication(char** argv, const PanelOptions& options, int noDisplayStatus);

private:
    std::optional<DisplayFailure> _displayFailure;
    /// Qt gets the program's name alone: it would take --plugin for an option of its own.
    int _argumentCount = 1;
    QApplication _application;
};

}  // namespace vantorel
