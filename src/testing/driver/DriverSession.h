#pragma once

#include "picker/QTXHexColorPicker.h"
#include "testing/driver/JsonArguments.h"
#include "testing/headless/HeadlessColorPanel.h"

#include <memory>
#include <string>

namespace vantorel {

/// A panel with a picker on a headless desktop.
class DriverPanel {
public:
    struct Options {
        std::unique_ptr<HostFiles> files;
        double charWidth = 0.6;
        std::map<std::u16string, std::u16string> localizedStrings;
        std::vector<std::shared_ptr<HostColorList>> lists;
        HostRect frame{200, 400, 260, 340};
        std::optional<HostColor> color = HostColor::whiteColor();
        bool hasInterfaceFile = true;
        std::optional<std::string> settingsFile;
    };

    /// Creates the picker and its view.
    explicit DriverPanel(Options options);
    DriverPanel(const DriverPanel&) = delete;
    DriverPanel& operator=(const DriverPanel&) = delete;
    ~DriverPanel();

    [[nodiscard]] HeadlessDesktop& desktop() { return _desktop; }
    [[nodiscard]] HeadlessColorPanel& panel() { return _panel; }
    [[nodiscard]] QTXHexColorPicker& picker() { return *_picker; }
    /// Returns the custom view that is visible; null if the interface file is missing.
    [[nodiscard]] HeadlessCustomView* shownView();
    /// Returns the name of the visible custom view.
    [[nodiscard]] std::string shownViewName();
    [[nodiscard]] HeadlessCustomView* customView(const std::string& name);
    /// Ends the editing of all text fields.
    void endEditing();

private:
    class Bundle;

    std::unique_ptr<HostBundle> _bundle;
    HeadlessDesktop _desktop;
    HeadlessColorPanel _panel;
    std::unique_ptr<QTXHexColorPicker> _picker;
};

/// The requests that need a picker. If a request cannot be carried out, it throws a DriverError and
/// changes nothing.
class DriverSession {
public:
    Json open(const Json& request);
    Json close(const Json& request);
    Json picker(const Json& request);
    Json setPanelColor(const Json& request);
    Json resize(const Json& request);
    Json set(const Json& request);

    Json enter(const Json& request);
    Json type(const Json& request);
    Json choose(const Json& request);
    Json popUp(const Json& request);
    Json action(const Json& request);
    Json check(const Json& request);
    Json mouse(const Json& request);
    Json pointer(const Json& request);

    Json draw(const Json& request);
    Json advance(const Json& request);
    Json swatch(const Json& request);
    Json dragImage(const Json& request);
    Json dragString(const Json& request);
    Json settingsFile(const Json& request);
    Json state(const Json& request);

private:
    [[nodiscard]] DriverPanel& current();

    std::unique_ptr<DriverPanel> _current;
};

}  // namespace vantorel
