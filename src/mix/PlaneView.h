#pragma once

#include "host/HostDesktop.h"
#include "mix/PlanePicture.h"
#include "mix/TrackView.h"

#include <memory>
#include <optional>

namespace vantorel {

/// A plane of colours with a mark at one of them. The mark is dragged, and moved by arrows (Shift:
/// coarse, Ctrl: fine), Home and End; Page Up, Page Down and the wheel change the third component.
class PlaneView final : public HostViewContent {
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
    PlaneView(HostDesktop& desktop, MixDragListener& listener, Actions actions);

    void makeView(const std::string& identifier, HostRect frame);
    [[nodiscard]] HostCustomView& view() const { return *_view; }

    void show(MixSpace space, const ColorTriple& components, const ColorTriple& srgb);
    [[nodiscard]] const ColorPlane& plane() const { return _plane; }

    void drawRect(HostCanvas& canvas) override;
    void mouseDown(const HostEvent& event) override;
    void mouseDragged(const HostEvent& event) override;
    void mouseUp(const HostEvent& event) override;
    bool scrollWheel(const HostScrollEvent& event) override;
    [[nodiscard]] bool takesKeys() const override { return true; }
    [[nodiscard]] bool takesControlKeys() const override { return true; }
    bool keyDown(const HostKeyEvent& event) override;

private:
    [[nodiscard]] HostRect planePlace() const;
    void drawLegend(HostCanvas& canvas, HostRect place) const;
    void moveTo(HostPoint at);

    HostDesktop& _desktop;
    MixDragListener& _listener;
    Actions _actions;
    std::unique_ptr<HostCustomView> _view;
    ColorPlane _plane{MixSpace::oklch, 0};
    /// In fractions of the plane; may be outside.
    HostPoint _mark;
    ColorTriple _srgb{};
    /// The picture of the plane, until the third component or its look changes.
    std::optional<HostPixels> _picture;
    MixLook _look;
};

}  // namespace vantorel
