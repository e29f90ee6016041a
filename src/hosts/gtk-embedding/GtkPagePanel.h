#pragma once

#include "embedding/EmbeddedPanel.h"
#include "hosts/gtk/GtkHostColorPanel.h"

namespace vantorel {

/// The panel of a page in a dialog made with GTK.
class GtkPagePanel final : public EmbeddedPanel<GtkHostColorPanel> {
public:
    GtkPagePanel(EmbeddingDialog& dialog, EmbeddingTraits traits, GtkHostDesktop& desktop);
    ~GtkPagePanel() override { page().close(); }

    using GtkHostColorPanel::endPress;
    using GtkHostColorPanel::finishEditing;

    /// Calls `pageDidAppear` if the page can be shown.
    bool showPage(const LoadedPlugin& plugin, HostView& holder, const HostColor& initialColor);

protected:
    [[nodiscard]] HostView* pageView() const override { return page().view(); }
    bool takeText(const std::u16string& text) override;
};

}  // namespace vantorel
