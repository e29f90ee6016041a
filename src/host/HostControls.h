#pragma once

#include "host/HostBezierPath.h"
#include "host/HostCanvas.h"
#include "host/HostColor.h"
#include "host/HostEvent.h"
#include "host/HostMenu.h"
#include "host/HostView.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vantorel {

/// A view that the user operates. When the user has finished, the control sends its action. The
/// action, like every other function that a control calls, may take the control out of sight or
/// destroy it, and its page with it; but `setWillPopUp`'s may not.
class HostControl : public HostView {
public:
    using Action = std::function<void(HostControl& sender)>;
    using HostView::HostView;

    void setAction(Action action) { _action = std::move(action); }
    /// Sends the action. Desktops call this when the user has operated the control.
    void sendAction()
    {
        if (_action) _action(*this);
    }

private:
    Action _action;
};

/// What a field's action does with a text.
enum class HostEntryFit {
    fits,        ///< it reads the text as it is meant
    doesNotFit,  ///< it reports an error, or reads something else into the text
    isIgnored,   ///< it does nothing
};

/// A line of text, editable or not. The action is sent when the user ends the entry: by Return, or
/// by leaving the field. A field that goes out of sight sends none.
class HostTextField : public HostControl {
public:
    using HostControl::HostControl;

    [[nodiscard]] virtual std::u16string stringValue() const = 0;
    /// Setting the text from code does not count as a change by the user.
    virtual void setStringValue(const std::u16string& text) = 0;
    virtual void setTextColor(const HostColor& color) = 0;

    /// Sets the function to call after each edit by the user: a key press, an input method, a
    /// paste.
    void setTextDidChange(std::function<void()> reaction) { _textDidChange = std::move(reaction); }
    void sendTextDidChange()
    {
        if (_textDidChange) _textDidChange();
    }

    /// Sets the function that returns what the action would do with a text. It is called when an
    /// entry ends, so that a desktop can use a text that is not meant for the field in another way.
    using FitFunction = std::function<HostEntryFit(const std::u16string& text)>;
    void setEntryFit(FitFunction function) { _entryFit = std::move(function); }
    [[nodiscard]] HostEntryFit entryFit(const std::u16string& text) const
    {
        return _entryFit ? _entryFit(text) : HostEntryFit::fits;
    }

    /// Sets the function that makes the field's value larger by `steps`, or smaller if negative.
    /// Desktops call it for the Up and Down keys and for the mouse wheel.
    using StepFunction = std::function<void(int steps, std::uint64_t modifierFlags)>;
    void setStep(StepFunction function)
    {
        _step = std::move(function);
        stepDidChange();
    }
    [[nodiscard]] bool canStep() const { return _step != nullptr; }
    void sendStep(int steps, std::uint64_t modifierFlags)
    {
        if (_step) _step(steps, modifierFlags);
    }

    /// A part of a drag across the field.
    struct Scrub {
        enum class Phase { begin, move, end } phase = Phase::move;
        /// How far the pointer has moved to the right since the last part, in points.
        double distance = 0;
        std::uint64_t modifierFlags = 0;
    };
    using ScrubFunction = std::function<void(const Scrub&)>;
    /// Sets the function that changes the field's value while the pointer is dragged across it.
    /// Desktops call it for a field that the user is not editing; in one that is edited, a drag
    /// selects. A click without a drag begins the editing and selects the whole text.
    void setScrub(ScrubFunction function)
    {
        _scrub = std::move(function);
        scrubDidChange();
    }
    [[nodiscard]] bool canScrub() const { return _scrub != nullptr; }
    void sendScrub(const Scrub& scrub)
    {
        // The reaction may replace itself while it runs.
        const auto reaction = _scrub;
        if (reaction) reaction(scrub);
    }

protected:
    /// Called when the field can step, or no longer can.
    virtual void stepDidChange() {}
    /// Called when the field can be scrubbed, or no longer can.
    virtual void scrubDidChange() {}

private:
    std::function<void()> _textDidChange;
    FitFunction _entryFit;
    StepFunction _step;
    ScrubFunction _scrub;
};

/// The insertion point or selection of the text field that is being edited, in UTF-16 units.
struct HostSelection {
    std::size_t location = 0;
    std::size_t length = 0;

    bool operator==(const HostSelection&) const = default;
};

/// The editor of a text field that is being edited.
///
/// While a change of the text is reported (`HostTextField::setTextDidChange`), the selection is
/// already the one after the change, and a selection set in the reaction is the one that the user
/// sees. A desktop whose toolkit moves the insertion point after its own report must therefore
/// report later.
class HostFieldEditor {
public:
    virtual ~HostFieldEditor() = default;
    [[nodiscard]] virtual HostSelection selectedRange() const = 0;
    virtual void setSelectedRange(HostSelection range) = 0;
};

/// A push button, check box or toggle. State 0 is off, 1 is on. A click on a check box or toggle
/// changes the state before the action is sent.
class HostButton : public HostControl {
public:
    using HostControl::HostControl;

    [[nodiscard]] int state() const { return _state; }
    void setState(int state)
    {
        if (state == _state) return;
        _state = state;
        stateDidChange();
    }

protected:
    virtual void stateDidChange() {}

private:
    int _state = 0;
};

