#pragma once

#include "hosts/gtk-embedding/GtkPageHolder.h"
#include "hosts/gtk-embedding/GtkPagePanel.h"

namespace vantorel {

/// The page in a dialog made with GTK: its panel and its holder, and their end. The derived class
/// knows the dialog, and passes colours on. Create objects of it with `new`; they delete themselves
/// when the dialog is destroyed, or the page has failed.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor)
class GtkEmbeddedPage : protected EmbeddingDialog {
public:
    GtkEmbeddedPage(const GtkEmbeddedPage&) = delete;
    GtkEmbeddedPage& operator=(const GtkEmbeddedPage&) = delete;

protected:
    GtkEmbeddedPage(EmbeddingTraits traits, GtkHostDesktop& desktop);
    ~GtkEmbeddedPage() override;

    /// Shows the page in the holder, which the derived class puts into the dialog. Returns false if
    /// the page cannot be created; delete this object then.
    bool showPage(const LoadedPlugin& plugin, const HostColor& dialogColor);
    /// Ends the page when this widget of the dialog is destroyed.
    void endWith(GtkWidget* widget);

    /// The user presses a button of the dialog. Called before any reaction of the program, which
    /// may read the colour or end.
    virtual void dialogIsAnswered(bool isAccepted) = 0;
    /// Has the pages in the window of a widget answer as if a button of a dialog were pressed.
    /// Pages that the widget is a part of do not.
    static void answer(GtkWidget* source, bool isAccepted);
    /// The dialog is being destroyed; nothing of it may be used any more.
    virtual void dialogIsGone() = 0;
    bool makeRoom(HostSize preferred, HostSize least) override;
    HostSize growHolder(HostSize growth) override;
    /// The room on the screen that the dialog has not asked for, in points; negative if it has
    /// asked for more than the screen has. Without a limit unless overridden.
    [[nodiscard]] virtual HostSize spareRoom() const;
    void pageDidFail() override;

    [[nodiscard]] EmbeddedPage& page() { return _panel.page(); }
    [[nodiscard]] GtkPagePanel& panel() { return _panel; }
    [[nodiscard]] GtkPageHolder& holder() { return _holder; }
    [[nodiscard]] const GtkPageHolder& holder() const { return _holder; }
    /// Ended when the dialog is destroyed.
    [[nodiscard]] GtkConnections& dialogSignals() { return _signals; }

private:
    /// Has the dialog give the holder a size, or less if the screen has no more room.
    void ask(HostSize wanted, HostSize needed);
    void dialogIsDestroyed();
    void deleteWhenIdle();
    static void followAnswers();

    GtkPageHolder _holder;
    GtkPagePanel _panel;
    GtkConnections _signals;
    GtkDeferral _deletion;
};

/// The desktop of all pages in this program. GTK must have been initialised.
[[nodiscard]] GtkHostDesktop& desktopOfProgram();

}  // namespace vantorel
