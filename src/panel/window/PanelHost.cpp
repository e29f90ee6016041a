#include "panel/window/PanelHost.h"

#include "csscolor/GamutMapping.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/ColorClipboard.h"
#include "panel/window/PanelWindow.h"

#include <cmath>

namespace vantorel {
namespace {

HostSize pointsOf(QSize pixels)
{
    return {pixels.width() / textScale(), pixels.height() / textScale()};
}

}  // namespace

PanelHost::PanelHost(QtDesktop& desktop, PanelWindow& window, PanelColors& colors,
                     PanelPages& pages)
    : QtColorPanel(desktop), _window(window), _colors(colors), _pages(pages)
{
}

std::optional<HostColor> PanelHost::color() const
{
    return _pages.takesWideGamut() ? _colors.color() : mappedIntoSRGB(_colors.color());
}

void PanelHost::setColor(const std::optional<HostColor>& color)
{
    if (color) _colors.setColor(*color);
}

HostSize PanelHost::size() const
{
    return pointsOf(_window.size());
}

HostSize PanelHost::growPage(HostSize growth)
{
    const double scale = textScale();
    const QSize before = _pages.place().size();
    // Rounded up, because a page that asks needs all of it.
    _window.growPage({static_cast<int>(std::ceil(growth.width * scale)),
                      static_cast<int>(std::ceil(growth.height * scale))});
    return pointsOf(_pages.place().size() - before);
}

bool PanelHost::takeText(const QString& text)
{
    const ColorOffer offer = colorFromText(text);
    if (!offer.color) return false;
    _colors.setColor(*offer.color);
    if (!offer.message.isEmpty() && !_pages.takesWideGamut()) _window.showMessage(offer.message);
    return true;
}

HostView* PanelHost::pageView() const
{
    const PanelPage* page = _pages.current();
    return page != nullptr ? page->view() : nullptr;
}

void PanelHost::dragImage(const HostImage& image, const HostPasteboardItem& item,
                          const HostEvent& event, HostView& source)
{
    // The panel is black while a text is dragged. That is not a step to undo.
    if (std::holds_alternative<std::string>(item)) _colors.forgetLastChange();
    QtColorPanel::dragImage(image, item, event, source);
}

void PanelHost::report(const std::u16string& message)
{
    // It is in the user's language already.
    _window.showMessage({Phrase("%1", {message})});
}

std::optional<HostColorPair> PanelHost::colorPair() const
{
    return HostColorPair{_colors.foreground(), _colors.background(),
                         _colors.edited() == EditedColor::background};
}

}  // namespace vantorel
