#pragma once

#include "host/HostColorPanel.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

/// A text that stands for a colour, and what people call its form, e.g. "Hex Code".
struct HostColorText {
    std::u16string name;
    std::u16string text;

    bool operator==(const HostColorText&) const = default;
};

/// One page of a colour panel: what the panel knows of a picker. The panel owns its pickers and
/// ends them before itself.
class HostColorPicker {
public:
    /// The mask tells which modes the panel wants; `panel` must outlive the picker.
    HostColorPicker(std::uint32_t pickerMask, HostColorPanel& panel)
        : _pickerMask(pickerMask), _colorPanel(panel)
    {
    }
    HostColorPicker(const HostColorPicker&) = delete;
    HostColorPicker& operator=(const HostColorPicker&) = delete;
    virtual ~HostColorPicker() = default;

    [[nodiscard]] HostColorPanel& colorPanel() const { return _colorPanel; }
    [[nodiscard]] std::uint32_t pickerMask() const { return _pickerMask; }

    /// The page's whole interface, made at the initial request. The picker owns it. Null when it
    /// could not be made; the panel then shows a plain message in its place.
    virtual HostView* provideNewView(bool initialRequest) = 0;

    [[nodiscard]] virtual bool supportsMode(int mode) const = 0;
    [[nodiscard]] virtual int currentMode() const = 0;
    [[nodiscard]] virtual std::u16string buttonToolTip() const = 0;
    /// The picture on the page's button, in SVG; empty for none.
    [[nodiscard]] virtual std::string buttonImage() const { return {}; }
    /// The smallest page, in points.
    [[nodiscard]] virtual HostSize minContentSize() const = 0;

    /// The panel's colour has changed, also when the picker itself has changed it.
    virtual void setColor(const std::optional<HostColor>& color) = 0;
    /// The page has a new size. `sender` is the view that changed, or null.
    virtual void viewSizeChanged(HostView* sender) = 0;

    /// The text that a drag of the colour out of the page carries; nothing when it is the colour
    /// itself.
    [[nodiscard]] virtual std::optional<std::u16string> dragText() const { return std::nullopt; }
    /// The current colour in every form of text that the picker can write; the hex code first.
    [[nodiscard]] virtual std::vector<HostColorText> colorTexts() const { return {}; }

    /// Sends one of the picker's actions by its name, e.g. "poundSignAction"; `sender` is the
    /// control that stands for its sender, or null. False when there is no such action.
    virtual bool performAction(std::string_view name, HostControl* sender) = 0;

private:
    std::uint32_t _pickerMask;
    HostColorPanel& _colorPanel;
};

}  // namespace vantorel
