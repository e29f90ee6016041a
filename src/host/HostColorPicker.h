#pragma once

#include "host/HostColorPanel.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

class HostControl;

/// A text form of a colour and the display name of that form, e.g. "Hex Code".
struct HostColorText {
    std::u16string name;
    std::u16string text;
    /// Whether the name is the page's own word. As in `HostMenuItem`.
    bool isOwnWord = false;

    bool operator==(const HostColorText&) const = default;
};

/// One page of a colour panel: the interface through which the panel uses a picker. The panel owns
/// its pickers and destroys them before itself.
class HostColorPicker {
public:
    /// `pickerMask` contains the modes that the panel supports. `panel` must outlive the picker.
    HostColorPicker(std::uint32_t pickerMask, HostColorPanel& panel)
        : _pickerMask(pickerMask), _colorPanel(panel)
    {
    }
    HostColorPicker(const HostColorPicker&) = delete;
    HostColorPicker& operator=(const HostColorPicker&) = delete;
    virtual ~HostColorPicker() = default;

    [[nodiscard]] HostColorPanel& colorPanel() const { return _colorPanel; }
    [[nodiscard]] std::uint32_t pickerMask() const { return _pickerMask; }

    /// Returns the page's root view, created at the initial request. The picker owns it. Returns
    /// null if the view cannot be created; the panel then shows a plain message in its place.
    virtual HostView* provideNewView(bool initialRequest) = 0;

    [[nodiscard]] virtual bool supportsMode(int mode) const = 0;
    [[nodiscard]] virtual int currentMode() const = 0;
    [[nodiscard]] virtual std::u16string buttonToolTip() const = 0;
    /// The SVG picture for the page's button; empty if there is none.
    [[nodiscard]] virtual std::string buttonImage() const { return {}; }
    /// The minimum size of the page, in points.
    [[nodiscard]] virtual HostSize minContentSize() const = 0;
    /// The size at which the page shows everything, in points. Dialogs that choose the size of the
    /// page begin with it.
    [[nodiscard]] virtual HostSize preferredContentSize() const { return minContentSize(); }

    /// Whether `setColor` takes colours outside sRGB, whose components are below 0 or above 1. The
    /// same for the page's whole life. A panel gives other pages the nearest colour of sRGB, as CSS
    /// Color 4 maps it.
    [[nodiscard]] virtual bool takesWideGamut() const { return false; }

    /// Called when the panel's colour has changed, including changes made by the picker itself.
    virtual void setColor(const std::optional<HostColor>& color) = 0;
    /// Called when `HostColorPanel::colorPair` has changed, after `setColor` if the panel's colour
    /// has changed, too.
    virtual void colorPairDidChange() {}
    /// Called when the page has a new size. `sender` is the view that changed, or null.
    virtual void viewSizeChanged(HostView* sender) = 0;

    /// Called when the page has become visible to the user, and when it no longer is. A page whose
    /// host never calls these is always visible. While it is hidden, a page still gets `setColor`,
    /// but may put off whatever only a user could see.
    virtual void pageDidAppear() {}
    virtual void pageDidDisappear() {}

    /// The text to drag out of the page, or `std::nullopt` if a drag carries the colour itself.
    [[nodiscard]] virtual std::optional<std::u16string> dragText() const { return std::nullopt; }
    /// The text to copy from the page. It stands for the colour with its opacity, which drags out
    /// of a page need not carry.
    [[nodiscard]] virtual std::optional<std::u16string> copyText() const { return dragText(); }
    /// The current colour with its opacity in every text form that the picker can write, the hex
    /// code first.
    [[nodiscard]] virtual std::vector<HostColorText> colorTexts() const { return {}; }

    /// Runs the picker's action of that name, e.g. "poundSignAction". `sender` is the control to
    /// use as the action's sender, or null. Returns false if there is no such action.
    virtual bool performAction(std::string_view name, HostControl* sender) = 0;

private:
    std::uint32_t _pickerMask;
    HostColorPanel& _colorPanel;
};

}  // namespace vantorel
