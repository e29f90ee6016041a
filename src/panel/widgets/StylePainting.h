#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QStyleOption>

#include "panel/widgets/ThemeColors.h"

/// What the controls of the panel's style are painted with. Everything lies on whole device pixels,
/// so that edges are sharp at scales such as 1.25 and 1.5.
namespace vantorel {

/// Radii of corners, in device-independent pixels.
inline constexpr qreal menuRadius = 8;
inline constexpr qreal controlRadius = 6;
inline constexpr qreal rowRadius = 4;
/// The viewport of a list is a rectangle: within a frame of 2 its corners stay inside this radius.
inline constexpr qreal listRadius = 4;

inline constexpr qreal ringWidth = 2;

/// Saves a painter's state and switches antialiasing on, until the end of the block.
class SmoothPainting {
public:
    explicit SmoothPainting(QPainter& painter);
    ~SmoothPainting();
    SmoothPainting(const SmoothPainting&) = delete;
    SmoothPainting& operator=(const SmoothPainting&) = delete;

private:
    QPainter& _painter;
};

/// Moves edges to whole device pixels.
[[nodiscard]] QRectF onDevicePixels(const QPainter& painter, const QRectF& rect);
/// The width of a line in whole device pixels, at least one.
[[nodiscard]] qreal lineOnDevicePixels(const QPainter& painter, qreal width);

/// Paints a ground with a border inside the edges of `rect`. An invalid colour leaves its part out.
void paintRounded(QPainter& painter, const QRectF& rect, qreal radius, const QColor& ground,
                  const QColor& border, qreal borderWidth = 1);
/// Paints the ring of the keyboard focus inside the edges of `rect`.
void paintFocusRing(QPainter& painter, const QRectF& rect, qreal radius, const ThemeColors& colors);

enum class ChevronDirection { up, down, left, right };
void paintChevron(QPainter& painter, const QRectF& room, ChevronDirection direction,
                  const QColor& color);
/// Paints a tick of 16 points in the middle of `room`.
void paintTick(QPainter& painter, const QRectF& room, const QColor& color);

/// The colours for what an option describes.
[[nodiscard]] ThemeColors themeColors(const QStyleOption& option);
[[nodiscard]] inline bool isOff(const QStyleOption& option)
{
    return !option.state.testFlag(QStyle::State_Enabled);
}
/// Whether the focus is to be seen: only after a key has moved it.
[[nodiscard]] bool showsKeyboardFocus(const QStyleOption& option);
/// The border of something that can be operated.
[[nodiscard]] QColor borderColor(const QStyleOption& option, const ThemeColors& colors);
/// The ground of something that can be pressed.
[[nodiscard]] QColor pressableGround(const QStyleOption& option, const ThemeColors& colors);

}  // namespace vantorel
