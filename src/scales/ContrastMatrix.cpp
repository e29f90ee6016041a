#include "scales/ContrastMatrix.h"

#include "csscolor/Contrast.h"
#include "csscolor/GamutMapping.h"
#include "host/HostInterfaceFactory.h"
#include "pageparts/FittingText.h"
#include "pageparts/PixelPainting.h"
#include "scales/ContrastLines.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantorel {
namespace {

// In points.
constexpr double captionRoom = 18;
constexpr double headingRoom = 20;
constexpr double leastCellHeight = 16;
constexpr double leastCellWidth = 19;
constexpr double captionText = 11;
constexpr double cellText = 10;
/// In cells that are narrower than the widest verdict at the usual size.
constexpr double narrowCellText = 8;
constexpr double narrowCell = 24;
constexpr double cellGap = 1;
/// Farther than any view is wide or high.
constexpr double beyondAllViews = 1e5;

void fillPlace(HostCanvas& canvas, HostRect place, const HostColor& color)
{
    const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
    HostPixels pixels(canvas.pixelSizeOf(place));
    const std::uint32_t pixel = pixelOf(ColorTriple{rgb.red, rgb.green, rgb.blue});
    for (int y = 0; y < pixels.height(); ++y)
        std::fill_n(pixels.row(y), pixels.width(), pixel);
    canvas.drawPixels(pixels, place);
}

}  // namespace

std::u16string shortVerdict(double ratio)
{
    const ContrastVerdicts verdicts = contrastVerdicts(ratio);
    if (verdicts.normalTextAAA) return u"AAA";
    if (verdicts.normalTextAA) return u"AA";
    return verdicts.largeTextAA ? u"3:1" : u"\u2013";
}

ContrastMatrix::ContrastMatrix(HostColorPanel& panel, const std::string& identifier,
                               const std::u16string& name, Chosen chosen)
    : _panel(panel), _chosen(std::move(chosen))
{
    HostControlDescription description;
    description.identifier = identifier;
    description.accessibleName = name;
    _view = panel.desktop().interfaceFactory().makeCustomView(description, *this);
    // The whole view, whatever its size.
    _view->addTrackingRect({0, 0, beyondAllViews, beyondAllViews}, false);
    _view->setAccessibleDescription(
        [this] { return _swatches.empty() ? std::u16string() : spoken(_current); });
}

void ContrastMatrix::show(Swatches swatches)
{
    for (Swatch& swatch : swatches)
        swatch.color = mappedIntoSRGB(swatch.color).colorWithAlphaComponent(1);
    if (swatches == _swatches) return;
    _swatches = std::move(swatches);
    const std::size_t last = _swatches.empty() ? 0 : _swatches.size() - 1;
    _current = {std::min(_current.text, last), std::min(_current.ground, last)};
    // What is pressed has gone.
    _pressed.reset();
    _view->setToolTip(std::nullopt);
    _view->setNeedsDisplay(true);
}

double ContrastMatrix::leastHeight(std::size_t count)
{
    return 2 * margin + captionRoom + headingRoom + leastCellHeight * static_cast<double>(count);
}

std::size_t ContrastMatrix::capacity() const
{
    const HostSize size = _view->bounds().size();
    const double columns = (size.width - 2 * margin) / leastCellWidth - 1;
    const double rows = (size.height - leastHeight(0)) / leastCellHeight;
    return static_cast<std::size_t>(std::max(0.0, std::min(columns, rows)));
}

double ContrastMatrix::ratioOf(Cell cell) const
{
    return contrastRatio(_swatches.at(cell.text).color, _swatches.at(cell.ground).color)
        .value_or(1);
}

HostRect ContrastMatrix::placeInGrid(std::size_t column, std::size_t row) const
{
    const HostRect room = insetRect(_view->bounds(), margin, margin);
    const auto count = static_cast<double>(_swatches.size());
    const double width = room.width / (count + 1);
    const double height = std::max(0.0, room.height - captionRoom - headingRoom) / count;
    const double top = room.maxY() - captionRoom;
    const HostRect place =
        row == 0 ? HostRect{room.x, top - headingRoom, width, headingRoom}
                 : HostRect{room.x, top - headingRoom - height * static_cast<double>(row), width,
                            height};
    return insetRect({place.x + width * static_cast<double>(column), place.y, width, place.height},
                     cellGap / 2, cellGap / 2);
}

HostRect ContrastMatrix::placeOf(Cell cell) const
{
    return placeInGrid(cell.text + 1, cell.ground + 1);
}

std::optional<ContrastMatrix::Cell> ContrastMatrix::cellAt(HostPoint point) const
{
    for (std::size_t ground = 0; ground < _swatches.size(); ++ground) {
        for (std::size_t text = 0; text < _swatches.size(); ++text) {
            // Without gaps between the cells.
            const HostRect place = insetRect(placeOf({text, ground}), -cellGap / 2, -cellGap / 2);
            if (place.contains(point)) return Cell{text, ground};
        }
    }
    return std::nullopt;
}

std::optional<std::u16string> ContrastMatrix::headingAt(HostPoint point) const
{
    for (std::size_t i = 0; i < _swatches.size(); ++i) {
        if (placeInGrid(i + 1, 0).contains(point) || placeInGrid(0, i + 1).contains(point))
            return _swatches[i].label;
    }
    return std::nullopt;
}

