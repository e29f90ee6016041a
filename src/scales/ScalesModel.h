#pragma once

#include "colormath/ColorVision.h"
#include "colormath/Schemes.h"
#include "host/HostColor.h"
#include "host/HostColorPanel.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vantorel {

/// A colour of a row.
struct Swatch {
    /// Within sRGB, except for the colour that the row was made from.
    HostColor color = HostColor::blackColor();
    /// The step or number in the row, such as "500".
    std::u16string label;
    /// Whether this is the colour that the row was made from.
    bool isOwn = false;

    bool operator==(const Swatch&) const = default;
};
using Swatches = std::vector<Swatch>;

/// A space in which gradients are mixed, and the way round the circle of hues. Two of them may have
/// the same name.
struct GradientSpace {
    /// Identifies it in the page's memory.
    const char* key = "";
    /// As users know it.
    const char16_t* name = u"";
    ColorSpace space = ColorSpace::srgb;
    HueArc arc = HueArc::shorter;
};
/// The first one is chosen at first.
[[nodiscard]] const std::vector<GradientSpace>& gradientSpaces();

/// The colour that the page starts from, and all rows that are made from it.
class ScalesModel {
public:
    static constexpr int leastSteps = 2;
    static constexpr int mostSteps = 24;

    [[nodiscard]] const HostColor& color() const { return _color; }
    /// Without a colour, and for a pattern or a colour with a channel that is not finite or
    /// absurdly large, the last colour stays.
    void takeColor(const std::optional<HostColor>& color);

    /// The name of the colour in texts: that of the nearest named colour of CSS.
    [[nodiscard]] std::string name() const;

    [[nodiscard]] Swatches scale() const;
    /// Six colours each, of which the colour is the first.
    [[nodiscard]] Swatches tints() const;
    [[nodiscard]] Swatches shades() const;
    [[nodiscard]] Swatches tones() const;
    [[nodiscard]] Swatches scheme(Scheme scheme) const;
    /// The scale as it is seen.
    [[nodiscard]] Swatches seenScale(ColorVision vision) const;

    /// The end of the gradient: the one that was set, or the complement of the colour.
    [[nodiscard]] HostColor end() const;
    [[nodiscard]] const std::optional<HostColor>& chosenEnd() const { return _end; }
    /// Pass `std::nullopt` for the complement, whatever the colour is. A colour that could not be
    /// taken as the page's colour has no effect.
    void setEnd(const std::optional<HostColor>& color);
    [[nodiscard]] int steps() const { return _steps; }
    /// Limited to the range of steps.
    void setSteps(int steps);
    /// An index of `gradientSpaces`.
    [[nodiscard]] std::size_t space() const { return _space; }
    /// Has no effect if there is no such space.
    void setSpace(std::size_t space);
    [[nodiscard]] Swatches gradient() const;

    /// The name of the colour list that is compared with itself; empty until one is chosen.
    [[nodiscard]] const std::u16string& contrastList() const { return _contrastList; }
    void setContrastList(std::u16string name) { _contrastList = std::move(name); }

private:
    HostColor _color = HostColor::blackColor();
    std::optional<HostColor> _end;
    int _steps = 7;
    std::size_t _space = 0;
    std::u16string _contrastList;
};

}  // namespace vantorel
