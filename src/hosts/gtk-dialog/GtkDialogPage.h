#pragma once

#include "hosts/gtk-dialog/GtkDialogPanel.h"
#include "hosts/gtk-dialog/GtkPageHolder.h"

namespace vantorel {

/// The page in one colour dialog. It is a further part of the dialog, whose buttons, modality,
/// options, result and signals stay its own.
///
/// A chooser that shows its swatches adds one for each colour that it is given. So it is given a
/// colour when the user rests, and when the dialog is answered.
class GtkDialogPage final : private EmbeddingDialog {
public:
    /// Puts a page into a dialog that is about to be shown; only once into each. The dialog stays
    /// as it is if it is not a GtkColorChooserDialog, or the page cannot be created.
    static void putInto(GtkWidget* dialog, const LoadedPlugin& plugin, GtkHostDesktop& desktop);

    GtkDialogPage(const GtkDialogPage&) = delete;
    GtkDialogPage& operator=(const GtkDialogPage&) = delete;

private:
    GtkDialogPage(GtkDialog* dialog, GtkHostDesktop& desktop);
    ~GtkDialogPage() override;

    bool show(const LoadedPlugin& plugin);
    void colorChosen(const HostColor& color, bool isFinal) override;
    HostSize growHolder(HostSize growth) override { return _holder.grow(growth); }
    void pageDidFail() override;
    void dialogColorDidChange();
    void dialogIsAnswered(int response);
    void dialogIsDestroyed();
    void deleteWhenIdle();
    /// Gives the dialog the colour that it does not have yet.
    void passOn();
    static void followAnswers();
    [[nodiscard]] HostColor dialogColor() const;
    [[nodiscard]] GtkColorChooser* chooser() const;

    /// Null once it is destroyed.
    GtkDialog* _dialog;
    GtkPageHolder _holder;
    GtkDialogPanel _panel;
    GtkConnections _signals;
    GtkDeferral _rest;
    GtkDeferral _deletion;
    std::optional<HostColor> _kept;
};

}  // namespace vantorel
