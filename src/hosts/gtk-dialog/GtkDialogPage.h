#pragma once

#include "hosts/gtk-embedding/GtkEmbeddedPage.h"

namespace vantorel {

/// The page in one colour dialog. It is a further part of the dialog, whose buttons, modality,
/// options, result and signals stay its own.
///
/// A chooser that shows its swatches adds one for each colour that it is given. So it is given a
/// colour when the user rests, and when the dialog is answered.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor)
class GtkDialogPage final : private GtkEmbeddedPage {
public:
    /// Puts a page into a dialog that is about to be shown; only once into each. The dialog stays
    /// as it is if it is not a GtkColorChooserDialog, or the page cannot be created.
    static void putInto(GtkWidget* dialog, const LoadedPlugin& plugin, GtkHostDesktop& desktop);

private:
    GtkDialogPage(GtkDialog* dialog, GtkHostDesktop& desktop);
    ~GtkDialogPage() override;

    bool show(const LoadedPlugin& plugin);
    bool makeRoom(HostSize preferred, HostSize least) override;
    [[nodiscard]] HostSize spareRoom() const override;
    void colorChosen(const HostColor& color, bool isFinal) override;
    void dialogIsAnswered(bool isAccepted) override;
    void dialogIsGone() override;
    void dialogColorDidChange();
    /// Gives the dialog the colour that it does not have yet.
    void passOn();
    [[nodiscard]] HostColor dialogColor() const;
    [[nodiscard]] GtkColorChooser* chooser() const;

    /// Null once it is destroyed.
    GtkDialog* _dialog;
    GtkDeferral _rest;
    std::optional<HostColor> _kept;
};

}  // namespace vantorel