std::u16string ContrastMatrix::spoken(Cell cell) const
{
    HostDesktop& desktop = _panel.desktop();
    const double ratio = ratioOf(cell);
    return desktop.localizedString(u"Text") + u" " + _swatches[cell.text].label + u", " +
           desktop.localizedString(u"Background") + u" " + _swatches[cell.ground].label + u": " +
           ratioText(desktop, ratio) + u" " + verdictText(desktop, ratio);
}

void ContrastMatrix::drawHeading(HostCanvas& canvas, const Swatch& swatch, HostRect place) const
{
    fillPlace(canvas, place, swatch.color);
    const HostColor white = HostColor::whiteColor();
    const HostColor black = HostColor::blackColor();
    const bool whiteIsBetter = contrastRatio(white, swatch.color).value_or(1) >
                               contrastRatio(black, swatch.color).value_or(1);
    HostText label{.string = swatch.label,
                   .pointSize = place.width < narrowCell ? narrowCellText : cellText,
                   .color = whiteIsBetter ? white : black,
                   .isBold = swatch.isOwn};
    HostSize size = _panel.desktop().sizeOfText(label);
    if (label.isBold && size.width > place.width) {
        label.isBold = false;
        size = _panel.desktop().sizeOfText(label);
    }
    // The name of a listed colour is often too long; the tip says it.
    if (size.width > place.width) return;
    canvas.drawText(label, {place.midX() - size.width / 2, place.midY() - size.height / 2});
}

void ContrastMatrix::drawCell(HostCanvas& canvas, Cell cell) const
{
    const HostRect place = placeOf(cell);
    const double ratio = ratioOf(cell);
    const bool isReadable = contrastVerdicts(ratio).normalTextAA;
    if (isReadable) fillPlace(canvas, place, _swatches[cell.ground].color);
    const HostText mark{.string = shortVerdict(ratio),
                        .pointSize = place.width < narrowCell ? narrowCellText : cellText,
                        .color = isReadable
                                     ? _swatches[cell.text].color
                                     : canvas.themeColor(contrastVerdicts(ratio).largeTextAA
                                                             ? HostThemeColor::text
                                                             : HostThemeColor::secondaryText)};
    const HostSize size = _panel.desktop().sizeOfText(mark);
    canvas.drawText(mark, {place.midX() - size.width / 2, place.midY() - size.height / 2});
}

void ContrastMatrix::drawRect(HostCanvas& canvas)
{
    if (_swatches.empty()) return;
    const HostText text{
        .string = _panel.desktop().localizedString(u"Texts in columns, backgrounds in rows"),
        .pointSize = captionText,
        .color = canvas.themeColor(HostThemeColor::secondaryText)};
    const HostRect bounds = _view->bounds();
    const HostText caption = fittingText(_panel.desktop(), text, bounds.width - 2 * margin);
    const HostSize size = _panel.desktop().sizeOfText(caption);
    canvas.drawText(caption, {margin, bounds.maxY() - margin - captionRoom / 2 - size.height / 2});
    for (std::size_t i = 0; i < _swatches.size(); ++i) {
        drawHeading(canvas, _swatches[i], placeInGrid(i + 1, 0));
        drawHeading(canvas, _swatches[i], placeInGrid(0, i + 1));
        for (std::size_t column = 0; column < _swatches.size(); ++column)
            drawCell(canvas, {column, i});
    }
}

void ContrastMatrix::mouseDown(const HostEvent& event)
{
    _pressed = cellAt(event.location);
}

void ContrastMatrix::mouseUp(const HostEvent& event)
{
    const auto pressed = std::exchange(_pressed, std::nullopt);
    if (!pressed || cellAt(event.location) != pressed) return;
    _current = *pressed;
    _view->setNeedsDisplay(true);
    _chosen(HostColor(_swatches[pressed->text].color));
}

void ContrastMatrix::mouseMoved(const HostEvent& event)
{
    const auto cell = cellAt(event.location);
    auto tip = cell ? std::optional(spoken(*cell)) : headingAt(event.location);
    if (tip != _view->toolTip()) _view->setToolTip(std::move(tip));
}

bool ContrastMatrix::keyDown(const HostKeyEvent& event)
{
    if (_swatches.empty()) return false;
    const std::size_t last = _swatches.size() - 1;
    Cell to = _current;
    switch (event.key) {
        case HostKey::left:
            if (to.text > 0) --to.text;
            break;
        case HostKey::right:
            if (to.text < last) ++to.text;
            break;
        case HostKey::up:
            if (to.ground > 0) --to.ground;
            break;
        case HostKey::down:
            if (to.ground < last) ++to.ground;
            break;
        case HostKey::home:
            to.text = 0;
            break;
        case HostKey::end:
            to.text = last;
            break;
        case HostKey::pageUp:
            to.ground = 0;
            break;
        case HostKey::pageDown:
            to.ground = last;
            break;
        case HostKey::pick:
            _chosen(HostColor(_swatches[_current.text].color));
            return true;
    }
    _current = to;
    _view->setNeedsDisplay(true);
    return true;
}

HostBezierPath ContrastMatrix::keyOutline() const
{
    HostBezierPath path;
    if (!_swatches.empty()) path.appendBezierPathWithRect(placeOf(_current));
    return path;
}

}  // namespace vantorel
