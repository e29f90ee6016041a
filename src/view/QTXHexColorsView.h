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
/// This class draws the view and handles its events. The desktop's native view, to which it is
/// attached, determines its position and size. A detached view does nothing. Points are in the
/// native view's coordinates, y up.
class QTXHexColorsView final : public HostViewContent {
public:
    /// `owner` must outlive the view.
    explicit QTXHexColorsView(QTXHexColorsViewOwner& owner) : _hostHexColorPicker(owner) {}

    /// Attaches the desktop's native view, or detaches it if null. Detach the view before it is
    /// destroyed.
    void attachToView(HostCustomView* view);
    [[nodiscard]] HostCustomView* view() const { return _view; }

    void setNeedsDisplay(bool flag);

    void drawRect(HostCanvas& canvas) override;
    void mouseDown(const HostEvent& event) override;
    void mouseDragged(const HostEvent& event) override;
    void mouseMoved(const HostEvent& event) override;
    void mouseEntered(const HostEvent& event) override;
    void mouseExited(const HostEvent& event) override;

    // Picking by keyboard and with the mouse wheel (QTXHexColorsViewKeys.cpp).

    [[nodiscard]] bool takesKeys() const override { return true; }
    void keyFocusDidChange(bool hasFocus) override;
    bool keyDown(const HostKeyEvent& event) override;
    [[nodiscard]] HostBezierPath keyOutline() const override;
    bool scrollWheel(const HostScrollEvent& event) override;
    /// The cell that the keys have reached.
    struct KeyCell {
        HostBezierPath outline;
        HostColor color = HostColor::blackColor();
        /// The colour's name in the palette; empty in the other modes.
        std::u16string name;
        /// Slider only.
        std::optional<SliderCell> digit;
    };
    /// Returns `std::nullopt` while the view does not have the focus.
    [[nodiscard]] std::optional<KeyCell> keyCell() const;

    // Slider mode (QTXHexColorsViewSlider.cpp).

    [[nodiscard]] HostRect colorMatrixRect() const { return sliderMatrixRect(bounds()); }
    /// Computes the cell size from the current bounds.
    void loadColorMatrixSize();
    /// Uses the cell size computed by the last `loadColorMatrixSize`.
    [[nodiscard]] HostRect colorMatrixRectWithComponent(int component, int digit, int value) const;
    /// Returns the component, digit and value of the cell at a point, or `std::nullopt` outside the
    /// columns.
    [[nodiscard]] std::optional<SliderCell> getComponent(HostPoint fromHitPoint);

    // Palette mode (QTXHexColorsViewPalette.cpp).

    /// Returns `std::nullopt` beyond the last swatch, before the first drawing, and if there is no
    /// list.
    [[nodiscard]] std::optional<HostColor> getPaletteColorWithPoint(HostPoint point) const;

    // Wheel mode (QTXHexColorsViewWheel.cpp).

    /// Returns `std::nullopt` outside the wheel drawn in `rect`.
    [[nodiscard]] std::optional<HostColor> getWheelColorWithPoint(HostPoint point,
                                                                  HostRect rect) const;

    // Messages (QTXHexColorsViewMessages.cpp). Posting does not redraw the view; clearing does.

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
    /// The rectangle in which the modes draw.
    [[nodiscard]] HostRect modeRect() const;
    [[nodiscard]] HostColorPanel& panel() const { return _hostHexColorPicker.hostPanel(); }
    void pickColor(const std::optional<HostColor>& color);
    /// Returns whether the view shows the matrix of digits, which also stands in for a palette
    /// without a list.
    [[nodiscard]] bool showsSliders() const;
    [[nodiscard]] SliderCell keySliderCell() const;
    /// Until a key moves them, these two follow the current colour.
    [[nodiscard]] std::size_t keyPalettePosition() const;
    [[nodiscard]] std::size_t keyWheelIndex(const std::vector<WheelCell>& cells) const;

    /// Draws the current mode in `rect` and shows the ring buttons, or moves them out of sight.
    void drawHecColorMatrixWithRect(HostRect rect, HostCanvas& canvas);

    /// Draws the six columns at the positions given by `colorMatrixRectWithComponent`.
    void drawHexSlidersWithRect(HostCanvas& canvas);
    void drawHexColorsWithRect(QTXHexColorSpec& colorSpec, int component, int digit,
                               HostCanvas& canvas);
    void strokeLeaderLines(HostRect cell, int value, HostCanvas& canvas);
    void slidersMouseDownWithEvent(const HostEvent& event);
    /// Follows the mouse from a press to its release. Returns true if the mouse has left the
    /// columns, which drags the colour out.
    bool followSliders(const HostEvent& event);
    void pickSliderCell(const SliderCell& cell, std::uint64_t modifierFlags);
    /// Sets the work colour to the current colour with the cell's digit replaced.
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
    /// The path used for every shape. Its line width persists: a stroke that does not set a width
    /// uses that of the stroke before it.
    HostBezierPath __bPth;
    HostSize __colorMatrixRectSize;
    /// The controller's `exactHexColorMatch` when the current drawing began.
    bool __exactHexColorMatch = false;

    std::uint64_t _nDownPaletteMode = 0;
    std::uint64_t _nAcrossPaletteMode = 0;
    HostSize _swatchSizePaletteMode;
    /// Kept between drawings, because clicks are looked up in it.
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

    bool _hasKeyFocus = false;
    /// The slider's column that the keys have reached, 0..5.
    int _keyColumn = 0;
    /// The swatch or triangle that the keys have reached, and in which mode.
    struct ReachedCell {
        PickViewMode mode;
        std::size_t index;
    };
    std::optional<ReachedCell> _keyCell;

    /// 0 while the pointer is not tracked.
    std::intptr_t __trackingRectTag = 0;
    bool __holdAcceptsMouseMovedEvents = false;
};

}  // namespace vantorel
