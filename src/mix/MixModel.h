#pragma once

#include "colormath/MixSpaces.h"
#include "host/HostColor.h"

#include <array>
#include <cstddef>
#include <optional>

namespace vantorel {

/// The colour of the page as components of a space. A component that has no influence on the
/// colour, such as the hue of a grey, keeps the value that the user chose last.
class MixModel {
public:
    [[nodiscard]] MixSpace space() const { return _space; }
    /// The colour stays exactly the same.
    void setSpace(MixSpace space);

    /// Components may lie outside their ranges, because colours of any gamut are held.
    [[nodiscard]] const ColorTriple& components() const { return _components; }
    [[nodiscard]] const ColorTriple& srgb() const { return _srgb; }
    [[nodiscard]] double alpha() const { return _alpha; }
    [[nodiscard]] HostColor color() const;

    /// Takes a colour of the panel. The page's own colour, even if a host has rounded it, changes
    /// no components. Without a colour, and for a pattern or a colour with a component that is
    /// not finite or absurdly large, the last colour stays.
    void takeColor(const std::optional<HostColor>& color);

    /// The other components are moved into the space's ranges in HSL and HSV, which have no other
    /// colours than those of sRGB.
    void setComponent(std::size_t component, double value);
    void setComponents(const ColorTriple& components);
    void setAlpha(double alpha);

    /// Returns the colour that results from another value of a component.
    [[nodiscard]] ColorTriple srgbWith(std::size_t component, double value) const;

private:
    void readComponents();

    MixSpace _space = MixSpace::oklch;
    ColorTriple _srgb{};
    ColorTriple _components{};
    double _alpha = 1;
    /// The last components in each space.
    std::array<ColorTriple, 4> _last{};
};

}  // namespace vantorel
