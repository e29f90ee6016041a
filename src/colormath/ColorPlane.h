#pragma once

#include "colormath/MixSpaces.h"
#include "host/HostGeometry.h"
#include "host/HostPixels.h"

#include <array>
#include <vector>

namespace vantorel {

enum class ScreenGamut { srgb, displayP3 };

/// The colours of a space that have one value of its third component, as a plane. Places on it are
/// fractions from its lower left corner.
///
/// The plane of OKLCH is as wide as the most colourful colour of Display P3 with its hue, and a
/// little wider. All others have the ranges of their components.
class ColorPlane {
public:
    /// A third component other than a hue is moved into its range.
    ColorPlane(MixSpace space, double third);

    [[nodiscard]] MixSpace space() const { return _space; }
    [[nodiscard]] double third() const { return _third; }

    [[nodiscard]] ColorTriple componentsAt(HostPoint place) const;
    /// Returns the place of a colour's components, which may be outside the plane.
    [[nodiscard]] HostPoint placeOf(const ColorTriple& components) const;

    /// A part of a row, in fractions; empty unless `from` is below `to`.
    struct Span {
        double from = 0;
        double to = 0;

        [[nodiscard]] bool contains(double x) const { return x >= from && x <= to; }
    };
    /// Returns the part of the row at a height whose colours a screen can show. Rows of HSL and HSV
    /// are sRGB as a whole.
    [[nodiscard]] Span shownSpan(ScreenGamut gamut, double y) const;

    /// Returns the border of a gamut as a line through the plane: open in OKLCH, where the axis of
    /// greys belongs to it, closed in Lab. Empty in HSL and HSV. `rows` is the number of heights at
    /// which the line has points on either side.
    [[nodiscard]] std::vector<HostPoint> borderOf(ScreenGamut gamut, int rows) const;

    /// Paints the plane in opaque pixels. The channels of colours outside sRGB are clipped. Each
    /// byte is at most one step from the exactly rounded one. Colours of OKLCH beyond Display P3
    /// may be left transparent.
    [[nodiscard]] HostPixels picture(HostPixelSize size) const;

private:
    /// The sums of M k^n for each channel, where M is the matrix from cones to the channels, and k
    /// what the hue adds to each root of a cone for a chroma of 1. With them, a channel is a cubic
    /// function of the chroma.
    using Moments = std::array<ColorTriple, 4>;

    void preparePlaneOfHue();
    [[nodiscard]] static std::array<ColorTriple, 4> cubicsAt(const Moments& moments,
                                                             double lightness);
    [[nodiscard]] double mostChroma(const Moments& moments, double lightness) const;
    [[nodiscard]] Span labSpan(ScreenGamut gamut, double y) const;
    void paintOklch(HostPixels& pixels) const;
    void paintLab(HostPixels& pixels) const;
    void paintLinear(HostPixels& pixels) const;

    MixSpace _space;
    double _third;
    MixRange _x;
    MixRange _y;
    Moments _srgb{};
    Moments _displayP3{};
};

}  // namespace vantorel
