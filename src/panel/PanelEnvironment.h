#pragma once

#include "panel/PanelOptions.h"

#include <QTemporaryDir>

#include <optional>
#include <string>

namespace vantorel {

/// The folders and the platform that the options ask for, as environment variables of the program.
/// To be made before the application, and kept until the end.
class PanelEnvironment {
public:
    explicit PanelEnvironment(const PanelOptions& options);

    /// Whether there is a display, or none is needed.
    [[nodiscard]] static bool hasDisplay();
    /// The folder of the user's data, where plug-ins are looked for; empty if there is none.
    [[nodiscard]] const std::string& userData() const { return _userData; }

private:
    void hideUser(const PanelOptions& options);

    std::string _userData;
    /// Stands for the user's folders in a picture.
    std::optional<QTemporaryDir> _scratch;
};

}  // namespace vantorel
