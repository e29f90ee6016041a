#pragma once

#include "host/HostDesktop.h"
#include "mix/MarkView.h"
#include "mix/PlanePicture.h"

#include <functional>
#include <optional>

namespace vantorel {

/// A plane of colours with a mark at one of them. The mark is dragged, and moved by arrows (Shift:
/// coarse, Ctrl: fine), Home and End; Page Up, Page Down and the wheel change the third component.
class PlaneView final : public MarkView {
public:
    struct Actions {
        /// Chooses a place, in fractions of the plane from its lower left corner.
        std::function<void(HostPoint place)> move;
        /// Adds steps of the numbers that belong to the axes.
        std::function<void(int right, int up, std::uint64_t modifierFlags)> step;
        std::function<void(int steps, std::uint64_t modifierFlags)> stepThird;
    };

    /// The room for the mark around the plane, on each side of the view, in points.
    static constexpr double roomForMark = 8;

    /// Both must outlive the view.
    PlaneView(HostDesktop& desktop, MarkDragListener& listener, Actions actions);

    void show(MixSpace space, const ColorTriple& components, const ColorTriple& srgb);
    [[nodiscard]] const ColorPlane& plane() const { return _plane; }

    void drawRect(HostCanvas& canvas) override;
    bool scrollWheel(const HostScrollEvent& event) override;

private:
    void moveMarkTo(HostPoint at) override;
    bool moveMarkBy(const HostKeyEvent& event) override;
    [[nodiscard]] HostRect planePlace() const;
    void drawLegend(HostCanvas& canvas, HostRect place) const;

    HostDesktop& _desktop;
    Actions _actions;
    ColorPlane _plane{MixSpace::oklch, 0};
    /// In fractions of the plane; may be outside.
    HostPoint _mark;
    ColorTriple _srgb{};
    /// The picture of the plane, until the third component or its look changes.
    std::optional<HostPixels> _picture;
    PixelLook _look;
};

}  // namespace vantorel
