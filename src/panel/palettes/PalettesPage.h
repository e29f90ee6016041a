#pragma once

#include "panel/pages/PanelPages.h"
#include "panel/palettes/PalettesWidget.h"

namespace vantorel {

/// The page on which the user edits the colour lists that all pages share.
class PalettesPage final : public PanelPage {
    Q_DECLARE_TR_FUNCTIONS(PalettesPage)

public:
    /// `files` and `store` must outlive the page. `choice` gets the colour that the user takes from
    /// a list.
    PalettesPage(HostFiles& files, PaletteFileStore& store, PalettesWidget::Choice choice);
    ~PalettesPage() override;

    [[nodiscard]] QString key() const override { return QStringLiteral("palettes"); }
    [[nodiscard]] QString name() const override;
    [[nodiscard]] QString toolTip() const override;
    [[nodiscard]] QIcon icon() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void show(HostView& holder) override;
    void hide() override;
    void resize(HostSize size) override;
    void setColor(const HostColor& color) override;

private:
    HostFiles& _files;
    PaletteFileStore& _store;
    PalettesWidget::Choice _choice;
    QPointer<PalettesWidget> _widget;
};

}  // namespace vantorel
