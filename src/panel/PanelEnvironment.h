#pragma once

#include "panel/PanelOptions.h"

#include <QTemporaryDir>

#include <optional>
#include <string>

namespace vantorel {

/// Sets environment variables for the folders and the platform of the options. Create it before the
/// application and keep it until the program exits.
class PanelEnvironment {
public:
    explicit PanelEnvironment(const PanelOptions& options);

    /// Whether a display is available or not needed.
    [[nodiscard]] static bool hasDisplay();
    /// The user's data folder, which is searched for plug-ins; empty if there is none.
    [[nodiscard]] const std::string& userData() const { return _userData; }

private:
    void hideUser(const PanelOptions& options);

    std::string _userData;
    /// Replaces the user's folders while a picture is taken.
    std::optional<QTemporaryDir> _scratch;
};

}  // namespace vantorel
