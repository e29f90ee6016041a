#include "hosts/gtk-dialog/GtkDialogPanel.h"

#include "colortext/ColorInCode.h"

namespace vantorel {
namespace {

/// The chooser's own controls convert a colour to hue and value and back.
constexpr EmbeddingTraits traitsOfChooser{1e-4};

}  // namespace

GtkDialogPanel::GtkDialogPanel(EmbeddingDialog& dialog, GtkHostDesktop& desktop)
    : EmbeddedPanel(dialog, traitsOfChooser, desktop)
{
}

bool GtkDialogPanel::showPage(const LoadedPlugin& plugin, HostView& holder,
                              const HostColor& initialColor)
{
    // A page that is only looked at leaves no files in the user's folders.
    const HeldFiles::Hold hold(desktop().files());
    if (!EmbeddedPanel::showPage(plugin, holder, initialColor)) return false;
    pageDidAppear();
    return true;
}

bool GtkDialogPanel::takeText(const std::u16string& text)
{
    const Result<CSSColor> read = colorInText(text);
    if (read) setColor(read->color);
    return static_cast<bool>(read);
}

}  // namespace vantorel
