#pragma once

#include "color/QTXHexColorSpec.h"
#include "colorlists/SortedColorKeys.h"
#include "host/HostColorPanel.h"
#include "host/HostControls.h"
#include "view/PaletteGeometry.h"
#include "view/QTXHexColorsViewOwner.h"
#include "view/SliderGeometry.h"
#include "view/WheelGeometry.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vantorel {

/// The view in which the user picks a colour with the mouse: a matrix of hex digits (Slider), the
/// swatches of a colour list (Palette) or the rings of the colour cube (Wheel). It also shows
/// messages that fade, follows the pointer for the read-out, and starts drags of the colour.
///
/// This class is what the view shows and does; the desktop's own view, which it is attached to, has
/// its place and size. Without one it does nothing. Points are in that view's coordinates, y up.
class QTXHexColorsView final : public HostViewContent {
public:
    /// `owner` must outlive the view.
    explicit QTXHexColorsView(QTXHexColorsViewOwner& owner) : _hostHexColorPicker(owner) {}

    /// The desktop's view that shows this one. It must be detached (null) before it ends.
    void attachToView(HostCustomView* view) { _view = view; }
    [[nodiscard]] HostCustomView* view() const { return _view; }

    void setNeedsDisplay(bool flag);

    void drawRect(HostCanvas& canvas) override;
    void mouseDown(const HostEvent& event) override;
    void mouseDragged(const HostEvent& event) override;
    void mouseMoved(const HostEvent& event) override;
    void mouseEntered(const HostEvent& event) override;
    void mouseExited(const HostEvent& event) override;

    // Slider mode (QTXHexColorsViewSlider.cpp).

    [[nodiscard]] HostRect colorMatrixRect() const { return sliderMatrixRect(bounds()); }
    /// Takes the size of one cell from the bounds as they are now.
    void loadColorMatrixSize();
    /// Uses the size that `loadColorMatrixSize` took last.
    [[nodiscard]] HostRect colorMatrixRectWithComponent(int component, int digit, int value) const;
    /// Component, digit and value of the cell under a point; nothing between the columns and
    /// outside.
    [[nodiscard]] std::optional<SliderCell> getComponent(HostPoint fromHitPoint);

    // Palette mode (QTXHexColorsViewPalette.cpp).

    /// Nothing beyond the last swatch, before the first drawing, and without a list.
    [[nodiscard]] std::optional<HostColor> getPaletteColorWithPoint(HostPoint point) const;

    // Wheel mode (QTXHexColorsViewWheel.cpp).

    /// Nothing outside the wheel that is drawn in `rect`.
    [[nodiscard]] std::optional<HostColor> getWheelColorWithPoint(HostPoint point,
                                                                  HostRect rect) const;

    // Messages (QTXHexColorsViewMessages.cpp). Posting does not redraw; clearing does.

    void postMessage(const std::u16string& text);
    void postWarning(const std::u16string& text);
    void clearMessage();
    [[nodiscard]] const std::optional<std::u16string>& messageStr() const { return _messageStr; }
    [[nodiscard]] float messageAlpha() const { return _messageAlpha; }
    [[nodiscard]] HostRect messageRect() const { return _messageRect; }
    [[nodiscard]] bool isWarning() const { return _isWarning; }

    // Following the pointer (QTXHexColorsViewTracking.cpp).

    void startTracking();
    void stopTracking();

    // Dragging out (QTXHexColorsViewDragging.cpp).

    [[nodiscard]] HostImage dragImageWithString(const std::u16string& text) const;
    [[nodiscard]] HostImage dragImageWithColor(const HostColor& color) const;

private:
    [[nodiscard]] HostRect bounds() const;
    /// The rectangle that the modes draw in.
    [[nodiscard]] HostRect modeRect() const;
    [[nodiscard]] HostColorPanel& panel() const { return _hostHexColorPicker.hostPanel(); }
    void pickColor(const std::optional<HostColor>& color);

    /// Hands the drawing rectangle to the mode and puts the ring buttons in or out of sight.
    void drawHecColorMatrixWithRect(HostRect rect, HostCanvas& canvas);

    /// Draws the six columns where `colorMatrixRectWithComponent` has their cells.
    void drawHexSlidersWithRect(HostCanvas& canvas);
    void drawHexColorsWithRect(QTXHexColorSpec& colorSpec, int component, int digit,
                               HostCanvas& canvas);
    void strokeLeaderLines(HostRect cell, int value, HostCanvas& canvas);
    void slidersMouseDownWithEvent(const HostEvent& event);
    /// Sets a cell's digit in the work colour, which starts as the current colour.
    void loadWorkColorSpecWithCell(const SliderCell& cell, std::uint64_t modifierFlags);

    [[nodiscard]] std::shared_ptr<HostColorList> paletteList() const;
    void setPaletteMatrixWithCount(std::size_t count, HostRect rect);
    [[nodiscard]] PaletteGrid currentPaletteGrid() const;
    void drawHexPaletteWithRect(HostRect rect, HostCanvas& canvas);
    void paletteMouseDownWithEvent(const HostEvent& event);

    [[nodiscard]] WheelPlace currentWheelPlace(HostRect rect) const;
    void drawHexColorWheelWithRect(HostRect rect, HostCanvas& canvas);
    void wheelMouseDownWithEvent(const HostEvent& event);

    void post(const std::u16string& text, bool isWarning);
    void drawMessage(HostCanvas& canvas);
    void scheduleMessageTimer(double seconds);
    void messageCallBack();

    QTXHexColorsViewOwner& _hostHexColorPicker;
    HostCustomView* _view = nullptr;

    /// Scratch colour for drawing and picking; loaded before each use.
    QTXHexColorSpec __workColorSpec;
    /// One path for every shape. Its line width outlives the shape, so that a stroke which sets
    /// none has the width of the stroke before it.
    HostBezierPath __bPth;
    HostSize __colorMatrixRectSize;
    /// The controller's exact match as it was when the drawing began.
    bool __exactHexColorMatch = false;

    std::uint64_t _nDownPaletteMode = 0;
    std::uint64_t _nAcrossPaletteMode = 0;
    HostSize _swatchSizePaletteMode;
    /// Kept between drawings, because a click indexes it.
    SortedColorKeys __sortedPaletteColorKeys;

    std::optional<std::u16string> _messageStr;
    float _messageAlpha = 0;
    HostRect _messageRect;
    bool _isWarning = false;
    struct MessageTimer {
        std::unique_ptr<HostTimer> timer;
        std::shared_ptr<bool> fired;
    };
    std::vector<MessageTimer> _messageTimers;

    /// 0 while nothing is tracked.
    std::intptr_t __trackingRectTag = 0;
    bool __holdAcceptsMouseMovedEvents = false;
};

}  // namespace vantorel
