#include "color/ColorMeasures.h"
#include "view/QTXHexColorsView.h"
#include "view/ViewColors.h"

namespace vantorel {
namespace {

constexpr int componentCount = 3;
constexpr int digitValueCount = 16;
/// How far, in points, the pointer must move from the press before a drag-out begins.
constexpr double dragOutDistance = 4.0;

}  // namespace

void QTXHexColorsView::loadColorMatrixSize()
{
    __colorMatrixRectSize = sliderCellSize(colorMatrixRect());
}

HostRect QTXHexColorsView::colorMatrixRectWithComponent(int component, int digit, int value) const
{
    return sliderCellRect(colorMatrixRect(), __colorMatrixRectSize, {component, digit, value});
}

std::optional<SliderCell> QTXHexColorsView::getComponent(HostPoint fromHitPoint)
{
    const auto cell = sliderCellAtPoint(colorMatrixRect(), fromHitPoint);
    if (cell) loadColorMatrixSize();
    return cell;
}

void QTXHexColorsView::drawHexSlidersWithRect(HostCanvas& canvas)
{
    for (int component = 0; component < componentCount; ++component) {
        __workColorSpec.loadWithHexColorSpec(&_hostHexColorPicker.hexColorSpec());
        for (const int digit : {1, 0})
            drawHexColorsWithRect(__workColorSpec, component, digit, canvas);
    }
}

void QTXHexColorsView::drawHexColorsWithRect(QTXHexColorSpec& colorSpec, int component, int digit,
                                             HostCanvas& canvas)
{
    const auto savedComponent = colorSpec.componentWithIndex(component);
    const int chosen =
        static_cast<int>(colorSpec.colorSubComponentWithComponentIndex(component, digit));

    for (int value = 0; value < digitValueCount; ++value) {
        colorSpec.setColorSubComponent(static_cast<std::uint64_t>(value), component, digit);
        HostRect cell = colorMatrixRectWithComponent(component, digit, value);
        cell.height += 0.5;  // no seams between the rows
        __bPth.removeAllPoints();
        __bPth.appendBezierPathWithRect(cell);
        canvas.fill(__bPth, colorSpec.colorHexColorSpec());
    }

    const HostRect cursor = colorMatrixRectWithComponent(component, digit, chosen);
    __bPth.removeAllPoints();
    __bPth.appendBezierPathWithRect(cursor);
    __bPth.setLineWidth(2.0);
    canvas.stroke(__bPth, HostColor::whiteColor());
    if (digit == 1) {
        __bPth.setLineWidth(1.0);
        canvas.stroke(__bPth, HostColor::blackColor());
        strokeLeaderLines(cursor, chosen, canvas);
    } else {
        __bPth.setLineWidth(0.8);
        canvas.stroke(__bPth, __exactHexColorMatch ? hexColorsSelectedColorWithMatchColorS
                                                   : hexColorsSelectedColorWithoutMatchColorS);
    }

    // The check is misled by names: the second argument is an index, but the first parameter is
    // called `component`.
    // NOLINTNEXTLINE(readability-suspicious-call-argument)
    colorSpec.setComponent(savedComponent, component);
}

/// Draws two lines from the cursor of a high digit to the low-digit column beside it. They show
/// that the whole column lies within the chosen high value.
void QTXHexColorsView::strokeLeaderLines(HostRect cell, int value, HostCanvas& canvas)
{
    const HostRect matrix = colorMatrixRect();
    const double start = cell.maxX() + 0.1 * cell.width;
    const double middle = start + 0.5 * cell.width;
    const double end = start + 0.8 * cell.width;

    __bPth.removeAllPoints();
    __bPth.moveToPoint({start, cell.y});
    if (value != 0) {
        __bPth.lineToPoint({middle, cell.y});
        __bPth.lineToPoint({middle, matrix.y + 0.5 * cell.height});
        __bPth.lineToPoint({end, matrix.y});
    } else {
        __bPth.lineToPoint({end, cell.y});
    }
    canvas.stroke(__bPth, darkGrayColor);

    __bPth.removeAllPoints();
    __bPth.moveToPoint({start, cell.maxY()});
    if (value != digitValueCount - 1) {
        __bPth.lineToPoint({middle, cell.maxY()});
        __bPth.lineToPoint({middle, matrix.maxY() - 0.5 * cell.height});
        __bPth.lineToPoint({end, matrix.maxY()});
    } else {
        __bPth.lineToPoint({end, cell.maxY()});
    }
    canvas.stroke(__bPth, darkGrayColor);
}

void QTXHexColorsView::loadWorkColorSpecWithCell(const SliderCell& cell,
                                                 std::uint64_t modifierFlags)
{
    __workColorSpec.loadWithHexColorSpec(&_hostHexColorPicker.hexColorSpec());
    __workColorSpec.setColorSubComponent(static_cast<std::uint64_t>(cell.value), cell.component,
                                         cell.digit, modifierFlags);
}

void QTXHexColorsView::slidersMouseDownWithEvent(const HostEvent& event)
{
    if (_view == nullptr) return;
    panel().continuousChangeDidBegin();
    const bool wasDraggedOut = followSliders(event);
    panel().continuousChangeDidEnd();
    if (wasDraggedOut) mouseDragged(event);
}

bool QTXHexColorsView::followSliders(const HostEvent& event)
{
    const HostPoint pressed = event.location;
    HostPoint current = pressed;
    HostPoint previous{pressed.x + 1,
                       pressed.y};  // differs from the press, so that the press is handled
    HostEventType type = event.type;
    std::uint64_t modifierFlags = event.modifierFlags;
    std::optional<SliderCell> lastHit;

    while (type != HostEventType::leftMouseUp) {
        if (current != previous) {
            const auto hit = getComponent(current);
            if (hit && hit != lastHit) {
                loadWorkColorSpecWithCell(*hit, modifierFlags);
                const HostColor color = __workColorSpec.colorHexColorSpec();
                _hostHexColorPicker.setColor(color);
                if (const auto forPanel = _hostHexColorPicker.colorRespectingAlpha(color)) {
                    panel().setColor(*forPanel);
                }
                _hostHexColorPicker.syncPanel();
                lastHit = hit;
            } else if (!hit && distanceBetweenPoints(pressed.x, pressed.y, previous.x, previous.y) >
                                   dragOutDistance) {
                return true;
            }
        }
        const HostEvent next =
            panel().nextEventMatchingMask(maskOfEventType(HostEventType::leftMouseUp) |
                                              maskOfEventType(HostEventType::leftMouseDragged),
                                          *_view);
        type = next.type;
        modifierFlags = next.modifierFlags;
        previous = current;
        current = next.location;
    }

    if (const auto hit = getComponent(current)) pickSliderCell(*hit, modifierFlags);
    return false;
}

void QTXHexColorsView::pickSliderCell(const SliderCell& cell, std::uint64_t modifierFlags)
{
    loadWorkColorSpecWithCell(cell, modifierFlags);
    // On release, the controller also gets the colour with the panel's alpha. While the pointer
    // moves, it gets the opaque one.
    const auto color =
        _hostHexColorPicker.colorRespectingAlpha(__workColorSpec.colorHexColorSpec());
    if (color) {
        _hostHexColorPicker.setColor(color);
        panel().setColor(*color);
    }
    _hostHexColorPicker.syncPanel();
}

}  // namespace vantorel
