#pragma once

#include "host/HostControls.h"
#include "host/HostInterfaceFactory.h"
#include "mix/MixPainting.h"

#include <functional>
#include <memory>
#include <optional>

namespace vantorel {

/// What the user does to a mark in a view of the page.
class MixDragListener {
public:
    virtual ~MixDragListener() = default;
    /// A drag of the mouse begins or ends. Its steps lie between.
    virtual void dragDidBegin() = 0;
    virtual void dragDidEnd() = 0;
};

/// Whether a key with Ctrl is a shortcut of the panel, as all but the arrows are.
[[nodiscard]] bool isOfPanel(const HostKeyEvent& event);

/// A slider: a track filled with the colours to which it leads, and a mark on it. It is dragged,
/// and moved by arrows (Shift: coarse, Ctrl: fine), Page Up and Page Down (coarse), Home, End and
/// the wheel.
class TrackView final : public HostViewContent {
public:
    enum class Direction { toRight, upwards };
    /// What the slider does when it is operated. Fractions are 0..1.
    struct Actions {
        std::function<void(double fraction)> move;
        /// Adds steps of the number beside the slider.
        std::function<void(int steps, std::uint64_t modifierFlags)> step;
    };

    /// `listener` must outlive the view.
    TrackView(Direction direction, MixDragListener& listener, Actions actions);

    /// Creates the view. `frame` includes the room for the mark around the track.
    void makeView(HostInterfaceFactory& factory, const std::string& identifier, HostRect frame);
    [[nodiscard]] HostCustomView& view() const { return *_view; }

    /// Shows other colours. `fill` is the colour of the mark. A fraction outside 0..1 is shown at
    /// the end.
    void show(double fraction, const ColorTriple& fill, TrackColors colors);

    void drawRect(HostCanvas& canvas) override;
    void mouseDown(const HostEvent& event) override;
    void mouseDragged(const HostEvent& event) override;
    void mouseUp(const HostEvent& event) override;
    bool scrollWheel(const HostScrollEvent& event) override;
    [[nodiscard]] bool takesKeys() const override { return true; }
    [[nodiscard]] bool takesControlKeys() const override { return true; }
    bool keyDown(const HostKeyEvent& event) override;

private:
    [[nodiscard]] HostRect trackPlace() const;
    [[nodiscard]] HostRect markPlace() const;
    [[nodiscard]] HostSize markSize() const;
    void moveTo(HostPoint at);

    Direction _direction;
    MixDragListener& _listener;
    Actions _actions;
    std::unique_ptr<HostCustomView> _view;
    double _fraction = 0;
    ColorTriple _fill{};
    TrackColors _colors;
    /// The picture of the track, until its colours or its look change.
    std::optional<HostPixels> _picture;
    MixLook _look;
};

}  // namespace vantorel
