#pragma once

#include "hosts/gtk-dialog/GtkDialogPage.h"

namespace vantorel {

/// The page beside a GtkColorSelection, the older widget for colours, in any window. The selection
/// gets every step of a drag; its palette and its previous colour stay as they are.
class GtkSelectionPage final : public GtkDialogPage {
public:
    GtkSelectionPage(GtkWidget* selection, GtkHostDesktop& desktop);

    bool show(const LoadedPlugin& plugin);

private:
    [[nodiscard]] GdkRGBA dialogColor() const override;
    [[nodiscard]] bool hasOpacity() const override;
    bool place(GtkWidget* widget) override;
    void colorChosen(const HostColor& color, bool isFinal) override;
    static void followButtons();
    [[nodiscard]] GtkColorSelection* selection() const;
};

}  // namespace vantorel
