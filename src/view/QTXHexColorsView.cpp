#include "view/QTXHexColorsView.h"

#include "view/ViewColors.h"

namespace vantorel {

void QTXHexColorsView::attachToView(HostCustomView* view)
{
    _view = view;
    if (_view != nullptr) _view->setGroundColor(hexColorsViewBackgroundColorS);
}

HostRect QTXHexColorsView::bounds() const
{
    return _view != nullptr ? _view->bounds() : HostRect{};
}

HostRect QTXHexColorsView::modeRect() const
{
    HostRect rect = insetRect(insetRect(bounds(), 1.0, 1.0), 2.0, 2.0);
    rect.height -= 3.0;
    return rect;
}

void QTXHexColorsView::setNeedsDisplay(bool flag)
{
    if (_view != nullptr) _view->setNeedsDisplay(flag);
}

void QTXHexColorsView::drawRect(HostCanvas& canvas)
{
    loadColorMatrixSize();
    __exactHexColorMatch = _hostHexColorPicker.exactHexColorMatch();

    __bPth.removeAllPoints();
    __bPth.appendBezierPathWithRect(insetRect(bounds(), 1.0, 1.0));
    canvas.fill(__bPth, hexColorsViewBackgroundColorS);
    canvas.stroke(__bPth, HostColor::blackColor());

    drawHecColorMatrixWithRect(modeRect(), canvas);
    if (_messageStr) drawMessage(canvas);
}

void QTXHexColorsView::drawHecColorMatrixWithRect(HostRect rect, HostCanvas& canvas)
{
    const PickViewMode mode = _hostHexColorPicker.hexSettings().pickViewMode();
    const bool wheel = mode != PickViewMode::slider && mode != PickViewMode::palette;
    const auto place = [&](HostButton* button, double xInWheel) {
        if (button == nullptr) return;
        const HostRect frame = button->frame();
        button->setFrameOrigin(wheel ? HostPoint{xInWheel, rect.maxY() - frame.height - 1.0}
                                     : HostPoint{rect.x - 100.0, frame.y});
        button->setParked(!wheel);
    };
    HostButton* decrease = _hostHexColorPicker.decCubeRingsButton();
    place(_hostHexColorPicker.incCubeRingsButton(), rect.x + 1.0);
    place(decrease, rect.maxX() - (decrease != nullptr ? decrease->frame().width : 0) - 2.0);

    if (wheel) {
        drawHexColorWheelWithRect(rect, canvas);
    } else if (mode == PickViewMode::palette) {
        drawHexPaletteWithRect(rect, canvas);
    } else {
        drawHexSlidersWithRect(canvas);
    }
}

void QTXHexColorsView::mouseDown(const HostEvent& event)
{
    clearMessage();
    _keyCell.reset();
    switch (_hostHexColorPicker.hexSettings().pickViewMode()) {
        case PickViewMode::slider:
            slidersMouseDownWithEvent(event);
            break;
        case PickViewMode::palette:
            paletteMouseDownWithEvent(event);
            break;
        default:
            wheelMouseDownWithEvent(event);
    }
}

}  // namespace vantorel
