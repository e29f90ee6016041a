#pragma once

#include "embedding/PageColor.h"
#include "host/HostColorPicker.h"
#include "plugins/PluginLoader.h"

#include <memory>

namespace vantorel {

/// What an embedded page asks of the dialog around it. Exceptions end in the page (see
/// `EmbeddedPage`).
class EmbeddingDialog {
public:
    virtual ~EmbeddingDialog() = default;

    /// The user has chosen a colour on the page. `isFinal` is false for the steps of a mouse drag;
    /// the colour at its end follows with true, even if it is that of the last step. Dialogs that
    /// keep an undo history or a list of recent colours add only final colours to them.
    ///
    /// The dialog may pass on another colour than this one by `EmbeddedPage::dialogColorDidChange`
    /// before it returns, and may be destroyed meanwhile.
    virtual void colorChosen(const HostColor& color, bool isFinal) = 0;
    /// The page is about to be shown. The dialog gives the holder the preferred size, or less if
    /// the screen has no more room, but at least the other, below which the page loses controls.
    /// Returns false if the dialog has no place for a page.
    virtual bool makeRoom(HostSize preferred, HostSize least)
    {
        static_cast<void>(preferred);
        static_cast<void>(least);
        return true;
    }
    /// The page needs more room. A dialog that can grow gives the holder a larger frame, calls
    /// `EmbeddedPage::resize`, and returns how much the holder has grown.
    virtual HostSize growHolder(HostSize growth)
    {
        static_cast<void>(growth);
        return {};
    }
    /// The page has failed, and its view has been taken out of the dialog. Called from the event
    /// loop.
    virtual void pageDidFail() = 0;
};

/// Properties of a dialog that never change.
struct EmbeddingTraits {
    /// The largest change of a channel when the dialog stores a colour: 0.5 / 255 if it stores
    /// bytes.
    double rounding = 0;
};

/// A page in a dialog that another program made: passes colours between the two, and keeps the
/// program safe from failures of the page. `EmbeddedPanel` is the panel that the page sees.
///
/// Every function for the dialog's side catches what the page throws. The page is then taken out
/// of the dialog, which learns of it later, and is never called again. A toolkit must run its event
/// handlers by `guarded` as well.
///
/// Colours go to the dialog after the event that has caused them. The end of a drag can then be
/// distinguished from its steps, and the dialog never gets a colour that the page sets only for a
/// moment.
class EmbeddedPage {
public:
    /// `dialog` and `desktop` must outlive the page; but see `forgetDialog`.
    EmbeddedPage(EmbeddingDialog& dialog, HostDesktop& desktop, EmbeddingTraits traits);
    EmbeddedPage(const EmbeddedPage&) = delete;
    EmbeddedPage& operator=(const EmbeddedPage&) = delete;
    ~EmbeddedPage();

    // The dialog's side.

    /// Creates the page of a plug-in for its panel, and fills `holder` with it after the dialog has
    /// made room. Call it once. The plug-in and the holder must outlive the page. Returns false,
    /// with an empty holder, if there is no page to show; `pageDidFail` is not called then.
    bool show(const LoadedPlugin& plugin, HostColorPanel& panel, HostView& holder,
              const HostColor& color);
    /// The holder has a new size.
    void resize();
    /// Call these when the dialog is shown again, and when it is hidden. Until the first call the
    /// page counts as shown.
    void dialogDidAppear();
    void dialogDidDisappear();

    /// Call this whenever the dialog has another colour, for whatever reason. Has no effect if it
    /// is the page's colour after the dialog has rounded it, so a page keeps the colour that was
    /// chosen exactly.
    void dialogColorDidChange(const HostColor& color);
    /// If false, as at first, the page's colours get the opacity of the dialog's colour.
    void setTakesOpacity(bool flag) { _color.setTakesOpacity(flag); }

    /// Passes on a colour that the dialog does not have yet. Call this before the dialog uses
    /// its colour: when the user presses OK.
    void sendPendingColor();
    /// The dialog is about to be destroyed, and must not be called any more.
    void forgetDialog();
    /// Destroys the picker. Call this before the panel is destroyed, of which a picker expects
    /// everything to its end: at the latest in the destructor of the class that is derived from
    /// `EmbeddedPanel`. The page must not be busy.
    void close();
    /// Whether code of the page is being run, as during a mouse drag. The page and its panel must
    /// then not be destroyed yet.
    [[nodiscard]] bool isBusy() const { return _calls > 0; }

    /// Runs `code`, which may call the page. Returns false if it throws; the page has then failed.
    /// Has no effect, and returns false, if the page has failed before.
    template <class Code>
    bool guarded(const Code& code) noexcept
    {
        if (_hasFailed) return false;
        const Call call(*this);
        try {
            code();
            return true;
        } catch (...) {
            fail();
            return false;
        }
    }

    [[nodiscard]] HostColorPicker* picker() const { return _picker.get(); }
    /// The view of the page; null if none is shown.
    [[nodiscard]] HostView* view() const { return _view; }

    // The panel's side.

    [[nodiscard]] const HostColor& color() const { return _color.color(); }
    void setColor(const std::optional<HostColor>& color);
    /// The page changes its colour in steps between these two.
    void changeDidBegin() { _color.stepsBegin(); }
    void changeDidEnd();
    /// The size of the holder.
    [[nodiscard]] HostSize room() const;
    HostSize grow(HostSize growth);
    /// Runs `next`, with which the page waits for an event of a mouse drag.
    template <class Next>
    HostEvent waitForEvent(const Next& next)
    {
        const Call call(*this);
        _color.stepsBegin();
        send(false);
        const HostEvent event = next();
        if (event.type == HostEventType::leftMouseUp) changeDidEnd();
        return event;
    }
    /// Runs `drag`, which drags a colour or text out of the page.
    template <class Drag>
    void dragOut(const Drag& drag)
    {
        const Call call(*this);
        // What the page has set now, it shows only during the drag: it is black while a text is
        // dragged.
        _color.keepFromDialog();
        drag();
    }

private:
    class Call {
    public:
        explicit Call(EmbeddedPage& page) : _page(page) { ++_page._calls; }
        Call(const Call&) = delete;
        Call& operator=(const Call&) = delete;
        ~Call() { --_page._calls; }

    private:
        EmbeddedPage& _page;
    };

    void sendLater();
    void send(bool isFinal);
    void fail() noexcept;

    EmbeddingDialog* _dialog;
    HostDesktop& _desktop;
    LoadedPlugin::Picker _picker;
    HostView* _holder = nullptr;
    HostView* _view = nullptr;
    PageColor _color;
    bool _isSending = false;
    bool _hasFailed = false;
    int _calls = 0;
    std::unique_ptr<HostTimer> _sendTimer;
    std::unique_ptr<HostTimer> _failureTimer;
    /// Expires when the page is destroyed.
    std::shared_ptr<const bool> _life = std::make_shared<bool>(true);
};

}  // namespace vantorel
