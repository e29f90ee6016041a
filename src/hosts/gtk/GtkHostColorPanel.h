#pragma once

#include "host/HostColorPanel.h"
#include "hosts/gtk/GtkHostDesktop.h"

namespace vantorel {

/// The base class of colour panels made with GTK. The derived class has the colour and the place.
class GtkHostColorPanel : public HostColorPanel {
public:
    /// `desktop` must outlive the panel.
    explicit GtkHostColorPanel(GtkHostDesktop& desktop) : _desktop(desktop) {}

    GtkHostDesktop& desktop() override { return _desktop; }
    [[nodiscard]] bool acceptsMouseMovedEvents() const override { return _acceptsMouseMoved; }
    void setAcceptsMouseMovedEvents(bool flag) override;
    [[nodiscard]] HostPoint mouseLocation(const HostView& view) const override;
    void makeFirstResponder(HostView& view) override;
    HostFieldEditor* fieldEditor(HostTextField& field) override;
    HostEvent nextEventMatchingMask(std::uint32_t mask, HostView& view) override;
    /// A colour goes as `application/x-color`, a text as UTF-8.
    void dragImage(const HostImage& image, const HostPasteboardItem& item, const HostEvent& event,
                   HostView& source) override;
    void copyText(const std::u16string& text) override;

protected:
    /// The view that shows the current page. Mouse moves are switched on and off for its subviews.
    [[nodiscard]] virtual HostView* pageView() const = 0;
    /// Call this after showing a page: Escape in its text fields then restores the panel's colour,
    /// and texts that are not meant for a field are offered to `takeText`.
    void pageDidAppear();
    /// Enters what is typed in the page's fields, as Return does.
    void finishEditing();
    /// Ends a mouse drag on the page as if the button were released.
    void endPress();
    /// Makes the colour that a text names the panel's colour. Returns false if it names none.
    virtual bool takeText(const std::u16string& text) = 0;

private:
    GtkHostDesktop& _desktop;
    bool _acceptsMouseMoved = false;
};

}  // namespace vantorel
