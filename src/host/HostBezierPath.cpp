#include "host/HostBezierPath.h"

#include <array>

namespace vantorel {
namespace {

/// Returns +1 or -1 if the edge crosses the ray from `p` to the right, else 0. An edge includes its
/// lower end but not its upper one, so that a ray through a corner is counted once.
int windingOfEdge(HostPoint a, HostPoint b, HostPoint p)
{
    if ((a.y <= p.y) == (b.y <= p.y)) return 0;
    const double x = a.x + (p.y - a.y) / (b.y - a.y) * (b.x - a.x);
    if (!(x > p.x)) return 0;
    return b.y > a.y ? 1 : -1;
}

}  // namespace

void HostBezierPath::appendBezierPathWithRect(HostRect rect)
{
    const std::array<Element, 5> elements{{
        {ElementKind::moveTo, {rect.x, rect.y}},
        {ElementKind::lineTo, {rect.maxX(), rect.y}},
        {ElementKind::lineTo, {rect.maxX(), rect.maxY()}},
        {ElementKind::lineTo, {rect.x, rect.maxY()}},
        {ElementKind::close, {}},
    }};
    _elements.insert(_elements.end(), elements.begin(), elements.end());
}

bool HostBezierPath::containsPoint(HostPoint point) const
{
    int winding = 0;
    HostPoint start;
    HostPoint current;
    for (const Element& element : _elements) {
        switch (element.kind) {
            case ElementKind::moveTo:
                winding += windingOfEdge(current, start, point);
                start = current = element.point;
                break;
            case ElementKind::lineTo:
                winding += windingOfEdge(current, element.point, point);
                current = element.point;
                break;
            case ElementKind::close:
                winding += windingOfEdge(current, start, point);
                current = start;
                break;
        }
    }
    winding += windingOfEdge(current, start, point);
    return winding != 0;
}

}  // namespace vantorel
