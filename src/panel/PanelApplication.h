#pragma once

#include "panel/DisplayFailure.h"
#include "panel/PanelOptions.h"

#include <QApplication>

#include <optional>

namespace vantorel {

/// The application, in the user's language and the theme of the options.
class PanelApplication {
public:
    /// Exits with `noDisplayStatus` if the display cannot be opened.
    PanelApplication(char** argv, const PanelOptions& options, int noDisplayStatus);

private:
    std::optional<DisplayFailure> _displayFailure;
    /// Qt gets only the program's name, because it would interpret --plugin as its own option.
    int _argumentCount = 1;
    QApplication _application;
};

}  // namespace vantorel
