#pragma once

#include "host/HostColorPanel.h"
#include "hosts/qt/QtDesktop.h"

#include <QObject>

#include <memory>

namespace vantorel {

/// The base class of colour panels made with Qt. The derived class has the colour and the position.
class QtColorPanel : public HostColorPanel {
public:
    /// `desktop` must outlive the panel.
    explicit QtColorPanel(QtDesktop& desktop) : _desktop(desktop) {}

    QtDesktop& desktop() override { return _desktop; }
    [[nodiscard]] bool acceptsMouseMovedEvents() const override { return _acceptsMouseMoved; }
    void setAcceptsMouseMovedEvents(bool flag) override;
    [[nodiscard]] HostPoint mouseLocation(const HostView& view) const override;
    void makeFirstResponder(HostView& view) override;
    HostFieldEditor* fieldEditor(HostTextField& field) override;
    HostEvent nextEventMatchingMask(std::uint32_t mask, HostView& view) override;
    /// A colour goes as `application/x-color`, a text as UTF-8 `text/plain`.
    void dragImage(const HostImage& image, const HostPasteboardItem& item, const HostEvent& event,
                   HostView& source) override;
    void copyText(const std::u16string& text) override;

protected:
    /// The view that shows the current page. Mouse moves are switched on and off for its subviews.
    [[nodiscard]] virtual HostView* pageView() const = 0;
    /// Call this after showing a page: Escape in its text fields then restores the panel's colour,
    /// and texts that are not meant for a field are offered to `takeText`.
    void pageDidAppear();
    /// Makes the colour that a text names the panel's colour. Returns false if it names none.
    virtual bool takeText(const QString& text) = 0;

private:
    QtDesktop& _desktop;
    bool _acceptsMouseMoved = false;
    /// The context of the connections to the shown page.
    std::unique_ptr<QObject> _pageConnections;
};

}  // namespace vantorel
