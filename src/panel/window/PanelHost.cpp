#include "panel/window/PanelHost.h"

#include "hosts/qt/TextScale.h"
#include "panel/widgets/ColorClipboard.h"
#include "panel/window/PanelWindow.h"

#include <QScreen>

namespace vantorel {

PanelHost::PanelHost(QtDesktop& desktop, PanelWindow& window, PanelColors& colors,
                     PanelPages& pages)
    : QtColorPanel(desktop), _window(window), _colors(colors), _pages(pages)
{
}

void PanelHost::setColor(const std::optional<HostColor>& color)
{
    if (color) _colors.setColor(*color);
}

HostRect PanelHost::frame() const
{
    const QRect place = _window.geometry();
    const QScreen* shownOn = _window.screen();
    const int screenBottom = shownOn != nullptr ? shownOn->geometry().bottom() + 1 : 0;
    const double scale = textScale();
    return {place.x() / scale, (screenBottom - place.y() - place.height()) / scale,
            place.width() / scale, place.height() / scale};
}

void PanelHost::setFrame(HostRect wanted, bool)
{
    const HostRect old = frame();
    const double scale = textScale();
    const QPoint moved(qRound((wanted.x - old.x) * scale),
                       qRound((old.maxY() - wanted.maxY()) * scale));
    if (!moved.isNull()) _window.move(_window.pos() + moved);
    _window.resizeAtOnce({qRound(wanted.width * scale), qRound(wanted.height * scale)});
}

bool PanelHost::takeText(const QString& text)
{
    const ColorOffer offer = colorFromText(text);
    if (!offer.color) return false;
    _colors.setColor(*offer.color);
    if (!offer.message.isEmpty()) _window.showMessage(offer.message);
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

}  // namespace vantorel
