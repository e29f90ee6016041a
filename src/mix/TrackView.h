#pragma once

#include "mix/MarkView.h"
#include "pageparts/PixelPainting.h"

#include <functional>
#include <optional>

namespace vantorel {

/// A slider: a track filled with the colours to which it leads, and a mark on it. It is dragged,
/// and moved by arrows (Shift: coarse, Ctrl: fine), Page Up and Page Down (coarse), Home, End and
/// the wheel.
class TrackView final : public MarkView {
public:
    enum class Direction { toRight, upwards };
    /// What the slider does when it is operated. Fractions are 0..1.
    struct Actions {
        std::function<void(double fraction)> move;
        /// Adds steps of the number beside the slider.
        std::function<void(int steps, std::uint64_t modifierFlags)> step;
    };

    /// `listener` must outlive the view.
    TrackView(Direction direction, MarkDragListener& listener, Actions actions);

    /// Shows other colours. `fill` is the colour of the mark. A fraction outside 0..1 is shown at
    /// the end.
    void show(double fraction, const ColorTriple& fill, TrackColors colors);

    void drawRect(HostCanvas& canvas) override;
    bool scrollWheel(const HostScrollEvent& event) override;

private:
    void moveMarkTo(HostPoint at) override;
    bool moveMarkBy(const HostKeyEvent& event) override;
    [[nodiscard]] HostRect trackPlace() const;
    [[nodiscard]] HostRect markPlace() const;
    [[nodiscard]] HostSize markSize() const;

    Direction _direction;
    Actions _actions;
    double _fraction = 0;
    ColorTriple _fill{};
    TrackColors _colors;
    /// The picture of the track, until its colours or its look change.
    std::optional<HostPixels> _picture;
    PixelLook _look;
};

}  // namespace vantorel
