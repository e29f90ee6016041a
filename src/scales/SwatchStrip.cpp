#include "scales/SwatchStrip.h"

#include "csscolor/CSSColorWriter.h"
#include "csscolor/GamutMapping.h"
#include "host/HostInterfaceFactory.h"
#include "pageparts/FittingText.h"
#include "pageparts/PixelPainting.h"
#include "view/DragImages.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantorel {
namespace {

// In points.
/// The least height of colours in several rows, as a share and in points.
constexpr double shareInRows = 0.6;
constexpr double leastInRows = 20;
constexpr double swatchGap = 4;
constexpr double rowGap = 4;
constexpr double labelText = 10;
/// Below colours that are narrower than targets should be.
constexpr double narrowLabelText = 9;
constexpr double narrow = 24;
constexpr double labelHeight = 16;
constexpr double radiusOfStrip = 6;
constexpr double radiusOfSwatch = 4;
/// A press that moves farther is a drag.
constexpr double dragThreshold = 4;
/// Farther than any view is wide or high.
constexpr double farAway = 1e5;

/// The line inside every colour, so that each has an edge on any ground.
HostColor swatchLine(const HostCanvas& canvas, const PixelLook& look)
{
    const HostColor text = canvas.themeColor(HostThemeColor::text);
    // Themes of high contrast have one colour for texts and edges.
    if (look.edge == text) return text;
    return look.isDark ? HostColor::whiteColor().colorWithAlphaComponent(0.26)
                       : HostColor::blackColor().colorWithAlphaComponent(0.22);
}

/// Fills columns of a picture with a colour, and with squares where it is translucent.
void fillColumns(HostPixels& pixels, int from, int end, const HostColor& color,
                 const PixelLook& look)
{
    const auto rgb = mappedIntoSRGB(color).calibratedRGB().value_or(HostColor::Components{});
    const std::uint32_t above = pixelOf(ColorTriple{rgb.red, rgb.green, rgb.blue});
    for (int y = 0; y < pixels.height(); ++y)
        for (int x = std::max(0, from); x < std::min(end, pixels.width()); ++x)
            pixels.row(y)[x] =
                rgb.alpha < 1 ? blended(checkAt(look, x, y), above, rgb.alpha) : above;
}

}  // namespace

std::size_t swatchRows(double width, std::size_t count, const SwatchStrip::Options& options)
{
    if (count == 0) return 1;
    const double gap = options.isJoined ? 0 : swatchGap;
    const auto fitting = static_cast<std::size_t>(
        std::max(1.0, std::floor((width + gap) / (options.leastWidth + gap))));
    return (count + fitting - 1) / fitting;
}

std::vector<HostRect> swatchPlaces(HostRect strip, std::size_t count,
                                   const SwatchStrip::Options& options, double below)
{
    std::vector<HostRect> places;
    if (count == 0) return places;
    const std::size_t rows = swatchRows(strip.width, count, options);
    const std::size_t perRow = (count + rows - 1) / rows;
    const double gap = options.isJoined ? 0 : swatchGap;
    const auto number = [](std::size_t value) { return static_cast<double>(value); };
    const double rowHeight = (strip.height - rowGap * number(rows - 1)) / number(rows);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t row = i / perRow;
        const std::size_t inRow = std::min(perRow, count - row * perRow);
        const double width = std::max(0.0, (strip.width - gap * number(inRow - 1)) / number(inRow));
        places.push_back({strip.x + number(i % perRow) * (width + gap),
                          strip.maxY() - number(row) * (rowHeight + rowGap) - rowHeight + below,
                          width, std::max(0.0, rowHeight - below)});
    }
    return places;
}

SwatchStrip::SwatchStrip(HostColorPanel& panel, Options options, Chosen chosen)
    : _panel(panel), _options(std::move(options)), _chosen(std::move(chosen))
{
    HostControlDescription description;
    description.identifier = _options.identifier;
    description.accessibleName = _options.name;
    _view = panel.desktop().interfaceFactory().makeCustomView(description, *this);
    // The whole view, whatever its size.
    _view->addTrackingRect({0, 0, farAway, farAway}, false);
    _view->setAccessibleDescription(
        [this] { return _swatches.empty() ? _options.emptyText : spoken(_current); });
}

