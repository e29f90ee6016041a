#include "colormath/Schemes.h"

#include "colormath/Adjustments.h"

#include <span>

namespace vantorel {
namespace {

/// Returns how far the hues are turned, in degrees. 0 is the colour itself.
std::span<const double> turnsOf(Scheme scheme)
{
    static constexpr std::array complement{0.0, 180.0};
    static constexpr std::array split{0.0, 150.0, 210.0};
    static constexpr std::array triad{0.0, 120.0, 240.0};
    static constexpr std::array tetrad{0.0, 90.0, 180.0, 270.0};
    static constexpr std::array analogous{-60.0, -30.0, 0.0, 30.0, 60.0};
    switch (scheme) {
        case Scheme::complement:
            return complement;
        case Scheme::split:
            return split;
        case Scheme::triad:
            return triad;
        case Scheme::tetrad:
            return tetrad;
        case Scheme::analogous:
            break;
    }
    return analogous;
}

}  // namespace

ColorScheme schemeOf(Scheme scheme, const CSSColorValue& color)
{
    ColorScheme result;
    for (const double turn : turnsOf(scheme)) {
        if (turn == 0) result.ownPlace = result.colors.size();
        result.colors.push_back(turn == 0 ? color : rotated(color, turn, ColorSpace::oklch));
    }
    return result;
}

}  // namespace vantorel
