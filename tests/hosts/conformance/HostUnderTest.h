#pragma once

#include "embedding/EmbeddedPanel.h"
#include "host/HostControls.h"
#include "hosts/common/PixelFrames.h"

#include <array>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace vantorel {

/// What a hand does on the way from a press to its release: an event of the mouse, or anything else
/// that happens to the program meanwhile.
using HandStep = std::variant<HostEvent, std::function<void()>>;

/// A key of the keyboard beside those that type a text.
enum class HandKey { enter, escape, tab, backspace, up, down, left, space };

/// The dialog around the page of a host under test. Records what it hears.
class RecordingDialog final : public EmbeddingDialog {
public:
    void colorChosen(const HostColor& color, bool isFinal) override
    {
        if (isFinal) finalColors.push_back(color);
    }
    void pageDidFail() override { hasFailed = true; }

    std::vector<HostColor> finalColors;
    bool hasFailed = false;
};

/// A desktop with a colour panel in a window, a hand that operates it, and an eye that sees it.
/// Every host implements this once, and is then held to all tests of this folder.
///
/// The hand operates widgets, and the eye looks at widgets: an implementation that called the views
/// would test nothing. Only a host without widgets answers from its views.
///
/// The window shows `root`, which is 300 points wide and 200 high at first. Views that a test puts
/// into it are destroyed before the host.
class HostUnderTest {
public:
    HostUnderTest() = default;
    HostUnderTest(const HostUnderTest&) = delete;
    HostUnderTest& operator=(const HostUnderTest&) = delete;
    virtual ~HostUnderTest() = default;

    // The host.

    [[nodiscard]] virtual HostDesktop& desktop() = 0;
    [[nodiscard]] virtual HostColorPanel& panel() = 0;
    /// The panel's page; none is shown at first.
    [[nodiscard]] virtual EmbeddedPage& page() = 0;
    [[nodiscard]] RecordingDialog& dialog() { return _dialog; }
    /// Fills the root view with the page of a plug-in. Returns false if there is none.
    [[nodiscard]] virtual bool showPage(const LoadedPlugin& plugin) = 0;

    // The window.

    [[nodiscard]] virtual HostView& root() = 0;
    virtual void showWindow() = 0;
    virtual void resizeWindow(HostSize size) = 0;
    /// The program around the page destroys its window. The views remain.
    virtual void destroyWindow() = 0;
    /// Handles all events that have arrived.
    virtual void handleEvents() = 0;
    /// Lets the program run until something has happened. Returns false if it does not happen
    /// within ten seconds.
    [[nodiscard]] virtual bool runUntil(const std::function<bool()>& hasHappened) = 0;

    // The hand.

    /// Clicks into a field, so that the user can type there.
    virtual void clickInto(HostTextField& field) = 0;
    /// Types into the field that was clicked into, key by key.
    virtual void type(HostTextField& field, const std::u16string& text) = 0;
    /// Presses a key in a control. Returns whether it was used there, rather than left to the
    /// dialog.
    virtual bool pressKey(HostView& control, HandKey key, std::uint64_t modifierFlags = 0) = 0;
    virtual void click(HostButton& button) = 0;
    /// Moves the mouse over a field: a press, drags and the release, at places of the field. What
    /// was to come after the field has gone is left out.
    virtual void clickAcross(HostTextField& field, const std::vector<HostEvent>& events) = 0;
    /// Presses the mouse on a pop-up.
    virtual void open(HostPopUpButton& popUp) = 0;
    /// Chooses in the open menu: the last title of a path through submenus. Returns false if the
    /// path leads to nothing that can be chosen; the menu is then closed.
    virtual bool choose(const std::vector<std::u16string>& path) = 0;
    [[nodiscard]] virtual bool hasOpenMenu() = 0;

    /// Carries out the steps in their order, each as an event of the program of its own. The first
    /// one is a press. What was to come after the view has gone out of sight is left out.
    virtual void turnMouse(HostCustomView& view, std::vector<HandStep> steps) = 0;
    /// Moves the pointer to a place of a view, with no button down; `std::nullopt`: out of it.
    virtual void movePointer(HostCustomView& view, std::optional<HostPoint> at) = 0;
    /// Turns the wheel by steps, away from the user if positive.
    virtual void turnWheel(HostCustomView& view, const HostScrollEvent& event) = 0;
    /// Brings the pointer to a place of a view where the desktop knows it, but reports no move.
    virtual void placePointer(HostCustomView& view, HostPoint at) = 0;

    /// Enters what was typed, as the dialog's OK does.
    virtual void pressOK() = 0;

    // The eye.

    /// Where a view is seen in the window, in pixels; `std::nullopt` if it cannot be seen, clicked
    /// or focused.
    [[nodiscard]] virtual std::optional<PixelRect> placeOf(const HostView& view) = 0;
    [[nodiscard]] virtual std::u16string textIn(const HostTextField& field) = 0;
    /// The selection that a field shows; `std::nullopt` if the user is not editing it.
    [[nodiscard]] virtual std::optional<HostSelection> selectionIn(const HostTextField& field) = 0;
    [[nodiscard]] virtual bool isOn(const HostButton& button) = 0;
    [[nodiscard]] virtual std::optional<std::u16string> tipOf(const HostView& view) = 0;
    /// Red, green and blue, up to 255, of the pixel at a place of the root view.
    [[nodiscard]] virtual std::array<int, 3> pixelAt(HostPoint inRoot) = 0;
    /// The name that the interface file gives a control.
    [[nodiscard]] virtual std::string identifierOf(const HostView& view) = 0;
    /// The name that assistive technology announces; `std::nullopt` on a host without any.
    [[nodiscard]] virtual std::optional<std::u16string> spokenNameOf(const HostView& view) = 0;
    /// What the last drag out of a view has carried.
    [[nodiscard]] virtual std::optional<HostPasteboardItem> carried() = 0;
    /// The text that programs find on the clipboard.
    [[nodiscard]] virtual std::u16string textOnClipboard() = 0;

protected:
    /// Calls a function as an event of its own.
    virtual void callLater(std::function<void()> function) = 0;

    /// Takes steps in their order, each but the first one as an event of its own. A step that waits
    /// for events gets the next ones meanwhile.
    void takeSteps(std::vector<HandStep> steps, const std::function<void(const HandStep&)>& take);

    RecordingDialog _dialog;

private:
    void takeNext(const std::function<void(const HandStep&)>& take);

    std::deque<HandStep> _steps;
};

/// The panel of a host, made from its toolkit's. Destroy its page before anything that it needs.
template <class ToolkitPanel>
class PanelUnderTest : public EmbeddedPanel<ToolkitPanel> {
public:
    using EmbeddedPanel<ToolkitPanel>::EmbeddedPanel;
    ~PanelUnderTest() override { this->page().close(); }
};

/// The host that the program tests; every program of these tests defines it.
[[nodiscard]] std::unique_ptr<HostUnderTest> makeHostUnderTest();
/// The headless host, to which the others are compared.
[[nodiscard]] std::unique_ptr<HostUnderTest> makeHeadlessHost();

}  // namespace vantorel
