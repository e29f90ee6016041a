#include "view/QTXHexColorsView.h"

namespace vantorel {

void QTXHexColorsView::startTracking()
{
    if (_view == nullptr || __trackingRectTag != 0) return;
    const HostPoint pointer = panel().mouseLocation(*_view);
    const bool inside = bounds().contains(pointer);
    __trackingRectTag = _view->addTrackingRect(bounds(), inside);
    __holdAcceptsMouseMovedEvents = panel().acceptsMouseMovedEvents();
    if (inside) mouseEntered({HostEventType::mouseEntered, pointer});
}

void QTXHexColorsView::stopTracking()
{
    if (_view == nullptr || __trackingRectTag == 0) return;
    panel().setAcceptsMouseMovedEvents(__holdAcceptsMouseMovedEvents);
    _view->removeTrackingRect(__trackingRectTag);
    __trackingRectTag = 0;
    _hostHexColorPicker.hideCursorReadout();
}

void QTXHexColorsView::mouseEntered(const HostEvent&)
{
    if (_view == nullptr) return;
    panel().setAcceptsMouseMovedEvents(true);
    panel().makeFirstResponder(*_view);
    _hostHexColorPicker.showCursorReadout();
    _view->setToolTip(std::nullopt);
}

void QTXHexColorsView::mouseExited(const HostEvent&)
{
    if (_view == nullptr) return;
    panel().setAcceptsMouseMovedEvents(__holdAcceptsMouseMovedEvents);
    _hostHexColorPicker.hideCursorReadout();
    _view->setToolTip(u"Click on color");
}

void QTXHexColorsView::mouseMoved(const HostEvent& event)
{
    if (!bounds().contains(event.location)) return;
    const PickViewMode mode = _hostHexColorPicker.hexSettings().pickViewMode();
    if (mode == PickViewMode::slider) {
        const auto cell = getComponent(event.location);
        if (cell) loadWorkColorSpecWithCell(*cell, 0);
        _hostHexColorPicker.postCursorReadout(cell ? &__workColorSpec : nullptr);
        return;
    }
    const auto color = mode == PickViewMode::palette
                           ? getPaletteColorWithPoint(event.location)
                           : getWheelColorWithPoint(event.location, modeRect());
    if (color) {
        __workColorSpec.setColorHexColorSpec(color);
        __workColorSpec.clearRemainders();
    }
    _hostHexColorPicker.postCursorReadout(color ? &__workColorSpec : nullptr);
}

}  // namespace vantorel
