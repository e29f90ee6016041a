#pragma once

#include "embedding/EmbeddedPage.h"

#include <utility>

namespace vantorel {

/// The panel that a page sees in a dialog of another program. It has the dialog's colour, and the
/// room that the dialog gives to the page.
///
/// `ToolkitPanel` is derived from `HostColorPanel` and implements the rest: the desktop, the
/// pointer, events, the editor of text fields, and drags.
template <class ToolkitPanel>
class EmbeddedPanel : public ToolkitPanel {
public:
    /// The other arguments are those of `ToolkitPanel`.
    template <class... Arguments>
    EmbeddedPanel(EmbeddingDialog& dialog, EmbeddingTraits traits, Arguments&&... arguments)
        : ToolkitPanel(std::forward<Arguments>(arguments)...),
          _page(dialog, this->desktop(), traits)
    {
    }

    [[nodiscard]] EmbeddedPage& page() { return _page; }
    [[nodiscard]] const EmbeddedPage& page() const { return _page; }

    /// See `EmbeddedPage::show`.
    bool showPage(const LoadedPlugin& plugin, HostView& holder, const HostColor& initialColor)
    {
        return _page.show(plugin, *this, holder, initialColor);
    }

    [[nodiscard]] std::optional<HostColor> color() const final { return _page.color(); }
    void setColor(const std::optional<HostColor>& color) final { _page.setColor(color); }

    void continuousChangeDidBegin() final { _page.changeDidBegin(); }
    void continuousChangeDidEnd() final { _page.changeDidEnd(); }

    [[nodiscard]] HostSize size() const final { return _page.room(); }
    HostSize growPage(HostSize growth) final { return _page.grow(growth); }

    HostEvent nextEventMatchingMask(std::uint32_t mask, HostView& view) final
    {
        return _page.waitForEvent([&] { return ToolkitPanel::nextEventMatchingMask(mask, view); });
    }

    void dragImage(const HostImage& image, const HostPasteboardItem& item, const HostEvent& event,
                   HostView& source) final
    {
        _page.dragOut([&] { ToolkitPanel::dragImage(image, item, event, source); });
    }

private:
    EmbeddedPage _page;
};

}  // namespace vantorel