/// A button that shows one item of its menu and opens the menu when pressed. This class holds the
/// items, so that selection follows the same rules on every desktop; the desktop only shows them.
/// Without items no menu opens. An open menu closes when the button goes out of sight.
class HostPopUpButton : public HostControl {
public:
    using HostControl::HostControl;
    static constexpr int noItem = -1;

    void removeAllItems();
    /// Replaces all items and selects the first, if any.
    void setItems(HostMenu items);
    /// Appends an item. The first item added to an empty pop-up becomes the selected one.
    void addItem(HostMenuItem item);
    void addItemWithTitle(const std::u16string& title);
    void addItemsWithTitles(const std::vector<std::u16string>& titles);
    /// Inserts an item. `index` is clamped to the valid range. The selected item stays selected.
    void insertItem(HostMenuItem item, int index);
    void setTitleOfItem(int index, const std::u16string& title);
    /// Moves the items at `indexes`, in the order given, to just before the item at `to`. The
    /// indexes must be in range and distinct. The selected item stays selected. Takes a single
    /// pass, however many items move.
    void moveItems(const std::vector<int>& indexes, int to);

    [[nodiscard]] const HostMenu& menu() const { return _menu; }
    [[nodiscard]] int numberOfItems() const { return static_cast<int>(_menu.size()); }
    /// Returns the index of the first item with that title, or `noItem`. Separators have no title.
    [[nodiscard]] int indexOfItemWithTitle(const std::u16string& title) const;

    /// An index out of range, or a title that no item has, clears the selection.
    void selectItemAtIndex(int index);
    void selectItemWithTitle(const std::u16string& title);
    [[nodiscard]] int indexOfSelectedItem() const { return _selected; }
    [[nodiscard]] std::optional<std::u16string> titleOfSelectedItem() const;

    /// Sets the function to call each time before the menu opens; pass an empty function to remove
    /// it.
    void setWillPopUp(std::function<void()> reaction) { _willPopUp = std::move(reaction); }
    void sendWillPopUp()
    {
        // The reaction may replace itself while it runs.
        const auto reaction = _willPopUp;
        if (reaction) reaction();
    }

protected:
    /// Called when the items or the selection have changed.
    virtual void menuDidChange() {}

private:
    [[nodiscard]] bool isItem(int index) const { return index >= 0 && index < numberOfItems(); }

    HostMenu _menu;
    int _selected = noItem;
    std::function<void()> _willPopUp;
};

/// The drawing, mouse and key handling of a custom view. The picker implements it; the desktop
/// calls it.
class HostViewContent {
public:
    virtual ~HostViewContent() = default;

    virtual void drawRect(HostCanvas& canvas) = 0;
    /// Also called for a click into an inactive window.
    virtual void mouseDown(const HostEvent&) {}
    virtual void mouseDragged(const HostEvent&) {}
    /// Called at the end of each press that `mouseDown` has not followed to its end by
    /// `nextEventMatchingMask`, even if the release happens elsewhere; not after a drag-out.
    virtual void mouseUp(const HostEvent&) {}
    virtual void mouseMoved(const HostEvent&) {}
    virtual void mouseEntered(const HostEvent&) {}
    virtual void mouseExited(const HostEvent&) {}
    /// Returns whether the content has used the event.
    virtual bool scrollWheel(const HostScrollEvent&) { return false; }

    /// Returns whether the view takes the keyboard focus. The same for the content's whole life;
    /// the functions below are called only if it is true.
    [[nodiscard]] virtual bool takesKeys() const { return false; }
    /// Returns whether keys with Ctrl are for the content, too. Others are shortcuts of the panel.
    /// The same for the content's whole life.
    [[nodiscard]] virtual bool takesControlKeys() const { return false; }
    virtual void keyFocusDidChange(bool) {}
    /// Returns whether the content has used the key.
    virtual bool keyDown(const HostKeyEvent&) { return false; }
    /// Returns the outline of the cell that the keys have reached, in the view's coordinates; empty
    /// if there is none. While the focus is shown, the desktop draws it on top of the content.
    [[nodiscard]] virtual HostBezierPath keyOutline() const { return {}; }
};

/// A view painted by a `HostViewContent`, which must outlive it. `mouseEntered` and `mouseExited`
/// are sent only for its tracking rectangle, `mouseMoved` while the pointer is inside the view and
/// the panel accepts mouse-moved events.
class HostCustomView : public HostView {
public:
    using HostView::HostView;

    /// Adds a tracking rectangle and returns its tag, which is never 0. `rect` is in the view's own
    /// coordinates. `assumeInside` says whether the pointer is inside it now, so that only later
    /// crossings are reported.
    virtual std::intptr_t addTrackingRect(HostRect rect, bool assumeInside) = 0;
    virtual void removeTrackingRect(std::intptr_t tag) = 0;

    using AccessibleDescription = std::function<std::u16string()>;
    /// Sets the function that returns the description of the view's content which assistive
    /// technology announces after the view's name. It is called on demand. When the description
    /// changes, redraw the view, so that the change is announced.
    void setAccessibleDescription(AccessibleDescription description)
    {
        _accessibleDescription = std::move(description);
    }
    [[nodiscard]] std::optional<std::u16string> accessibleDescription() const
    {
        return _accessibleDescription ? std::optional(_accessibleDescription()) : std::nullopt;
    }

private:
    AccessibleDescription _accessibleDescription;
};

}  // namespace vantorel