void SwatchStrip::show(Swatches swatches)
{
    if (swatches == _swatches) return;
    const bool isFirst = _swatches.empty();
    _swatches = std::move(swatches);
    if (isFirst) {
        const auto own = std::ranges::find(_swatches, true, &Swatch::isOwn);
        if (own != _swatches.end()) _current = static_cast<std::size_t>(own - _swatches.begin());
    }
    _current = std::min(_current, _swatches.empty() ? 0 : _swatches.size() - 1);
    // What is pressed has gone.
    _press.reset();
    _view->setToolTip(std::nullopt);
    _view->setNeedsDisplay(true);
}

double SwatchStrip::heightFor(double width, double height) const
{
    const std::size_t rows = swatchRows(width - 2 * margin, _swatches.size(), _options);
    const double inRow =
        rows > 1 ? std::min(height, std::max(leastInRows, std::round(height * shareInRows)))
                 : height;
    const double row = inRow + (_options.showsLabels ? labelHeight : 0);
    return static_cast<double>(rows) * (row + rowGap) - rowGap + 2 * margin;
}

std::vector<HostRect> SwatchStrip::places() const
{
    return swatchPlaces(insetRect(_view->bounds(), margin, margin), _swatches.size(), _options,
                        _options.showsLabels ? labelHeight : 0);
}

std::optional<std::size_t> SwatchStrip::swatchAt(HostPoint point) const
{
    const std::vector<HostRect> all = places();
    for (std::size_t i = 0; i < all.size(); ++i) {
        HostRect place = all[i];
        if (_options.showsLabels) {
            place.y -= labelHeight;
            place.height += labelHeight;
        }
        if (place.contains(point)) return i;
    }
    return std::nullopt;
}

std::u16string SwatchStrip::codeOf(const HostColor& color) const
{
    if (_options.code) return _options.code(color);
    return hexText(mappedIntoSRGB(color)).value_or(u"");
}

std::u16string SwatchStrip::spoken(std::size_t index) const
{
    const Swatch& swatch = _swatches[index];
    std::u16string text = swatch.label + u", " + codeOf(swatch.color);
    if (swatch.isOwn) text += u", " + _panel.desktop().localizedString(u"the colour itself");
    return text;
}

void SwatchStrip::drawRect(HostCanvas& canvas)
{
    const std::vector<HostRect> all = places();
    if (all.empty()) drawEmptyText(canvas);
    for (std::size_t i = 0; i < all.size();) {
        // Colours that touch each other are one picture, for their common corners.
        std::size_t end = i + 1;
        while (_options.isJoined && end < all.size() && all[end].y == all[i].y)
            ++end;
        const HostRect place{all[i].x, all[i].y, all[end - 1].maxX() - all[i].x, all[i].height};
        HostPixels pixels(canvas.pixelSizeOf(place));
        const PixelLook look = lookOf(canvas, place);
        for (std::size_t j = i; j < end; ++j) {
            const auto column = [&](double x) {
                return static_cast<int>(std::lround((x - place.x) * look.scale));
            };
            fillColumns(pixels, column(all[j].x),
                        j + 1 == end ? pixels.width() : column(all[j].maxX()), _swatches[j].color,
                        look);
        }
        frameRounded(pixels, (_options.isJoined ? radiusOfStrip : radiusOfSwatch) * look.scale,
                     look.scale, swatchLine(canvas, look));
        canvas.drawPixels(pixels, place);
        i = end;
    }
    if (!_options.showsLabels) return;
    for (std::size_t i = 0; i < all.size(); ++i)
        drawLabel(canvas, _swatches[i], all[i]);
}

