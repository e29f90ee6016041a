#include "colormath/ColorVision.h"

#include "csscolor/GamutMapping.h"

namespace vantorel {
namespace {

/// G. M. Machado, M. M. Oliveira, L. A. F. Fernandes: "A Physiologically-based Model for Simulation
/// of Color Vision Deficiency", IEEE Transactions on Visualization and Computer Graphics 15 (6),
/// 2009. These are the matrices of severity 1.0, for linear sRGB.
constexpr ColorMatrix protanopia{{{0.152286, 1.052583, -0.204868},
                                  {0.114503, 0.786281, 0.099216},
                                  {-0.003882, -0.048116, 1.051998}}};
constexpr ColorMatrix deuteranopia{{{0.367322, 0.860646, -0.227968},
                                    {0.280085, 0.672501, 0.047413},
                                    {-0.011820, 0.042940, 0.968881}}};
constexpr ColorMatrix tritanopia{{{1.255528, -0.076749, -0.178779},
                                  {-0.078411, 0.930809, 0.147602},
                                  {0.004733, 0.691367, 0.303900}}};

}  // namespace

ColorTriple seenInLinearLight(ColorVision vision, const ColorTriple& linear)
{
    switch (vision) {
        case ColorVision::protanopia:
            return multiplied(protanopia, linear);
        case ColorVision::deuteranopia:
            return multiplied(deuteranopia, linear);
        case ColorVision::tritanopia:
            return multiplied(tritanopia, linear);
        case ColorVision::grey:
            break;
    }
    const double luminance = xyzFromLinearSRGB(linear)[1];
    return {luminance, luminance, luminance};
}

CSSColorValue seenWith(ColorVision vision, const CSSColorValue& color)
{
    CSSColorValue seen = mappedIntoSRGB(color);
    const ColorTriple linear = linearFromSRGB(seen.components);
    // Clamped, because the model does not keep to sRGB either.
    seen.components = srgbFromLinear(clippedToSRGB(seenInLinearLight(vision, linear)));
    return seen;
}

}  // namespace vantorel
