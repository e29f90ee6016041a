#include "hosts/qt-dialog/DialogPanel.h"

#include "colortext/ColorInCode.h"
#include "hosts/common/ViewTree.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtTextField.h"

namespace vantorel {
namespace {

/// Qt's dialog stores bytes.
constexpr EmbeddingTraits traits{0.5 / 255};

}  // namespace

DialogPanel::DialogPanel(EmbeddingDialog& dialog, QtDesktop& desktop)
    : EmbeddedPanel(dialog, traits, desktop)
{
}

bool DialogPanel::showPage(const LoadedPlugin& plugin, HostView& holder,
                           const HostColor& initialColor)
{
    // A page that is only looked at leaves no files in the user's folders.
    const HeldFiles::Hold hold(desktop().files());
    if (!EmbeddedPanel::showPage(plugin, holder, initialColor)) return false;
    pageDidAppear();
    return true;
}

void DialogPanel::finishEditing()
{
    finishEditingBelow<QtTextField>(pageView());
}

bool DialogPanel::takeText(const QString& text)
{
    const Result<CSSColor> read = colorInText(u16From(text));
    if (read) setColor(read->color);
    return static_cast<bool>(read);
}

}  // namespace vantorel
