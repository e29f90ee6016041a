#pragma once

#include "host/HostColorPanel.h"
#include "hosts/qt/QtDesktop.h"

#include <QObject>

#include <memory>

namespace vantorel {

/// What every colour panel made with Qt has in common; colour and place are the window's.
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

protected:
    /// The view that shows the current page; moves of the mouse are switched on and off below it.
    [[nodiscard]] virtual HostView* pageView() const = 0;
    /// To be called when a page has come on show: lets Escape in its text fields show the panel's
    /// colour again.
    void pageDidAppear();

private:
    QtDesktop& _desktop;
    bool _acceptsMouseMoved = false;
    /// The context of what is connected to the page on show.
    std::unique_ptr<QObject> _pageConnections;
};

}  // namespace vantorel
