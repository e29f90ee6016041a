#pragma once

#include "host/HostGeometry.h"

#include <vector>

namespace vantorel {

/// A path of straight lines and the line width used to stroke it. `removeAllPoints` keeps the line
/// width, so a path that is reused strokes with the width set last.
class HostBezierPath {
public:
    enum class ElementKind { moveTo, lineTo, close };
    struct Element {
        ElementKind kind = ElementKind::moveTo;
        HostPoint point;  ///< unused for `close`

        bool operator==(const Element&) const = default;
    };

    void removeAllPoints() { _elements.clear(); }
    void moveToPoint(HostPoint point) { _elements.push_back({ElementKind::moveTo, point}); }
    void lineToPoint(HostPoint point) { _elements.push_back({ElementKind::lineTo, point}); }
    void closePath() { _elements.push_back({ElementKind::close, {}}); }

    /// Appends a closed rectangle, counter-clockwise from its lower left corner.
    void appendBezierPathWithRect(HostRect rect);

    [[nodiscard]] const std::vector<Element>& elements() const { return _elements; }
    [[nodiscard]] bool isEmpty() const { return _elements.empty(); }

    /// The width in points; 1.0 for a new path.
    [[nodiscard]] double lineWidth() const { return _lineWidth; }
    void setLineWidth(double width) { _lineWidth = width; }

    /// Returns whether a point lies inside the path by the non-zero winding rule. Open subpaths
    /// count as closed. Points on left and bottom edges are inside; points on right and top edges
    /// are not.
    [[nodiscard]] bool containsPoint(HostPoint point) const;

    bool operator==(const HostBezierPath&) const = default;

private:
    std::vector<Element> _elements;
    double _lineWidth = 1.0;
};

}  // namespace vantorel
