#include "text/Unicode.h"
#include "view/DragImages.h"
#include "view/QTXHexColorsView.h"

namespace vantorel {

HostImage QTXHexColorsView::dragImageWithString(const std::u16string& text) const
{
    return stringDragImage(panel().desktop(), text);
}

HostImage QTXHexColorsView::dragImageWithColor(const HostColor& color) const
{
    const auto label = _hostHexColorPicker.dragStringWithDragType(CodeDragType::hexCode);
    return colorDragImage(panel().desktop(), color, label.value_or(u""));
}

void QTXHexColorsView::mouseDragged(const HostEvent& event)
{
    if (_view == nullptr) return;
    const auto text = _hostHexColorPicker.dragString();
    const auto panelColor = panel().color();
    if (text && !text->empty()) {
        // Set the panel to black during the drag, so that a colour well under the pointer is not
        // mistaken for a target of a colour.
        panel().setColor(HostColor::blackColor());
        panel().dragImage(dragImageWithString(*text), utf8FromUtf16(*text), event, *_view);
        panel().setColor(panelColor);
    } else if (panelColor) {
        panel().dragImage(dragImageWithColor(*panelColor), *panelColor, event, *_view);
    }
}

}  // namespace vantorel
