#pragma once

#include "hosts/gtk-embedding/GtkEmbeddedPage.h"

namespace vantorel {

/// The page beside a dialog's own controls for colours. It is a further part of the dialog, whose
/// buttons, modality, options, result and signals stay its own.
class GtkDialogPage : protected GtkEmbeddedPage {
public:
    /// Puts a page into a widget that has been shown, if that is a GtkColorChooserDialog, a window
    /// with a GtkColorSelection, or a GtkColorSelection in a window that is visible; only once into
    /// each. The window stays as it is if the page cannot be created.
    static void putInto(GtkWidget* shown, const LoadedPlugin& plugin, GtkHostDesktop& desktop);

protected:
    /// `controls` has the colour.
    GtkDialogPage(GtkWidget* controls, GtkHostDesktop& desktop);

    /// Shows the page. Returns false if that is not possible; delete this object then.
    bool show(const LoadedPlugin& plugin);
    /// The dialog's controls; null once they are destroyed.
    [[nodiscard]] GtkWidget* controls() const { return _controls; }

    [[nodiscard]] virtual GdkRGBA dialogColor() const = 0;
    /// Whether the user can choose the opacity in the dialog.
    [[nodiscard]] virtual bool hasOpacity() const = 0;
    /// Puts the widget into the dialog. Returns false if the dialog is not laid out as expected.
    virtual bool place(GtkWidget* widget) = 0;
    void dialogColorDidChange();
    void followOpacity() { page().setTakesOpacity(hasOpacity()); }

    void dialogIsAnswered(bool isAccepted) override;
    void dialogIsGone() override { _controls = nullptr; }

    /// The colour as GTK has it.
    [[nodiscard]] static GdkRGBA rgbaOf(const HostColor& color);

private:
    bool makeRoom(HostSize preferred, HostSize least) override;
    [[nodiscard]] HostSize spareRoom() const override;

    GtkWidget* _controls;
};

}  // namespace vantorel
