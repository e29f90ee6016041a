#include "hosts/common/PaintedLines.h"

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

using Kind = HostBezierPath::ElementKind;

double wholePixels(double lineWidth, double ratio)
{
    return std::max(1.0, std::round(lineWidth * ratio));
}

}  // namespace

std::optional<HostRect> uprightRect(const HostBezierPath& path)
{
    const auto& e = path.elements();
    if (e.size() != 5 || e[0].kind != Kind::moveTo || e[4].kind != Kind::close) return std::nullopt;
    const HostPoint a = e[0].point;
    const HostPoint c = e[2].point;
    if (e[1].point != HostPoint{c.x, a.y} || e[3].point != HostPoint{a.x, c.y}) return std::nullopt;
    return HostRect{std::min(a.x, c.x), std::min(a.y, c.y), std::abs(c.x - a.x),
                    std::abs(c.y - a.y)};
}

bool isPolygon(const HostBezierPath& path)
{
    const auto& elements = path.elements();
    if (elements.size() < 4 || elements.back().kind != Kind::close) return false;
    for (std::size_t i = 0; i + 1 < elements.size(); ++i) {
        if (elements[i].kind != (i == 0 ? Kind::moveTo : Kind::lineTo)) return false;
    }
    return true;
}

bool isOpenLine(const HostBezierPath& path)
{
    return std::ranges::none_of(path.elements(),
                                [](const auto& element) { return element.kind == Kind::close; });
}

std::array<PaintedBar, 4> barsOfStroke(PaintedBar rect, double lineWidth, double ratio)
{
    const double pixels = wholePixels(lineWidth, ratio);
    // From the edge between pixels where a fill ends too, so that lines of two widths on one
    // rectangle lie evenly within each other; the pixel in the middle of an odd width is inside.
    const auto outerEdge = [&](double edge, double outwards) {
        return (std::round(edge * ratio) + outwards * std::floor(pixels / 2)) / ratio;
    };
    const double left = outerEdge(rect.left, -1);
    const double top = outerEdge(rect.top, -1);
    const double right = std::max(outerEdge(rect.right, 1), left);
    const double bottom = std::max(outerEdge(rect.bottom, 1), top);
    const double width = std::min(pixels / ratio, right - left);
    const double height = std::min(pixels / ratio, bottom - top);
    const double innerBottom = std::max(bottom - height, top + height);
    return {PaintedBar{left, top, right, top + height},
            {left, bottom - height, right, bottom},
            {left, top + height, left + width, innerBottom},
            {right - width, top + height, right, innerBottom}};
}

double middleOfPixel(double x, double ratio)
{
    return (std::floor(x * ratio) + 0.5) / ratio;
}

double halfStrokeWidth(double lineWidth, double ratio)
{
    return wholePixels(lineWidth, ratio) / ratio / 2;
}

}  // namespace vantorel
