#pragma once

#include "color/HexForm.h"
#include "settings/SettingsInFile.h"

namespace vantorel {

/// What the panel's own parts follow of the Hex page's settings. They are read from the file,
/// because the page need not be there. A program has one object at a time.
class PanelSettings {
public:
    /// `files` must outlive the object.
    explicit PanelSettings(const HostFiles& files);
    ~PanelSettings();
    PanelSettings(const PanelSettings&) = delete;
    PanelSettings& operator=(const PanelSettings&) = delete;

    /// Returns the form of hex codes by the object that exists, or the default form.
    [[nodiscard]] static HexForm hexForm();

private:
    SettingsInFile _settings;
};

}  // namespace vantorel
