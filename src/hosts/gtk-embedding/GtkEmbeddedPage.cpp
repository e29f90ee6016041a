#include "hosts/gtk-embedding/GtkEmbeddedPage.h"

#include "embedding/PageTranslations.h"
#include "hosts/gtk/GtkTranslations.h"

#include <algorithm>
#include <exception>
#include <vector>

namespace vantorel {
namespace {

/// All rows of the settings face fit into this page. In points.
constexpr HostSize comfortableSize{260, 300};

std::vector<GtkEmbeddedPage*>& shownPages()
{
    static std::vector<GtkEmbeddedPage*> pages;
    return pages;
}

}  // namespace

GtkEmbeddedPage::GtkEmbeddedPage(EmbeddingTraits traits, GtkHostDesktop& desktop)
    : _holder([this] { _panel.page().resize(); }), _panel(*this, traits, desktop)
{
    shownPages().push_back(this);
}

GtkEmbeddedPage::~GtkEmbeddedPage()
{
    std::erase(shownPages(), this);
}

bool GtkEmbeddedPage::showPage(const LoadedPlugin& plugin, const HostColor& dialogColor)
{
    static const bool failuresAreFollowed = [] {
        // Which page has failed is not known. There is seldom more than one.
        setGtkFailureReaction([] {
            for (GtkEmbeddedPage* failed : std::vector(shownPages()))
                failed->page().guarded([] { throw std::exception(); });
        });
        return true;
    }();
    static_cast<void>(failuresAreFollowed);
    _holder.setLeastSize(comfortableSize);
    return _panel.showPage(plugin, _holder, dialogColor);
}

void GtkEmbeddedPage::endWith(GtkWidget* widget)
{
    _signals.connect<void>(widget, "destroy", [this] { dialogIsDestroyed(); });
}

bool GtkEmbeddedPage::isShown(const GtkEmbeddedPage* page)
{
    return std::ranges::find(shownPages(), page) != shownPages().end();
}

void GtkEmbeddedPage::pageDidFail()
{
    _holder.takeOut();
    deleteWhenIdle();
}

void GtkEmbeddedPage::dialogIsDestroyed()
{
    _signals.clear();
    dialogIsGone();
    page().forgetDialog();
    // The page may be in the middle of a drag. It keeps its widgets until it has noticed the end.
    _holder.takeOut();
    deleteWhenIdle();
}

void GtkEmbeddedPage::deleteWhenIdle()
{
    _deletion.callAfter(0, [this] {
        if (page().isBusy()) {
            deleteWhenIdle();
        } else {
            delete this;
        }
    });
}

GtkHostDesktop& desktopOfProgram()
{
    // Never destroyed: a dialog may outlive the static objects of a program that ends.
    static auto* const desktop = [] {
        setGtkTranslator(pageTranslation);
        return new GtkHostDesktop;
    }();
    return *desktop;
}

}  // namespace vantorel
