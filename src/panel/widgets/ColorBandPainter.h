#pragma once

#include "host/HostColor.h"
#include "panel/widgets/ColorBandLayout.h"
#include "panel/widgets/PixelGrid.h"
#include "panel/widgets/ThemeColors.h"

#include <QPainterPath>

namespace vantorel {

/// Paints the halves of a colour band and what is on them, sharp at every scale.
class ColorBandPainter {
public:
    ColorBandPainter(QPainter& painter, const ColorBandLayout& layout, const ThemeColors& theme);

    /// Paints both halves in one outline. A translucent colour lies over squares; the first third
    /// of the colour's half shows its opaque self.
    void paintColors(const HostColor& color, const HostColor& background);
    /// Paints "Aa" as the colour looks on the background, and the chip.
    void paintSample(const HostColor& color, const HostColor& background);
    /// Marks a half whose colour is outside sRGB, in the corner below its beginning. Without a name
    /// there is nothing to mark.
    void paintGamutName(const QString& name, const QRect& half);
    /// Paints a triangle at the lower edge of the half that is edited.
    void paintEditMark(const QRect& half);
    void paintDropFrame(const QRect& half);
    void paintFocusRing(const QRect& half);

private:
    [[nodiscard]] QImage colorsImage(const HostColor& color, const HostColor& background) const;
    /// Returns the outline of a half this far inside its edges. Only the corners of the band are
    /// round.
    [[nodiscard]] QPainterPath outline(const QRect& half, qreal inset) const;
    [[nodiscard]] bool isMirrored() const { return _layout.color.x() > _layout.background.x(); }

    QPainter& _painter;
    const ColorBandLayout& _layout;
    const ThemeColors& _theme;
    PixelGrid _grid;
    QRectF _band;
};

}  // namespace vantorel