void SwatchStrip::drawEmptyText(HostCanvas& canvas) const
{
    const HostText text{.string = _options.emptyText,
                        .color = canvas.themeColor(HostThemeColor::secondaryText)};
    const HostSize size = _panel.desktop().sizeOfText(text);
    canvas.drawText(text, {margin, _view->bounds().midY() - size.height / 2});
}

void SwatchStrip::drawLabel(HostCanvas& canvas, const Swatch& swatch, HostRect place) const
{
    const auto kind = swatch.isOwn ? HostThemeColor::text : HostThemeColor::secondaryText;
    const HostText text{.string = swatch.label,
                        .pointSize = place.width < narrow ? narrowLabelText : labelText,
                        .color = canvas.themeColor(kind),
                        .isBold = swatch.isOwn};
    // Labels of narrow colours must not run into each other.
    const HostText label = fittingText(_panel.desktop(), text, place.width - 2);
    const HostSize size = _panel.desktop().sizeOfText(label);
    canvas.drawText(label, {place.midX() - size.width / 2,
                            place.y - labelHeight + (labelHeight - size.height) / 2});
}

void SwatchStrip::mouseDown(const HostEvent& event)
{
    const auto swatch = swatchAt(event.location);
    _press.reset();
    if (swatch) _press = Press{*swatch, event.location};
}

void SwatchStrip::mouseDragged(const HostEvent& event)
{
    if (!_press) return;
    const double distance =
        std::hypot(event.location.x - _press->at.x, event.location.y - _press->at.y);
    if (distance < dragThreshold) return;
    const HostColor color = _swatches[_press->swatch].color;
    _press.reset();
    // The page may be gone afterwards.
    _panel.dragImage(colorDragImage(_panel.desktop(), color, codeOf(color)), color, event, *_view);
}

void SwatchStrip::mouseUp(const HostEvent& event)
{
    const auto press = std::exchange(_press, std::nullopt);
    if (!press || swatchAt(event.location) != press->swatch) return;
    _current = press->swatch;
    _chosen(HostColor(_swatches[press->swatch].color));
}

void SwatchStrip::mouseMoved(const HostEvent& event)
{
    const auto swatch = swatchAt(event.location);
    std::optional<std::u16string> tip;
    if (swatch) tip = _swatches[*swatch].label + u": " + codeOf(_swatches[*swatch].color);
    if (tip != _view->toolTip()) _view->setToolTip(std::move(tip));
}

bool SwatchStrip::keyDown(const HostKeyEvent& event)
{
    if (_swatches.empty()) return false;
    const std::size_t last = _swatches.size() - 1;
    std::size_t to = _current;
    switch (event.key) {
        case HostKey::left:
        case HostKey::up:
            if (to > 0) --to;
            break;
        case HostKey::right:
        case HostKey::down:
            if (to < last) ++to;
            break;
        case HostKey::home:
            to = 0;
            break;
        case HostKey::end:
            to = last;
            break;
        case HostKey::pick:
            _chosen(HostColor(_swatches[_current].color));
            return true;
        case HostKey::pageUp:
        case HostKey::pageDown:
            return false;
    }
    _current = to;
    _view->setNeedsDisplay(true);
    return true;
}

HostBezierPath SwatchStrip::keyOutline() const
{
    HostBezierPath path;
    if (_swatches.empty()) return path;
    const std::vector<HostRect> all = places();
    constexpr double inside = 2;
    path.appendBezierPathWithRect(insetRect(all[_current], inside, inside));
    return path;
}

bool SwatchStrip::takesDropAt(HostPoint point) const
{
    if (!_options.droppedOnEnd) return false;
    const auto swatch = swatchAt(point);
    return swatch && (*swatch == 0 || *swatch + 1 == _swatches.size());
}

void SwatchStrip::takeDrop(const HostPasteboardItem& item, HostPoint point)
{
    if (takesDropAt(point)) _options.droppedOnEnd(swatchAt(point) != 0U, item);
}

}  // namespace vantorel
