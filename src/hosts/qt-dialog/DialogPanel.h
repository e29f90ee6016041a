#pragma once

#include "embedding/EmbeddedPanel.h"
#include "hosts/qt/QtColorPanel.h"

namespace vantorel {

/// The panel of a page in a colour dialog made with Qt.
class DialogPanel final : public EmbeddedPanel<QtColorPanel> {
public:
    DialogPanel(EmbeddingDialog& dialog, QtDesktop& desktop);
    ~DialogPanel() override { page().close(); }

    /// Calls `pageDidAppear` if the page can be shown.
    bool showPage(const LoadedPlugin& plugin, HostView& holder, const HostColor& initialColor);
    /// Enters text that the user has typed into the page's fields but not yet entered.
    void finishEditing();

protected:
    [[nodiscard]] HostView* pageView() const override { return page().view(); }
    bool takeText(const QString& text) override;
};

}  // namespace vantorel
