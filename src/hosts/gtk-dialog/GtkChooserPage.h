#pragma once

#include "hosts/gtk-dialog/GtkDialogPage.h"

namespace vantorel {

/// The page in a GtkColorChooserDialog.
///
/// A chooser that shows its swatches adds one for each colour that it is given. So it is given a
/// colour when the user rests, and when the dialog is answered.
class GtkChooserPage final : public GtkDialogPage {
public:
    GtkChooserPage(GtkWidget* dialog, GtkHostDesktop& desktop);

    bool show(const LoadedPlugin& plugin);

private:
    [[nodiscard]] GdkRGBA dialogColor() const override;
    [[nodiscard]] bool hasOpacity() const override;
    bool place(GtkWidget* widget) override;
    void colorChosen(const HostColor& color, bool isFinal) override;
    void dialogIsAnswered(bool isAccepted) override;
    void dialogIsGone() override;
    void colorDidChange();
    /// Gives the dialog the colour that it does not have yet.
    void passOn();
    [[nodiscard]] GtkColorChooser* chooser() const;

    GtkDeferral _rest;
    std::optional<HostColor> _kept;
};

}  // namespace vantorel
