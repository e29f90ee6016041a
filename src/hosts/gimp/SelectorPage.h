#pragma once

#include "hosts/gimp/SelectorColor.h"
#include "hosts/gtk-embedding/GtkEmbeddedPage.h"

namespace vantorel {

/// The page in one of GIMP's colour selectors. GIMP has a selector for each of its colour dialogs,
/// shows one selector of a dialog at a time, and keeps dialogs that the user has closed.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor)
class SelectorPage final : private GtkEmbeddedPage {
public:
    /// Fills a new selector with a page. The selector stays empty if the page cannot be created.
    static void putInto(GimpColorSelector* selector, const LoadedPlugin& plugin,
                        GtkHostDesktop& desktop);

private:
    SelectorPage(GimpColorSelector* selector, GtkHostDesktop& desktop);
    ~SelectorPage() override;

    bool show(const LoadedPlugin& plugin);
    bool makeRoom(HostSize preferred, HostSize least) override;
    HostSize growHolder(HostSize growth) override;
    void colorChosen(const HostColor& color, bool isFinal) override;
    void dialogIsAnswered(bool isAccepted) override;
    void dialogIsGone() override;
    void pageDidFail() override;
    void followWindow();
    void visibilityDidChange();
    void followOpacity();
    [[nodiscard]] bool isInDialog() const;
    void addIcon();

    /// Null once it is destroyed.
    GimpColorSelector* _selector;
    GtkConnections _windowSignals;
    HostSize _preferredSize;
    HostSize _leastSize;
};

}  // namespace vantorel
