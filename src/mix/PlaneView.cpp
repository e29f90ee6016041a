#include "mix/PlaneView.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantorel {
namespace {

// In points.
constexpr double markDiameter = 18;
constexpr double legendText = 10;
constexpr double legendHeight = 16;
constexpr double legendPadding = 5;
constexpr double legendLine = 12;
constexpr double legendGap = 4;
constexpr double leastPlaneForLegend = 150;
/// Home and End go to the ends of the horizontal axis.
constexpr int wholeAxis = 1000000;

HostBezierPath rectPath(HostRect rect)
{
    HostBezierPath path;
    path.appendBezierPathWithRect(rect);
    return path;
}

}  // namespace

PlaneView::PlaneView(HostDesktop& desktop, MarkDragListener& listener, Actions actions)
    : MarkView(listener), _desktop(desktop), _actions(std::move(actions))
{
}

void PlaneView::show(MixSpace space, const ColorTriple& components, const ColorTriple& srgb)
{
    const double third = components[axesOf(space).third];
    if (space != _plane.space() || third != _plane.third()) {
        _plane = ColorPlane(space, third);
        _picture.reset();
    }
    _mark = _plane.placeOf(components);
    _srgb = srgb;
    view().setNeedsDisplay(true);
}

HostRect PlaneView::planePlace() const
{
    HostRect place = insetRect(view().bounds(), roomForMark, roomForMark);
    place.width = std::max(0.0, place.width);
    place.height = std::max(0.0, place.height);
    return place;
}

void PlaneView::drawRect(HostCanvas& canvas)
{
    const HostRect place = planePlace();
    const HostPixelSize size = canvas.pixelSizeOf(place);
    if (size.width == 0 || size.height == 0) return;
    const PixelLook look = lookOf(canvas, place);
    if (!_picture || _picture->size() != size || look != _look) {
        _look = look;
        _picture = planePicture(_plane, size, look);
    }
    canvas.drawPixels(*_picture, place);
    drawLegend(canvas, place);
    const double x = place.x + std::clamp(_mark.x, 0.0, 1.0) * place.width;
    const double y = place.y + std::clamp(_mark.y, 0.0, 1.0) * place.height;
    const HostRect mark{x - markDiameter / 2, y - markDiameter / 2, markDiameter, markDiameter};
    canvas.drawPixels(markPicture(canvas.pixelSizeOf(mark), look.scale, pixelOf(_srgb)), mark);
}

void PlaneView::drawLegend(HostCanvas& canvas, HostRect place) const
{
    const bool hasBorders = _plane.space() == MixSpace::oklch || _plane.space() == MixSpace::lab;
    if (!hasBorders || place.width < leastPlaneForLegend) return;
    HostText srgb{u"sRGB", legendText, canvas.themeColor(HostThemeColor::text)};
    HostText p3 = srgb;
    p3.string = u"P3";
    const HostSize srgbSize = _desktop.sizeOfText(srgb);
    const HostSize p3Size = _desktop.sizeOfText(p3);
    const double width = 2 * (legendPadding + legendLine + legendGap) + srgbSize.width +
                         legendPadding + p3Size.width + legendPadding;
    const HostRect box{place.maxX() - width - legendPadding, place.y + legendPadding, width,
                       std::max(legendHeight, srgbSize.height)};
    canvas.fill(rectPath(box), canvas.themeColor(HostThemeColor::base));
    double x = box.x + legendPadding;
    const auto addLine = [&](double from, double length) {
        canvas.fill(rectPath({from, box.midY() - 0.75, length, 1.5}), srgb.color);
    };
    const auto addText = [&](const HostText& text, HostSize size) {
        x += legendLine + legendGap;
        canvas.drawText(text, {x, box.midY() - size.height / 2});
        x += size.width + 2 * legendPadding;
    };
    addLine(x, legendLine);
    addText(srgb, srgbSize);
    x -= legendPadding;
    constexpr double dash = 3;
    constexpr int dashes = 3;
    for (int i = 0; i < dashes; ++i)
        addLine(x + i * 1.5 * dash, dash);
    addText(p3, p3Size);
}

void PlaneView::moveMarkTo(HostPoint at)
{
    const HostRect place = planePlace();
    if (place.width <= 0 || place.height <= 0) return;
    const double y = std::clamp((at.y - place.y) / place.height, 0.0, 1.0);
    double x = std::clamp((at.x - place.x) / place.width, 0.0, 1.0);
    // No screen shows what is beyond.
    const ColorPlane::Span shown = _plane.shownSpan(ScreenGamut::displayP3, y);
    if (shown.from < shown.to || _plane.space() == MixSpace::oklch)
        x = std::clamp(x, shown.from, std::max(shown.from, shown.to));
    if (HostPoint{x, y} != _mark) _actions.move({x, y});
}

bool PlaneView::scrollWheel(const HostScrollEvent& event)
{
    _actions.stepThird(event.steps, event.modifierFlags);
    return true;
}

bool PlaneView::moveMarkBy(const HostKeyEvent& event)
{
    const std::uint64_t flags = event.modifierFlags;
    switch (event.key) {
        case HostKey::left:
            _actions.step(-1, 0, flags);
            return true;
        case HostKey::right:
            _actions.step(1, 0, flags);
            return true;
        case HostKey::up:
            _actions.step(0, 1, flags);
            return true;
        case HostKey::down:
            _actions.step(0, -1, flags);
            return true;
        case HostKey::home:
            _actions.step(-wholeAxis, 0, flags);
            return true;
        case HostKey::end:
            _actions.step(wholeAxis, 0, flags);
            return true;
        case HostKey::pageUp:
            _actions.stepThird(1, shiftModifierFlag);
            return true;
        case HostKey::pageDown:
            _actions.stepThird(-1, shiftModifierFlag);
            return true;
        case HostKey::pick:
            break;
    }
    return false;
}

}  // namespace vantorel
