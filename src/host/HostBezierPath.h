#pragma once

#include "host/HostGeometry.h"

#include <vector>

namespace vantorel {

/// A path of straight lines, with the line width that a stroke of it uses. Emptying the path keeps
/// the width: a path that is reused strokes with the width that its last user left.
class HostBezierPath {
public:
    enum class ElementKind { moveTo, lineTo, close };
    struct Element {
        ElementKind kind = ElementKind::moveTo;
        HostPoint point;  ///< of no meaning for `close`

        bool operator==(const Element&) const = default;
    };

    void removeAllPoints() { _elements.clear(); }
    void moveToPoint(HostPoint point) { _elements.push_back({ElementKind::moveTo, point}); }
    void lineToPoint(HostPoint point) { _elements.push_back({ElementKind::lineTo, point}); }
    void closePath() { _elements.push_back({ElementKind::close, {}}); }

    /// A closed rectangle, counter-clockwise from its lower left corner.
    void appendBezierPathWithRect(HostRect rect);

    [[nodiscard]] const std::vector<Element>& elements() const { return _elements; }
    [[nodiscard]] bool isEmpty() const { return _elements.empty(); }

    /// In points; 1.0 for a new path.
    [[nodiscard]] double lineWidth() const { return _lineWidth; }
    void setLineWidth(double width) { _lineWidth = width; }

    /// Whether a point lies inside by the non-zero winding rule; open parts count as closed. Of the
    /// outline, left and bottom edges belong to the inside and right and top edges do not.
    [[nodiscard]] bool containsPoint(HostPoint point) const;

    bool operator==(const HostBezierPath&) const = default;

private:
    std::vector<Element> _elements;
    double _lineWidth = 1.0;
};

}  // namespace vantorel
