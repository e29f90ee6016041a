#pragma once

#include "hosts/qt/QtColorPanel.h"
#include "panel/pages/PanelPages.h"
#include "panel/window/PanelColors.h"

namespace vantorel {

class PanelWindow;

/// The panel as seen by pickers: its colour, its size, and drags that start in it.
class PanelHost final : public QtColorPanel {
public:
    /// All must outlive the host.
    PanelHost(QtDesktop& desktop, PanelWindow& window, PanelColors& colors, PanelPages& pages);

    using QtColorPanel::pageDidAppear;

    /// As the page that is shown has got it.
    [[nodiscard]] std::optional<HostColor> color() const override;
    void setColor(const std::optional<HostColor>& color) override;
    void continuousChangeDidBegin() override { _colors.beginStep(); }
    void continuousChangeDidEnd() override { _colors.endStep(); }
    [[nodiscard]] HostSize size() const override;
    HostSize growPage(HostSize growth) override;
    void dragImage(const HostImage& image, const HostPasteboardItem& item, const HostEvent& event,
                   HostView& source) override;
    void report(const std::u16string& message) override;
    [[nodiscard]] std::optional<HostColorPair> colorPair() const override;

protected:
    bool takeText(const QString& text) override;
    [[nodiscard]] HostView* pageView() const override;

private:
    PanelWindow& _window;
    PanelColors& _colors;
    PanelPages& _pages;
};

}  // namespace vantorel
