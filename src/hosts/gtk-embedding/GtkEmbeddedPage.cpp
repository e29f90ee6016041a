#include "hosts/gtk-embedding/GtkEmbeddedPage.h"

#include "embedding/PageTranslations.h"
#include "hosts/common/PageSize.h"
#include "hosts/common/Translator.h"

#include <exception>
#include <limits>
#include <vector>

namespace vantorel {
namespace {

std::vector<GtkEmbeddedPage*>& shownPages()
{
    static std::vector<GtkEmbeddedPage*> pages;
    return pages;
}

bool isRefusal(int response)
{
    switch (response) {
        case GTK_RESPONSE_CANCEL:
        case GTK_RESPONSE_CLOSE:
        case GTK_RESPONSE_DELETE_EVENT:
        case GTK_RESPONSE_HELP:
        case GTK_RESPONSE_NO:
        case GTK_RESPONSE_REJECT:
            return true;
        default:
            return false;
    }
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
    static const bool programIsFollowed = [] {
        // Which page has failed is not known. There is seldom more than one.
        setGtkFailureReaction([] {
            for (GtkEmbeddedPage* failed : std::vector(shownPages()))
                failed->page().guarded([] { throw std::exception(); });
        });
        followAnswers();
        return true;
    }();
    static_cast<void>(programIsFollowed);
    return _panel.showPage(plugin, _holder, dialogColor);
}

/// A program reads the colour in its own reaction to the answer, which was connected before ours.
/// Only an emission hook comes earlier.
void GtkEmbeddedPage::followAnswers()
{
    // Signals are known once the class is.
    g_type_class_ref(GTK_TYPE_DIALOG);
    g_signal_add_emission_hook(
        g_signal_lookup("response", GTK_TYPE_DIALOG), 0,
        [](GSignalInvocationHint*, guint, const GValue* arguments, gpointer) {
            callFromC(answer, GTK_WIDGET(g_value_get_object(arguments)),
                      !isRefusal(g_value_get_int(arguments + 1)));
            return static_cast<gboolean>(TRUE);
        },
        nullptr, nullptr);
}

void GtkEmbeddedPage::answer(GtkWidget* source, bool isAccepted)
{
    GtkWidget* window = gtk_widget_get_toplevel(source);
    for (GtkEmbeddedPage* asked : std::vector(shownPages())) {
        GtkWidget* held = asked->_holder.widget();
        if (held == nullptr || gtk_widget_get_toplevel(held) != window) continue;
        if (gtk_widget_is_ancestor(source, held)) continue;
        // A program may end with its dialog, which it could not while it is in the page's own loop.
        asked->page().guarded([asked] { asked->_panel.endPress(); });
        if (isAccepted) asked->page().guarded([asked] { asked->_panel.finishEditing(); });
        asked->dialogIsAnswered(isAccepted);
    }
}

bool GtkEmbeddedPage::makeRoom(HostSize preferred, HostSize least)
{
    ask(preferred, least);
    return true;
}

void GtkEmbeddedPage::ask(HostSize wanted, HostSize needed)
{
    const HostRect before = _holder.frame();
    _holder.setLeastSize(wanted);
    const HostSize given = pageSizeWithin(spareRoom(), wanted, needed);
    if (given == wanted) return;
    _holder.setFrame(before);
    _holder.setLeastSize(given);
}

HostSize GtkEmbeddedPage::growHolder(HostSize growth)
{
    const HostSize before = _holder.frame().size();
    ask({before.width + growth.width, before.height + growth.height}, before);
    page().resize();
    const HostSize after = _holder.frame().size();
    return {after.width - before.width, after.height - before.height};
}

HostSize GtkEmbeddedPage::spareRoom() const
{
    constexpr double any = std::numeric_limits<double>::infinity();
    return {any, any};
}

void GtkEmbeddedPage::endWith(GtkWidget* widget)
{
    _signals.connect<void>(widget, "destroy", [this] { dialogIsDestroyed(); });
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
        setTranslator(pageTranslation);
        return new GtkHostDesktop;
    }();
    return *desktop;
}

}  // namespace vantorel
