#include "pageparts/Segments.h"

#include "pageparts/PixelPainting.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace vantorel {
namespace {

// In points.
constexpr double segmentGap = 2;
/// Beside a title, on each side.
constexpr double besideTitle = 3;

}  // namespace

void Segments::makeViews(HostDesktop& desktop, const Description& description, Chosen chosen)
{
    _chosen = std::move(chosen);
    HostControlDescription group;
    group.identifier = description.identifier;
    group.accessibleName = description.accessibleName;
    _frame = desktop.interfaceFactory().makeCustomView(group, *this);
    for (std::size_t i = 0; i < description.titles.size(); ++i) {
        HostControlDescription segment;
        segment.identifier = description.buttonIdentifier + std::to_string(i + 1);
        segment.title = description.titles[i];
        segment.pointSize = description.pointSize;
        segment.buttonKind = HostControlDescription::ButtonKind::toggle;
        _buttons.push_back(desktop.interfaceFactory().makeButton(segment));
        _buttons.back()->setAction([this, i](HostControl&) { _chosen(i); });
        _frame->addSubview(*_buttons.back());
        const HostText title{.string = segment.title, .pointSize = description.pointSize};
        _titleWidths.push_back(std::ceil(desktop.sizeOfText(title).width));
    }
}

void Segments::show(std::size_t segment)
{
    for (std::size_t i = 0; i < _buttons.size(); ++i)
        _buttons[i]->setState(i == segment ? 1 : 0);
}

void Segments::layOut(HostRect place)
{
    const auto count = static_cast<double>(_buttons.size());
    const double width = (place.width - segmentGap * (count + 1)) / count;
    layOut(place, std::vector(_buttons.size(), width));
}

double Segments::leastWidth() const
{
    const auto count = static_cast<double>(_buttons.size());
    return std::accumulate(_titleWidths.begin(), _titleWidths.end(), 0.0) +
           2 * besideTitle * count + segmentGap * (count + 1);
}

void Segments::layOutByTitles(HostRect place)
{
    const double more = (place.width - leastWidth()) /
                        static_cast<double>(std::max<std::size_t>(1, _buttons.size()));
    std::vector<double> widths;
    for (const double title : _titleWidths)
        widths.push_back(title + 2 * besideTitle + more);
    layOut(place, widths);
}

void Segments::layOut(HostRect place, const std::vector<double>& widths)
{
    _frame->setFrame(place);
    double x = segmentGap;
    for (std::size_t i = 0; i < _buttons.size(); ++i) {
        _buttons[i]->setFrame({x, segmentGap, widths[i], place.height - 2 * segmentGap});
        x += widths[i] + segmentGap;
    }
}

void Segments::drawRect(HostCanvas& canvas)
{
    constexpr double radius = 6;
    const HostRect place = _frame->bounds();
    HostPixels pixels(canvas.pixelSizeOf(place));
    const PixelLook look = lookOf(canvas, place);
    for (int y = 0; y < pixels.height(); ++y)
        std::fill_n(pixels.row(y), pixels.width(), look.base);
    frameRounded(pixels, radius * look.scale, look.scale, look.edge);
    canvas.drawPixels(pixels, place);
}

}  // namespace vantorel
