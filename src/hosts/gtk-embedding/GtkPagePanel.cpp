#include "hosts/gtk-embedding/GtkPagePanel.h"

#include "colortext/ColorInCode.h"

namespace vantorel {

GtkPagePanel::GtkPagePanel(EmbeddingDialog& dialog, EmbeddingTraits traits, GtkHostDesktop& desktop)
    : EmbeddedPanel(dialog, traits, desktop)
{
}

bool GtkPagePanel::showPage(const LoadedPlugin& plugin, HostView& holder,
                            const HostColor& initialColor)
{
    // A page that is only looked at leaves no files in the user's folders.
    const HeldFiles::Hold hold(desktop().files());
    if (!EmbeddedPanel::showPage(plugin, holder, initialColor)) return false;
    pageDidAppear();
    return true;
}

bool GtkPagePanel::takeText(const std::u16string& text)
{
    const Result<CSSColor> read = colorInText(text);
    if (read) setColor(read->color);
    return static_cast<bool>(read);
}

}  // namespace vantorel
